// FrameApp: the application of a recipe, which shows one frame window.
#pragma once

#include <afxwin.h>

template <class Frame> class FrameApp : public CWinApp
{
    // The frame deletes itself with its window, with which the program ends.
    BOOL InitInstance() override
    {
        CWinApp::InitInstance();
        m_pMainWnd = new Frame;
        m_pMainWnd->ShowWindow(m_nCmdShow);
        return TRUE;
    }
};
