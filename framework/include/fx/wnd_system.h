// The members of CWnd that few programs need and that only pass a call on to Windows; part of the class.
// There is no guard: fx/wnd.h includes it inside the class.

// ---- Directories in lists: fill a control, and read what is selected; FALSE for a file.
int DlgDirList(LPTSTR lpPathSpec, int nIDListBox, int nIDStaticPath, UINT nFileType);
int DlgDirListComboBox(LPTSTR lpPathSpec, int nIDComboBox, int nIDStaticPath, UINT nFileType);
BOOL DlgDirSelect(LPTSTR lpString, int nIDListBox);
BOOL DlgDirSelectComboBox(LPTSTR lpString, int nIDComboBox);

// ---- The window as a whole.
UINT ArrangeIconicWindows();
void CloseWindow(); // minimises it
BOOL AnimateWindow(DWORD dwTime, DWORD dwFlags);
BOOL DrawAnimatedRects(int idAni, CONST RECT* lprcFrom, CONST RECT* lprcTo);
BOOL DrawCaption(CDC* pDC, LPCRECT lprc, UINT uFlags);
BOOL PrintWindow(CDC* pDC, UINT nFlags) const;
BOOL FlashWindowEx(DWORD dwFlags, UINT uCount, DWORD dwTimeout);
BOOL DragDetect(POINT pt) const;
BOOL HiliteMenuItem(CMenu* pMenu, UINT nIDHiliteItem, UINT nHilite);
// The size members of the structures are filled in.
BOOL GetMenuBarInfo(LONG idObject, LONG idItem, PMENUBARINFO pmbi) const;
BOOL GetScrollBarInfo(LONG idObject, PSCROLLBARINFO psbi) const;
BOOL GetTitleBarInfo(PTITLEBARINFO pti) const;
BOOL GetWindowInfo(PWINDOWINFO pwi) const;
BOOL GetLayeredWindowAttributes(COLORREF* pcrKey, BYTE* pbAlpha, DWORD* pdwFlags) const;
BOOL SetLayeredWindowAttributes(COLORREF crKey, BYTE bAlpha, DWORD dwFlags);
BOOL UpdateLayeredWindow(CDC* pDCDst, POINT* pptDst, SIZE* psize, CDC* pDCSrc, POINT* pptSrc, COLORREF crKey,
                         BLENDFUNCTION* pblend, DWORD dwFlags);
void NotifyWinEvent(DWORD event, LONG idObjectType, LONG idObject);

// ---- The clipboard.
static CWnd* PASCAL GetClipboardOwner();
static CWnd* PASCAL GetClipboardViewer();
static CWnd* PASCAL GetOpenClipboardWindow();
HWND SetClipboardViewer();
BOOL ChangeClipboardChain(HWND hWndNext);
