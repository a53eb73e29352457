// The base class of host data.
#include "grid/TGRowData.h"

namespace QuorUiCtr
{

TGRowData::TGRowData() = default;

TGRowData::TGRowData(const TGRowData&) {}

TGRowData::~TGRowData() = default;

TGRowData& TGRowData::operator=(const TGRowData&)
{
    return *this;
}

} // namespace QuorUiCtr
