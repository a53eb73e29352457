// The list's notifications of editing as lines for the log.
#include "ListPageRecord.h"

#include "Language.h"

namespace
{

CString ColumnName(const CListCtrl& list, int column)
{
    wchar_t name[64] = L"";
    LVCOLUMN description = {};
    description.mask = LVCF_TEXT;
    description.pszText = name;
    description.cchTextMax = 64;
    list.GetColumn(column, &description);
    return name;
}

} // namespace

CString DescribeEditRecord(const CListCtrl& list, const NMLVDISPINFO& record)
{
    const LVITEM& item = record.item;
    CString line;
    line.Format(Tr(L"%s  row %d  column %d %s  "),
                record.hdr.code == LVN_BEGINLABELEDIT ? L"LVN_BEGINLABELEDIT" : L"LVN_ENDLABELEDIT",
                item.iItem, item.iSubItem, static_cast<LPCTSTR>(ColumnName(list, item.iSubItem)));
    if (item.pszText)
        line.AppendFormat(Tr(L"text \"%s\" (%d)"), item.pszText, item.cchTextMax);
    else
        line += Tr(L"cancelled");
    return line;
}
