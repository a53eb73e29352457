// A combo property that tells the grid that made it when it is deleted.
#include "propgrid/ComboProperty.h"

CPropertyGridComboProperty::CPropertyGridComboProperty(CMFCPropertyGridCtrlEx& maker, const CString& name,
                                                       const CString& value, const CString& description)
    : CMFCPropertyGridProperty(name, COleVariant(value), description), grid(&maker)
{
    PartFromLast(maker);
    maker.lastComboProperty = this;
}

CPropertyGridComboProperty::~CPropertyGridComboProperty()
{
    if (grid != nullptr)
        grid->lastComboProperty = nullptr;
}

void CPropertyGridComboProperty::PartFromLast(CMFCPropertyGridCtrlEx& grid)
{
    // Only the constructor sets it, so it is one of this class.
    if (grid.lastComboProperty != nullptr)
        static_cast<CPropertyGridComboProperty*>(grid.lastComboProperty)->grid = nullptr;
    grid.lastComboProperty = nullptr;
}
