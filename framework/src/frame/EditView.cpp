// CEditView: the text, the commands of the Edit menu, and searching.
#include "afxext.h"
#include "bars/FrameMessages.h"

IMPLEMENT_DYNCREATE(CEditView, CCtrlView)

const DWORD CEditView::dwStyleDefault = quorfx::defaultViewStyle | WS_HSCROLL | WS_VSCROLL | ES_AUTOHSCROLL |
                                        ES_AUTOVSCROLL | ES_MULTILINE | ES_NOHIDESEL;

BEGIN_MESSAGE_MAP(CEditView, CCtrlView)
    ON_WM_CREATE()
    ON_CONTROL_REFLECT_EX(EN_CHANGE, &CEditView::OnEditChange)
    ON_COMMAND_RANGE(ID_EDIT_CLEAR, ID_EDIT_CUT, &CEditView::OnEditCommand)
    ON_COMMAND_RANGE(ID_EDIT_PASTE, ID_EDIT_PASTE, &CEditView::OnEditCommand)
    ON_COMMAND_RANGE(ID_EDIT_SELECT_ALL, ID_EDIT_UNDO, &CEditView::OnEditCommand)
    ON_UPDATE_COMMAND_UI(ID_EDIT_CUT, &CEditView::OnUpdateNeedsSelection)
    ON_UPDATE_COMMAND_UI(ID_EDIT_COPY, &CEditView::OnUpdateNeedsSelection)
    ON_UPDATE_COMMAND_UI(ID_EDIT_CLEAR, &CEditView::OnUpdateNeedsSelection)
    ON_UPDATE_COMMAND_UI(ID_EDIT_PASTE, &CEditView::OnUpdateNeedsClipboard)
    ON_UPDATE_COMMAND_UI(ID_EDIT_SELECT_ALL, &CEditView::OnUpdateNeedsText)
    ON_UPDATE_COMMAND_UI(ID_EDIT_UNDO, &CEditView::OnUpdateNeedsUndo)
END_MESSAGE_MAP()

namespace
{

constexpr int DefaultTabStops = 8 * 4;

} // namespace

CEditView::CEditView() : CCtrlView(WC_EDIT, dwStyleDefault), m_nTabStops(DefaultTabStops) {}

CEditView::~CEditView() {}

int CEditView::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CCtrlView::OnCreate(lpCreateStruct) == -1)
        return -1;
    // The control's own limit is too low for a document.
    GetEditCtrl().SetLimitText(0);
    SetTabStops(m_nTabStops);
    return 0;
}

CEdit& CEditView::GetEditCtrl() const
{
    return *reinterpret_cast<CEdit*>(const_cast<CEditView*>(this));
}

UINT CEditView::GetBufferLength() const
{
    return static_cast<UINT>(GetWindowTextLength());
}

LPCTSTR CEditView::LockBuffer() const
{
    GetWindowText(m_lockedText);
    return m_lockedText;
}

void CEditView::UnlockBuffer() const
{
    m_lockedText.Empty();
}

void CEditView::GetSelectedText(CString& strResult) const
{
    int first = 0, behind = 0;
    GetEditCtrl().GetSel(first, behind);
    CString text;
    GetWindowText(text);
    text = text.Mid(first, behind - first);
    const int lineEnd = text.FindOneOf(_T("\r\n"));
    strResult = lineEnd < 0 ? text : text.Left(lineEnd);
}

void CEditView::SetTabStops(int nTabStops)
{
    m_nTabStops = nTabStops;
    if (m_hWnd == nullptr)
        return;
    GetEditCtrl().SetTabStops(nTabStops);
    Invalidate();
}

BOOL CEditView::OnEditChange()
{
    if (CDocument* const document = GetDocument())
        document->SetModifiedFlag();
    // The parent may want to know as well.
    return FALSE;
}

