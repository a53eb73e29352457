// CToolBar: creation, resources, buttons and images.
#include "bars/BarAccess.h"
#include "controls/CommonControls.h"

IMPLEMENT_DYNAMIC(CToolBar, CControlBar)

BEGIN_MESSAGE_MAP(CToolBar, CControlBar)
    ON_WM_NCHITTEST()
    ON_WM_NCPAINT()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_NCCALCSIZE()
    ON_WM_SYSCOLORCHANGE()
END_MESSAGE_MAP()

namespace
{

constexpr int defaultSeparatorWidth = 8;

// What a tool bar resource says.
struct ToolBarResource
{
    CSize imageSize;
    std::vector<UINT> commands;
};

const LPCTSTR toolBarType = MAKEINTRESOURCE(241);

// Reads width and height of an image, the count of the commands, and the commands; false when there is less.
template <class TNumber> bool ReadNumbers(const void* data, DWORD size, ToolBarResource& resource)
{
    const TNumber* const numbers = static_cast<const TNumber*>(data);
    const DWORD count = static_cast<DWORD>(size / sizeof(TNumber));
    if (count < 3 || numbers[2] > count - 3)
        return false;
    resource.imageSize = CSize(static_cast<int>(numbers[0]), static_cast<int>(numbers[1]));
    resource.commands.assign(numbers + 3, numbers + 3 + numbers[2]);
    return true;
}

// The usual resource has 16-bit numbers, and version 1 before them. The resource compiler of the GNU tools
// writes 32-bit numbers without a version.
bool ReadToolBar(const void* data, DWORD size, ToolBarResource& resource)
{
    const WORD* const words = static_cast<const WORD*>(data);
    if (size < 2 * sizeof(WORD))
        return false;
    if (words[1] == 0)
        return ReadNumbers<DWORD>(data, size, resource);
    return words[0] == 1 && ReadNumbers<WORD>(words + 1, size - static_cast<DWORD>(sizeof(WORD)), resource);
}

} // namespace

CToolBar::CToolBar()
    : m_hImages(nullptr), m_hbmImageWell(nullptr), m_nImageWell(0), m_sizeImage(16, 15), m_sizeButton(23, 22)
{
}

CToolBar::~CToolBar()
{
    DestroyWindow();
    FreeImages();
    if (m_hbmImageWell != nullptr)
        ::DeleteObject(m_hbmImageWell);
}

BOOL CToolBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID)
{
    return CreateEx(pParentWnd, 0, dwStyle, CRect(GetBorders()), nID);
}

BOOL CToolBar::CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, CRect rcBorders, UINT nID)
{
    quorfx::EnsureCommonControls();
    SetBorders(&rcBorders);
    const DWORD placedByFrame = CCS_NOPARENTALIGN | CCS_NOMOVEY | CCS_NODIVIDER | CCS_NORESIZE;
    if (!CreateBar(TOOLBARCLASSNAME, dwCtrlStyle | placedByFrame, dwStyle, pParentWnd, nID))
        return FALSE;
    GetToolBarCtrl().SetButtonStructSize(sizeof(TBBUTTON));
    SetSizes(m_sizeButton, m_sizeImage);
    return TRUE;
}

CToolBarCtrl& CToolBar::GetToolBarCtrl() const
{
    return *reinterpret_cast<CToolBarCtrl*>(const_cast<CToolBar*>(this));
}

BOOL CToolBar::LoadToolBar(UINT nIDResource)
{
    return LoadToolBar(MAKEINTRESOURCE(nIDResource));
}

BOOL CToolBar::LoadToolBar(LPCTSTR lpszResourceName)
{
    const HINSTANCE module = AfxFindResourceHandle(lpszResourceName, toolBarType);
    const HRSRC found = ::FindResource(module, lpszResourceName, toolBarType);
    const HGLOBAL loaded = found != nullptr ? ::LoadResource(module, found) : nullptr;
    if (loaded == nullptr)
        return FALSE;
    ToolBarResource resource;
    if (!ReadToolBar(::LockResource(loaded), ::SizeofResource(module, found), resource))
    {
        TRACE(_T("Tool bar: the resource is damaged.\n"));
        return FALSE;
    }
    if (!SetButtons(resource.commands.data(), static_cast<int>(resource.commands.size())))
        return FALSE;
    SetSizes(resource.imageSize + CSize(7, 7), resource.imageSize);
    return LoadBitmap(lpszResourceName);
}

