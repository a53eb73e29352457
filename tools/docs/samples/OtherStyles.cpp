// The style flags of the property grid, of the drag tree and of the report list.
#include "StylePictures.h"

#include "controls/CGridListCtrl.h"
#include "controls/CInPlaceEdit.h"
#include "propgrid/CMFCPropertyGridCtrlEx.h"
#include "treedrag/CTreeCtrlDrag.h"

#include <afxcontrolbars.h>

namespace
{

using Properties = CMFCPropertyGridCtrlEx;

Style PropertyStyle(const wchar_t* name, std::function<void(Properties&)> set)
{
    Style style;
    style.name = CString(L"properties-") + name;
    style.height = 130;
    style.make = [set](CWnd& parent, const CRect& place, bool on) -> std::unique_ptr<CWnd> {
        auto properties = std::make_unique<Properties>();
        properties->Create(WS_CHILD | WS_VISIBLE | WS_BORDER, place, &parent, 1);
        if (on)
            set(*properties);
        auto* line = new CMFCPropertyGridProperty(L"Line: how it is drawn on paper");
        line->AddSubItem(new CMFCPropertyGridProperty(L"Width", COleVariant(2.5), L"In millimetres"));
        line->AddSubItem(new CMFCPropertyGridProperty(L"Dotted", COleVariant(VARIANT_TRUE, VT_BOOL)));
        auto* files = new CMFCPropertyGridProperty(L"Files");
        files->AddSubItem(new CMFCPropertyGridProperty(L"Folder", COleVariant(L"Drawings")));
        properties->AddProperty(line);
        properties->AddProperty(files);
        properties->SetItemValue(L"Width", 3.5);
        properties->SetCurSel(line->GetSubItem(0));
        return properties;
    };
    return style;
}

Style TreeStyle(const wchar_t* name, DWORD flag, bool unique,
                std::function<void(QuorUiCtr::CTreeCtrlDrag&)> act)
{
    using QuorUiCtr::CTreeCtrlDrag;
    Style style;
    style.name = CString(L"tree-") + name;
    style.make = [=](CWnd& parent, const CRect& place, bool on) -> std::unique_ptr<CWnd> {
        auto tree = std::make_unique<CTreeCtrlDrag>();
        constexpr DWORD Usual =
            WS_CHILD | WS_VISIBLE | WS_BORDER | TVS_HASBUTTONS | TVS_LINESATROOT | TVS_HASLINES;
        tree->Create(Usual | (on ? flag : 0), place, &parent, 1);
        const HTREEITEM folder = tree->InsertItem(L"Motors", 0, 0);
        tree->InsertItem(L"Small", 1, 1, folder);
        tree->Expand(folder, TVE_EXPAND);
        tree->SelectItem(tree->GetChildItem(folder));
        if (on && unique)
            tree->SetNoDuplicates(TRUE);
        return tree;
    };
    style.act = [act](CWnd& control) {
        control.SetFocus();
        act(static_cast<CTreeCtrlDrag&>(control));
    };
    return style;
}

// The list with its editor, which the list deletes with itself.
class SampleList : public CGridListCtrl
{
public:
    bool showsCell = true;
    std::unique_ptr<CInPlaceEdit> editor;

protected:
    afx_msg void OnDraw(NMHDR* header, LRESULT* result)
    {
        if (showsCell)
            OnCustomDraw(header, result);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(SampleList, CGridListCtrl)
    ON_NOTIFY_REFLECT(NM_CUSTOMDRAW, &SampleList::OnDraw)
END_MESSAGE_MAP()

Style ListStyle(const wchar_t* name, bool isOfEditor)
{
    Style style;
    style.name = CString(L"list-") + name;
    style.make = [isOfEditor](CWnd& parent, const CRect& place, bool on) -> std::unique_ptr<CWnd> {
        auto list = std::make_unique<SampleList>();
        list->showsCell = on || isOfEditor;
        list->Create(WS_CHILD | WS_VISIBLE | WS_BORDER | LVS_REPORT | LVS_SHOWSELALWAYS, place, &parent, 1);
        list->PrepareControl(0);
        list->InsertColumn(0, L"Name", LVCFMT_LEFT, 130);
        list->InsertColumn(1, L"Remarks", LVCFMT_LEFT, 70);
        list->SetItemText(list->InsertItem(0, L"Miller"), 1, L"by post");
        list->InsertItem(1, L"Smith");
        list->SetItemState(0, LVIS_FOCUSED, LVIS_FOCUSED);
        list->SetFocus();
        MSG right = {list->m_hWnd, WM_KEYDOWN, VK_RIGHT, 0, 0, {}};
        list->PreTranslateMessage(&right);
        list->PreTranslateMessage(&right);
        if (!isOfEditor)
            return list;
        list->editor = std::make_unique<CInPlaceEdit>(0, 1, L"by post, in a box of its own");
        list->editor->Create(WS_CHILD | WS_VISIBLE | (on ? ES_MULTILINE | ES_AUTOVSCROLL : ES_AUTOHSCROLL),
                             CRect(), list.get(), 2);
        list->PositionControl(list->editor.get(), 0, 1);
        list->editor->CalculateSize();
        return list;
    };
    return style;
}

} // namespace

std::vector<Style> OtherStyles()
{
    using QuorUiCtr::CTreeCtrlDrag;
    return {
        PropertyStyle(L"EnableHeaderCtrl", [](Properties& grid) { grid.EnableHeaderCtrl(FALSE); }),
        PropertyStyle(L"EnableDescriptionArea", [](Properties& grid) { grid.EnableDescriptionArea(); }),
        PropertyStyle(L"SetVSDotNetLook", [](Properties& grid) { grid.SetVSDotNetLook(); }),
        PropertyStyle(L"SetGroupNameFullWidth", [](Properties& grid) { grid.SetGroupNameFullWidth(); }),
        PropertyStyle(L"MarkModifiedProperties", [](Properties& grid) { grid.MarkModifiedProperties(); }),
        PropertyStyle(L"SetAlphabeticMode", [](Properties& grid) { grid.SetAlphabeticMode(); }),
        PropertyStyle(L"SetBoolLabels", [](Properties& grid) { grid.SetBoolLabels(L"yes", L"no"); }),
        TreeStyle(L"TVS_EDITLABELS", TVS_EDITLABELS, false,
                  [](CTreeCtrlDrag& tree) { tree.RenameSelected(); }),
        TreeStyle(L"SetNoDuplicates", 0, true,
                  [](CTreeCtrlDrag& tree) {
                      tree.SelectItem(tree.GetRootItem());
                      for (int i = 0; i < 2; ++i)
                      {
                          tree.CreateNewFolder();
                          tree.SetFocus(); // which ends the edit of the name
                          tree.SelectItem(tree.GetRootItem());
                      }
                  }),
        ListStyle(L"OnCustomDraw", false),
        ListStyle(L"ES_MULTILINE", true),
    };
}
