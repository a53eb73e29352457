// CPropertyGridComboProperty: a combo property that tells the grid that made it when it is deleted.
#pragma once

#include "propgrid/CMFCPropertyGridCtrlEx.h"

// The grid remembers the property that it made last. The two know each other until one of them goes or the
// grid makes another.
class CPropertyGridComboProperty : public CMFCPropertyGridProperty
{
public:
    CPropertyGridComboProperty(CMFCPropertyGridCtrlEx& grid, const CString& name, const CString& value,
                               const CString& description);
    ~CPropertyGridComboProperty() override;

    // Ends the acquaintance of the grid with its last property, if it has one.
    static void PartFromLast(CMFCPropertyGridCtrlEx& grid);

private:
    CMFCPropertyGridCtrlEx* grid; // NULL once it has parted
};
