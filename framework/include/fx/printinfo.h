// CPrintInfo: what a view is told about a print job.
#pragma once

#include "fx/config.h"
#include "fx/string.h"
#include "atltypes.h"

class CPrintDialog;

// One print job or preview. The framework does not print (see CView::DoPreparePrinting); the structure lets
// programs that override the printing functions of CView be built.
struct QFX_API CPrintInfo
{
    CPrintInfo();
    ~CPrintInfo();
    CPrintInfo(const CPrintInfo&) = delete;
    CPrintInfo& operator=(const CPrintInfo&) = delete;

    CPrintDialog* m_pPD;      // NULL
    BOOL m_bDocObject;        // printing through the host of an embedded document
    BOOL m_bPreview;          // a preview, not a print
    BOOL m_bDirect;           // without a dialog
    BOOL m_bContinuePrinting; // FALSE ends the job after this page
    UINT m_nCurPage;
    UINT m_nNumPreviewPages; // 1 or 2 side by side
    CString m_strPageDesc;   // the texts for one and for two pages, separated by a line break
    LPVOID m_lpUserData;
    CRect m_rectDraw;   // the usable area of the page
    UINT m_nOffsetPage; // the first page's offset in a document of several parts
    DWORD m_dwFlags;
    int m_nJobNumber;

    // Pages are counted from 1; 0xffff stands for an unknown last one.
    void SetMinPage(UINT nMinPage) { m_nMinPage = nMinPage; }
    void SetMaxPage(UINT nMaxPage) { m_nMaxPage = nMaxPage; }
    UINT GetMinPage() const { return m_nMinPage; }
    UINT GetMaxPage() const { return m_nMaxPage; }
    // The pages that the user chose.
    UINT GetFromPage() const { return m_nMinPage; }
    UINT GetToPage() const { return m_nMaxPage; }
    UINT GetOffsetPage() const { return m_nOffsetPage; }

private:
    UINT m_nMinPage;
    UINT m_nMaxPage;
};
