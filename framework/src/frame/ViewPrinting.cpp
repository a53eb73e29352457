// CView: the functions that programs override to print. See CView::DoPreparePrinting for what becomes of
// them.
#include "fx/printinfo.h"
#include "bars/FrameMessages.h"

CPrintInfo::CPrintInfo()
    : m_pPD(nullptr),
      m_bDocObject(FALSE),
      m_bPreview(FALSE),
      m_bDirect(FALSE),
      m_bContinuePrinting(TRUE),
      m_nCurPage(1),
      m_nNumPreviewPages(0),
      m_lpUserData(nullptr),
      m_rectDraw(0, 0, 0, 0),
      m_nOffsetPage(0),
      m_dwFlags(0),
      m_nJobNumber(0),
      m_nMinPage(1),
      m_nMaxPage(0xffff)
{
}

CPrintInfo::~CPrintInfo() {}

BOOL CView::DoPreparePrinting(CPrintInfo*)
{
    return FALSE;
}

BOOL CView::OnPreparePrinting(CPrintInfo*)
{
    return FALSE;
}

void CView::OnFilePrint()
{
    CPrintInfo info;
    // Without a printer there is nothing that could come after this.
    OnPreparePrinting(&info);
}

void CView::OnFilePrintPreview()
{
    CPrintInfo info;
    info.m_bPreview = TRUE;
    OnPreparePrinting(&info);
}

void CView::OnBeginPrinting(CDC*, CPrintInfo*) {}

void CView::OnPrint(CDC* pDC, CPrintInfo*)
{
    OnDraw(pDC);
}

void CView::OnEndPrinting(CDC*, CPrintInfo*) {}

void CView::OnEndPrintPreview(CDC* pDC, CPrintInfo* pInfo, POINT, CPreviewView*)
{
    OnEndPrinting(pDC, pInfo);
}
