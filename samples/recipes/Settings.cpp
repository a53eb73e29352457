// Settings: a tree of groups beside the properties of the group that is selected.
#include <afxwin.h>
#include <afxcmn.h>
#include <afxcontrolbars.h>

#include "FrameApp.h"
#include "propgrid/CMFCPropertyGridCtrlEx.h"

constexpr UINT TreeId = 101;
constexpr UINT PropertiesId = 102;
constexpr int TreeWidth = 150;

class SettingsFrame : public CFrameWnd
{
public:
    SettingsFrame()
    {
        Create(nullptr, L"Settings", WS_OVERLAPPEDWINDOW, CRect(40, 40, 560, 340));
        tree.Create(WS_CHILD | WS_VISIBLE | TVS_SHOWSELALWAYS | TVS_HASBUTTONS, CRect(), this, TreeId);
        properties.Create(WS_CHILD | WS_VISIBLE, CRect(), this, PropertiesId);
        properties.EnableHeaderCtrl(FALSE);
        properties.SetVSDotNetLook();
        properties.EnableDescriptionArea();

        CMFCPropertyGridProperty* drawing = AddGroup(L"Drawing");
        properties.AddComboSubItem(drawing, L"Unit", L"mm,<mm,inch>[Unit of lengths]");
        drawing->AddSubItem(new CMFCPropertyGridProperty(L"Width", COleVariant(12.5), L"Width of lines"));
        drawing->AddSubItem(
            new CMFCPropertyGridProperty(L"Show axes", COleVariant(VARIANT_TRUE, VT_BOOL), L"Draw the axes"));
        CMFCPropertyGridProperty* files = AddGroup(L"Files");
        files->AddSubItem(
            new CMFCPropertyGridProperty(L"Folder", COleVariant(L"C:\\Drawings"), L"Where drawings are"));
        properties.AddComboSubItem(files, L"Backup",
                                   L"daily,<never,daily,hourly>[How often copies are made]");
        tree.SelectItem(tree.GetRootItem());
    }

protected:
    // Exactly one group is shown.
    afx_msg void OnSelChanged(NMHDR* header, LRESULT* result)
    {
        const auto* change = reinterpret_cast<const NMTREEVIEW*>(header);
        *result = 0;
        for (int i = 0; i < properties.GetPropertyCount(); ++i)
        {
            CMFCPropertyGridProperty* group = properties.GetProperty(i);
            group->Show(group == reinterpret_cast<CMFCPropertyGridProperty*>(change->itemNew.lParam));
        }
    }
    // What depends on other values is brought up to date by title.
    afx_msg LRESULT OnPropertyChanged(WPARAM, LPARAM property)
    {
        const auto* changed = reinterpret_cast<const CMFCPropertyGridProperty*>(property);
        if (CString(changed->GetName()) == L"Unit")
        {
            double width = 0;
            properties.GetItemValue(L"Width", width);
            const bool inch = properties.GetOptionItemCurSel(L"Unit") == 1;
            properties.SetItemValue(L"Width", inch ? width / 25.4 : width * 25.4);
        }
        return 0;
    }
    afx_msg void OnSize(UINT type, int width, int height)
    {
        CFrameWnd::OnSize(type, width, height);
        if (properties.GetSafeHwnd() == nullptr)
            return;
        tree.MoveWindow(0, 0, TreeWidth, height);
        properties.MoveWindow(TreeWidth, 0, width > TreeWidth ? width - TreeWidth : 0, height);
    }
    afx_msg void OnSetFocus(CWnd*) { tree.SetFocus(); }
    DECLARE_MESSAGE_MAP()

private:
    // The property grid owns the group; the tree's item knows it by its data.
    CMFCPropertyGridProperty* AddGroup(const wchar_t* name)
    {
        auto* group = new CMFCPropertyGridProperty(name);
        properties.AddProperty(group);
        const HTREEITEM item = tree.InsertItem(name);
        tree.SetItemData(item, reinterpret_cast<DWORD_PTR>(group));
        return group;
    }

    CTreeCtrl tree;
    CMFCPropertyGridCtrlEx properties;
};

BEGIN_MESSAGE_MAP(SettingsFrame, CFrameWnd)
    ON_NOTIFY(TVN_SELCHANGED, TreeId, &SettingsFrame::OnSelChanged)
    ON_REGISTERED_MESSAGE(AFX_WM_PROPERTY_CHANGED, &SettingsFrame::OnPropertyChanged)
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

FrameApp<SettingsFrame> theApp;
