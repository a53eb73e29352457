// TGRowData: the base class of the data that a host hangs on a row.
#pragma once

#include "module/QuorExport.h"

#include <afxwin.h>

namespace QuorUiCtr
{

// Host data of one row: what a row stands for, a file or a record, or whatever a host must find again when
// the grid hands it a row in a hook. Derive from it, allocate the object with new and hand it to
// TGGridRow::SetExtendData: from then on the row owns it and deletes it through the virtual destructor. The
// class is empty on purpose; assigning one TGRowData to another copies nothing, so that copying a row never
// copies host data by accident.
class QUOR_EXT_CLASS TGRowData
{
public:
    TGRowData();
    // Takes nothing over, so that derived classes copy only what they say they do.
    TGRowData(const TGRowData& other);
    // Called by the row, through a pointer to this class.
    virtual ~TGRowData();

    // Copies nothing and returns *this; a derived class that is to be copied has an operator of its own.
    TGRowData& operator=(const TGRowData& other);
};

} // namespace QuorUiCtr
