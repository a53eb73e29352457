// The device contexts that a window lends: taken in the constructor, given back in the destructor.

#include "afxwin.h"

IMPLEMENT_DYNAMIC(CPaintDC, CDC)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)

namespace
{

void AttachOrThrow(CDC& dc, HDC handle)
{
    if (!dc.Attach(handle))
        AfxThrowResourceException();
}

} // namespace

CPaintDC::CPaintDC(CWnd* pWnd) : m_ps(), m_hWnd(pWnd->GetSafeHwnd())
{
    AttachOrThrow(*this, ::BeginPaint(m_hWnd, &m_ps));
}

CPaintDC::~CPaintDC()
{
    ::EndPaint(m_hWnd, &m_ps);
    Detach();
}

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(pWnd->GetSafeHwnd())
{
    AttachOrThrow(*this, ::GetDC(m_hWnd));
}
CClientDC::~CClientDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(pWnd->GetSafeHwnd())
{
    AttachOrThrow(*this, ::GetWindowDC(m_hWnd));
}
CWindowDC::~CWindowDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}
