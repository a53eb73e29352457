// CButton: notes and split buttons.
#include "controls/CommonControls.h"

CString CButton::GetNote() const
{
    CString note;
    UINT size = GetNoteLength() + 1;
    GetNote(note.GetBuffer(static_cast<int>(size)), &size);
    note.ReleaseBuffer();
    return note;
}

namespace
{

BUTTON_SPLITINFO SplitInfo(UINT mask)
{
    BUTTON_SPLITINFO info = {};
    info.mask = mask;
    return info;
}

} // namespace

UINT CButton::GetSplitStyle() const
{
    BUTTON_SPLITINFO info = SplitInfo(BCSIF_STYLE);
    return GetSplitInfo(&info) ? info.uSplitStyle : 0;
}

BOOL CButton::SetSplitStyle(UINT uSplitStyle)
{
    BUTTON_SPLITINFO info = SplitInfo(BCSIF_STYLE);
    info.uSplitStyle = uSplitStyle;
    return SetSplitInfo(&info);
}

BOOL CButton::GetSplitSize(LPSIZE pSize) const
{
    BUTTON_SPLITINFO info = SplitInfo(BCSIF_SIZE);
    if (!GetSplitInfo(&info))
        return FALSE;
    *pSize = info.size;
    return TRUE;
}

BOOL CButton::SetSplitSize(LPSIZE pSize)
{
    BUTTON_SPLITINFO info = SplitInfo(BCSIF_SIZE);
    info.size = *pSize;
    return SetSplitInfo(&info);
}

// The glyph and the image list share a member: a character stands where the handle would.
TCHAR CButton::GetSplitGlyph() const
{
    BUTTON_SPLITINFO info = SplitInfo(BCSIF_GLYPH);
    return GetSplitInfo(&info) ? static_cast<TCHAR>(reinterpret_cast<UINT_PTR>(info.himlGlyph)) : _T('\0');
}

BOOL CButton::SetSplitGlyph(TCHAR chGlyph)
{
    BUTTON_SPLITINFO info = SplitInfo(BCSIF_GLYPH);
    info.himlGlyph = reinterpret_cast<HIMAGELIST>(static_cast<UINT_PTR>(chGlyph));
    return SetSplitInfo(&info);
}

CImageList* CButton::GetSplitImageList() const
{
    BUTTON_SPLITINFO info = SplitInfo(BCSIF_IMAGE);
    return GetSplitInfo(&info) ? CImageList::FromHandle(info.himlGlyph) : nullptr;
}

BOOL CButton::SetSplitImageList(CImageList* pSplitImageList)
{
    BUTTON_SPLITINFO info = SplitInfo(BCSIF_IMAGE);
    info.himlGlyph = pSplitImageList->GetSafeHandle();
    return SetSplitInfo(&info);
}