BOOL CToolBar::SetButtons(const UINT* lpIDArray, int nIDCount)
{
    CToolBarCtrl& control = GetToolBarCtrl();
    for (int count = control.GetButtonCount(); count > 0; --count)
        control.DeleteButton(0);
    int image = 0;
    for (int index = 0; index < nIDCount; ++index)
    {
        TBBUTTON button = {};
        button.fsState = TBSTATE_ENABLED;
        button.iString = -1;
        if (lpIDArray != nullptr)
            button.idCommand = static_cast<int>(lpIDArray[index]);
        if (lpIDArray != nullptr && lpIDArray[index] == ID_SEPARATOR)
        {
            button.fsStyle = TBSTYLE_SEP;
            button.iBitmap = defaultSeparatorWidth;
        }
        else if (lpIDArray != nullptr)
        {
            button.fsStyle = TBSTYLE_BUTTON;
            button.iBitmap = image++;
        }
        if (!control.AddButtons(1, &button))
            return FALSE;
    }
    m_nCount = nIDCount;
    return TRUE;
}

void CToolBar::SetSizes(SIZE sizeButton, SIZE sizeImage)
{
    m_sizeButton = sizeButton;
    m_sizeImage = sizeImage;
    if (m_hWnd == nullptr)
        return;
    GetToolBarCtrl().SetBitmapSize(sizeImage);
    GetToolBarCtrl().SetButtonSize(sizeButton);
    if (m_hbmImageWell != nullptr)
        MakeImages();
    Invalidate();
}

