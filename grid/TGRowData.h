// TGRowData: the base class of the data that a host hangs on a row.
#pragma once

#include "module/QuorExport.h"

#include <afxwin.h>

namespace QuorUiCtr
{

// Host data of one row. Derive from it, allocate the object with new and hand it to TGGridRow::SetExtendData:
// from then on the row owns it and deletes it through the virtual destructor. The class is empty on purpose;
// assigning one TGRowData to another copies nothing, so that copying a row never copies host data by
// accident.
class QUOR_EXT_CLASS TGRowData
{
public:
    TGRowData();
    TGRowData(const TGRowData& other);
    virtual ~TGRowData();

    // Copies nothing and returns *this.
    TGRowData& operator=(const TGRowData& other);
};

} // namespace QuorUiCtr
