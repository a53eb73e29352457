// The device contexts that a window lends: for painting, for its client area, and for the whole window.
#pragma once

// The device context of WM_PAINT: BeginPaint in the constructor, EndPaint in the destructor. The constructors
// of this file throw CResourceException when there is no device context.
class QFX_API CPaintDC : public CDC
{
    DECLARE_DYNAMIC(CPaintDC)
public:
    explicit CPaintDC(CWnd* pWnd);
    virtual ~CPaintDC();

    // What BeginPaint reported, with the update rectangle in client coordinates.
    PAINTSTRUCT m_ps;

protected:
    HWND m_hWnd;
};

// The device context of a window's client area, or of the screen when pWnd is NULL.
class QFX_API CClientDC : public CDC
{
    DECLARE_DYNAMIC(CClientDC)
public:
    explicit CClientDC(CWnd* pWnd);
    virtual ~CClientDC();

protected:
    HWND m_hWnd;
};

// The device context of a whole window with its frame, or of the screen when pWnd is NULL.
class QFX_API CWindowDC : public CDC
{
    DECLARE_DYNAMIC(CWindowDC)
public:
    explicit CWindowDC(CWnd* pWnd);
    virtual ~CWindowDC();

protected:
    HWND m_hWnd;
};