void CToolBar::SetHeight(int cyHeight)
{
    m_rectBorders.top = m_rectBorders.bottom = 0;
    CRect around(0, 0, 0, 0);
    CalcInsideRect(around, TRUE);
    const int spare = (std::max)(0, cyHeight + around.Height() - static_cast<int>(m_sizeButton.cy));
    m_rectBorders.top = spare / 2;
    m_rectBorders.bottom = spare - spare / 2;
    if (m_hWnd != nullptr)
        SetWindowPos(nullptr, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

BOOL CToolBar::LoadBitmap(UINT nIDResource)
{
    return LoadBitmap(MAKEINTRESOURCE(nIDResource));
}

BOOL CToolBar::LoadBitmap(LPCTSTR lpszResourceName)
{
    const HINSTANCE module = AfxFindResourceHandle(lpszResourceName, RT_BITMAP);
    const HANDLE bitmap =
        ::LoadImage(module, lpszResourceName, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION | LR_LOADMAP3DCOLORS);
    if (bitmap == nullptr || !SetBitmap(static_cast<HBITMAP>(bitmap)))
        return FALSE;
    m_nImageWell =
        IS_INTRESOURCE(lpszResourceName) ? LOWORD(reinterpret_cast<UINT_PTR>(lpszResourceName)) : 0;
    m_strImageWell = m_nImageWell == 0 ? lpszResourceName : nullptr;
    return TRUE;
}

BOOL CToolBar::SetBitmap(HBITMAP hbmImageWell)
{
    if (m_hbmImageWell != nullptr && m_hbmImageWell != hbmImageWell)
        ::DeleteObject(m_hbmImageWell);
    m_hbmImageWell = hbmImageWell;
    m_nImageWell = 0;
    m_strImageWell.Empty();
    return MakeImages();
}

void CToolBar::FreeImages()
{
    if (m_hWnd != nullptr)
        quorfx::Send(m_hWnd, TB_SETIMAGELIST, 0, 0);
    if (m_hImages != nullptr)
        ::ImageList_Destroy(m_hImages);
    m_hImages = nullptr;
}

namespace
{

// What stands for the background: light grey, which loading turns into the colour of bars in pictures with a
// table of colours.
COLORREF BackgroundOf(const BITMAP& picture)
{
    return picture.bmBitsPixel <= 8 ? ::GetSysColor(COLOR_BTNFACE) : RGB(192, 192, 192);
}

} // namespace

BOOL CToolBar::MakeImages()
{
    FreeImages();
    BITMAP picture = {};
    if (m_hbmImageWell == nullptr || ::GetObject(m_hbmImageWell, sizeof(picture), &picture) == 0)
        return FALSE;
    m_hImages = ::ImageList_Create(m_sizeImage.cx, m_sizeImage.cy, ILC_COLOR24 | ILC_MASK,
                                   picture.bmWidth / (std::max)(m_sizeImage.cx, 1L), 4);
    // The list paints over the picture it gets.
    const HANDLE copy = ::CopyImage(m_hbmImageWell, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION);
    const int first = ::ImageList_AddMasked(m_hImages, static_cast<HBITMAP>(copy), BackgroundOf(picture));
    ::DeleteObject(copy);
    quorfx::Send(m_hWnd, TB_SETIMAGELIST, 0, m_hImages);
    // Setting images makes the control choose its own size of buttons.
    GetToolBarCtrl().SetButtonSize(m_sizeButton);
    return first != -1;
}

void CToolBar::OnSysColorChange()
{
    if (m_nImageWell != 0)
        LoadBitmap(m_nImageWell);
    else if (!m_strImageWell.IsEmpty())
        LoadBitmap(CString(m_strImageWell));
    Default();
}

int CToolBar::CommandToIndex(UINT nIDFind) const
{
    return static_cast<int>(GetToolBarCtrl().CommandToIndex(nIDFind));
}

TBBUTTON CToolBar::ButtonAt(int nIndex) const
{
    TBBUTTON button = {};
    VERIFY(GetToolBarCtrl().GetButton(nIndex, &button));
    // Stored inverted, as in TBBS_DISABLED.
    button.fsState = static_cast<BYTE>(button.fsState ^ TBSTATE_ENABLED);
    return button;
}

void CToolBar::ChangeButton(int nIndex, const TBBUTTON& button)
{
    TBBUTTONINFO info = {};
    info.cbSize = sizeof(info);
    info.dwMask = TBIF_BYINDEX | TBIF_COMMAND | TBIF_IMAGE | TBIF_STATE | TBIF_STYLE;
    info.idCommand = button.idCommand;
    info.iImage = button.iBitmap;
    info.fsState = static_cast<BYTE>(button.fsState ^ TBSTATE_ENABLED);
    info.fsStyle = button.fsStyle;
    if (button.fsStyle & TBSTYLE_SEP)
    {
        // The image of a separator is its width.
        info.dwMask |= TBIF_SIZE;
        info.cx = static_cast<WORD>(button.iBitmap);
    }
    VERIFY(GetToolBarCtrl().SetButtonInfo(nIndex, &info));
}

UINT CToolBar::GetItemID(int nIndex) const
{
    return static_cast<UINT>(ButtonAt(nIndex).idCommand);
}

void CToolBar::GetItemRect(int nIndex, LPRECT lpRect) const
{
    if (!GetToolBarCtrl().GetItemRect(nIndex, lpRect))
        ::SetRectEmpty(lpRect);
}

UINT CToolBar::GetButtonStyle(int nIndex) const
{
    const TBBUTTON button = ButtonAt(nIndex);
    return MAKE_TBBS(button.fsStyle, button.fsState);
}

void CToolBar::SetButtonStyle(int nIndex, UINT nStyle)
{
    TBBUTTON button = ButtonAt(nIndex);
    const BYTE style = LOBYTE(LOWORD(nStyle));
    const BYTE state = LOBYTE(HIWORD(nStyle));
    if (button.fsStyle == style && button.fsState == state)
        return;
    button.fsStyle = style;
    button.fsState = state;
    ChangeButton(nIndex, button);
}

void CToolBar::GetButtonInfo(int nIndex, UINT& nID, UINT& nStyle, int& iImage) const
{
    const TBBUTTON button = ButtonAt(nIndex);
    nID = static_cast<UINT>(button.idCommand);
    nStyle = MAKE_TBBS(button.fsStyle, button.fsState);
    iImage = button.iBitmap;
}

void CToolBar::SetButtonInfo(int nIndex, UINT nID, UINT nStyle, int iImage)
{
    TBBUTTON button = ButtonAt(nIndex);
    button.idCommand = static_cast<int>(nID);
    button.fsStyle = LOBYTE(LOWORD(nStyle));
    button.fsState = LOBYTE(HIWORD(nStyle));
    button.iBitmap = iImage;
    ChangeButton(nIndex, button);
}

BOOL CToolBar::SetButtonText(int nIndex, LPCTSTR lpszText)
{
    TBBUTTONINFO info = {};
    info.cbSize = sizeof(info);
    info.dwMask = TBIF_BYINDEX | TBIF_TEXT;
    info.pszText = const_cast<LPTSTR>(lpszText);
    return GetToolBarCtrl().SetButtonInfo(nIndex, &info);
}

CString CToolBar::GetButtonText(int nIndex) const
{
    return quorfx::ReadText([this, nIndex](LPTSTR buffer, int size) {
        TBBUTTONINFO info = {};
        info.cbSize = sizeof(info);
        info.dwMask = TBIF_BYINDEX | TBIF_TEXT;
        info.pszText = buffer;
        info.cchText = size;
        GetToolBarCtrl().GetButtonInfo(nIndex, &info);
        return buffer;
    });
}

void CToolBar::GetButtonText(int nIndex, CString& rString) const
{
    rString = GetButtonText(nIndex);
}