void CEditView::OnEditCommand(UINT nID)
{
    CEdit& edit = GetEditCtrl();
    switch (nID)
    {
    case ID_EDIT_CUT:
        edit.Cut();
        break;
    case ID_EDIT_COPY:
        edit.Copy();
        break;
    case ID_EDIT_PASTE:
        edit.Paste();
        break;
    case ID_EDIT_CLEAR:
        edit.Clear();
        break;
    case ID_EDIT_CLEAR_ALL:
        SetWindowText(_T(""));
        break;
    case ID_EDIT_SELECT_ALL:
        edit.SetSel(0, -1);
        break;
    case ID_EDIT_UNDO:
        edit.Undo();
        break;
    }
}

void CEditView::OnUpdateNeedsSelection(CCmdUI* pCmdUI)
{
    int first = 0, behind = 0;
    GetEditCtrl().GetSel(first, behind);
    pCmdUI->Enable(first != behind);
}

void CEditView::OnUpdateNeedsClipboard(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(::IsClipboardFormatAvailable(CF_UNICODETEXT));
}

void CEditView::OnUpdateNeedsText(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(GetWindowTextLength() > 0);
}

void CEditView::OnUpdateNeedsUndo(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(GetEditCtrl().CanUndo());
}

namespace
{

// Where the wanted text stands: the first place from a position on, or the last one that ends before it. -1
// for nowhere.
int FindPlace(const CString& text, const CString& wanted, int first, int behind, bool forward)
{
    if (forward)
        return text.Find(wanted, behind);
    for (int place = first - wanted.GetLength(); place >= 0; --place)
    {
        if (text.Mid(place, wanted.GetLength()) == wanted)
            return place;
    }
    return -1;
}

} // namespace

BOOL CEditView::FindText(LPCTSTR lpszFind, BOOL bNext, BOOL bCase)
{
    CString text, wanted(lpszFind);
    if (wanted.IsEmpty())
        return FALSE;
    GetWindowText(text);
    if (!bCase)
    {
        text.MakeLower();
        wanted.MakeLower();
    }
    int first = 0, behind = 0;
    GetEditCtrl().GetSel(first, behind);
    const int place = FindPlace(text, wanted, first, behind, bNext != FALSE);
    if (place < 0)
        return FALSE;
    GetEditCtrl().SetSel(place, place + wanted.GetLength());
    return TRUE;
}

BOOL CEditView::IsSelected(LPCTSTR lpszText, BOOL bCase) const
{
    int first = 0, behind = 0;
    GetEditCtrl().GetSel(first, behind);
    CString text;
    GetWindowText(text);
    text = text.Mid(first, behind - first);
    return (bCase ? text.Compare(lpszText) : text.CompareNoCase(lpszText)) == 0;
}

void CEditView::OnFindNext(LPCTSTR lpszFind, BOOL bNext, BOOL bCase)
{
    if (!FindText(lpszFind, bNext, bCase))
        OnTextNotFound(lpszFind);
}

// Replaces what was found before, and goes on to the next place.
void CEditView::OnReplaceSel(LPCTSTR lpszFind, BOOL bNext, BOOL bCase, LPCTSTR lpszReplace)
{
    if (IsSelected(lpszFind, bCase))
        GetEditCtrl().ReplaceSel(lpszReplace, TRUE);
    OnFindNext(lpszFind, bNext, bCase);
}

void CEditView::OnReplaceAll(LPCTSTR lpszFind, LPCTSTR lpszReplace, BOOL bCase)
{
    GetEditCtrl().SetSel(0, 0);
    BOOL found = FALSE;
    while (FindText(lpszFind, TRUE, bCase))
    {
        GetEditCtrl().ReplaceSel(lpszReplace, TRUE);
        found = TRUE;
    }
    if (!found)
        OnTextNotFound(lpszFind);
}

void CEditView::OnTextNotFound(LPCTSTR)
{
    ::MessageBeep(MB_OK);
}
