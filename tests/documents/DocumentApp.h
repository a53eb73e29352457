// An application with documents, in place of the test program's own.
#pragma once

#include "tests/documents/DocumentsResource.h"
#include "tests/framework/TemporaryFolder.h"
#include "tests/support/Pump.h"

#include <afxext.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quor::test
{

// What documents, views and frames were told, in the order of the calls.
using Log = std::vector<std::string>;
extern Log trace;
Log TakeTrace();

// Text that is written to the file; "broken" cannot be read back, "unwritable" not written.
class LetterDocument : public CDocument
{
    DECLARE_DYNCREATE(LetterDocument)

public:
    static int live;

    LetterDocument() { ++live; }
    ~LetterDocument() override { --live; }

    CString text;

    void Write(LPCTSTR newText)
    {
        text = newText;
        SetModifiedFlag();
        UpdateAllViews(NULL);
    }
    void Serialize(CArchive& archive) override;
    void DeleteContents() override
    {
        text.Empty();
        CDocument::DeleteContents();
    }

protected:
    afx_msg void OnStamp() { trace.push_back("stamp " + std::string(CStringA(GetTitle()))); }

    DECLARE_MESSAGE_MAP()
};

class NoteDocument : public LetterDocument
{
    DECLARE_DYNCREATE(NoteDocument)
};

// A document that never starts.
class RefusingDocument : public CDocument
{
    DECLARE_DYNCREATE(RefusingDocument)

public:
    BOOL OnNewDocument() override { return FALSE; }
};

class LetterView : public CView
{
    DECLARE_DYNCREATE(LetterView)

public:
    int updates = 0;

protected:
    void OnDraw(CDC*) override {}
    void OnUpdate(CView* sender, LPARAM hint, CObject* object) override
    {
        ++updates;
        CView::OnUpdate(sender, hint, object);
    }
    void OnActivateView(BOOL bActivate, CView* activate, CView* deactivate) override
    {
        trace.push_back(bActivate ? "activate view" : "deactivate view");
        CView::OnActivateView(bActivate, activate, deactivate);
    }
};

// A main window for many documents that knows one command.
class SigningFrame : public CMDIFrameWnd
{
protected:
    afx_msg void OnSign() { trace.push_back("sign"); }

    DECLARE_MESSAGE_MAP()
};

class DocumentApp : public CWinApp
{
public:
    // The state is copied as an argument: the constructor of the base changes it.
    DocumentApp() : DocumentApp(AFX_MODULE_STATE(*AfxGetStaticModuleState())) {}
    ~DocumentApp() override { *AfxGetStaticModuleState() = m_before; }

    using CWinApp::LoadStdProfileSettings;
    using CWinApp::RegisterShellFileTypes;
    using CWinApp::SetRegistryKey;
    using CWinApp::UnregisterShellFileTypes;

private:
    explicit DocumentApp(const AFX_MODULE_STATE& before) : CWinApp(L"DocumentApp"), m_before(before)
    {
        m_nCmdShow = SW_SHOWNORMAL;
        SetRegistryKey(L"QuorDocumentTests");
    }

    AFX_MODULE_STATE m_before;
};

std::string Text(const CString& text);
std::string Title(HWND window);
// "Item|Item": the texts of a menu.
std::string Items(HMENU menu);
// Throws away the request to end the message loop that the end of a main window makes.
void ForgetQuit();

} // namespace quor::test
