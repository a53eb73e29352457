// Document templates: which classes and resources make up a kind of document, and the documents of that kind.
#pragma once

#include "fx/cmdtarget.h"
#include "fx/position.h"
#include "fx/string.h"
#include <vector>

class CDocument;
class CFrameWnd;

// A kind of document. Create it with new and give it to CWinApp::AddDocTemplate, which owns it from then on.
// The string resource of its identifier has seven parts, separated by line breaks: see DocStringIndex.
class QFX_API CDocTemplate : public CCmdTarget
{
    DECLARE_DYNAMIC(CDocTemplate)

protected:
    // The classes are DYNCREATE. The identifier names menu, accelerators, icon and string of the kind.
    CDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                 CRuntimeClass* pViewClass);

public:
    virtual ~CDocTemplate();

    // How well a file fits to a kind of document, the best last.
    enum Confidence
    {
        noAttempt,
        maybeAttemptForeign,
        maybeAttemptNative,
        yesAttemptForeign,
        yesAttemptNative,
        yesAlreadyOpen
    };

    // The parts of the template's string.
    enum DocStringIndex
    {
        windowTitle,    // of the program's window; used with one document only
        docName,        // what new documents are called; a number is added with many documents
        fileNewName,    // in the dialog of ID_FILE_NEW; without it the kind is not offered there
        filterName,     // in the file dialogs, such as "Letters (*.let)"
        filterExt,      // of the files, such as ".let"
        regFileTypeId,  // of the kind in the registry
        regFileTypeName // of the kind in the registry, for people
    };

    // Called when the template is added to the application.
    virtual void LoadTemplate();
    // FALSE, with an empty text, when there is no such part.
    virtual BOOL GetDocString(CString& rString, enum DocStringIndex index) const;

    // The open documents of the kind; the list is in the order of their creation. A template adds and removes
    // its documents itself.
    virtual POSITION GetFirstDocPosition() const = 0;
    virtual CDocument* GetNextDoc(POSITION& rPos) const = 0;
    virtual void AddDocument(CDocument* pDoc);
    virtual void RemoveDocument(CDocument* pDoc);

    // yesAlreadyOpen with the document, yesAttemptNative for the kind's own extension, else
    // yesAttemptForeign.
    virtual Confidence MatchDocType(LPCTSTR lpszPathName, CDocument*& rpDocMatch);
    // A new document of the kind in the list; NULL on failure.
    virtual CDocument* CreateNewDocument();
    // A new frame with a view of the document; not yet visible. pOther is the frame that it resembles, or
    // NULL. NULL on failure.
    virtual CFrameWnd* CreateNewFrame(CDocument* pDoc, CFrameWnd* pOther);
    virtual void InitialUpdateFrame(CFrameWnd* pFrame, CDocument* pDoc, BOOL bMakeVisible = TRUE);
    // Asks the user about every modified document. FALSE when what is going on must stop.
    virtual BOOL SaveAllModified();
    virtual void CloseAllDocuments(BOOL bEndSession);
    // Opens the file, or starts a new document for NULL, and shows it. NULL on failure, of which the user has
    // been told. bAddToMRU enters the file into the list of recently used ones.
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszPathName) = 0;
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU) = 0;
    virtual void SetDefaultTitle(CDocument* pDocument) = 0;

private:
    // A document and, unless one is given, a frame for it, both new. The document is NULL on failure, of
    // which the user has been told.
    CDocument* CreateDocumentAndFrame(CFrameWnd*& frame);
    // Fills the document from the file, or afresh for NULL.
    bool FillDocument(CDocument* document, LPCTSTR path, BOOL addToMRU);

    UINT m_nIDResource;
    CRuntimeClass* m_pDocClass;
    CRuntimeClass* m_pFrameClass;
    CRuntimeClass* m_pViewClass;
    CString m_docStrings;

    friend class CMDIChildWnd;
    friend class CMultiDocTemplate;
    friend class CSingleDocTemplate;
};

// A kind of document of which there is one at a time: opening another one reuses document and frame.
class QFX_API CSingleDocTemplate : public CDocTemplate
{
    DECLARE_DYNAMIC(CSingleDocTemplate)

public:
    CSingleDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                       CRuntimeClass* pViewClass);
    virtual ~CSingleDocTemplate();

    virtual void AddDocument(CDocument* pDoc);
    virtual void RemoveDocument(CDocument* pDoc);
    virtual POSITION GetFirstDocPosition() const;
    virtual CDocument* GetNextDoc(POSITION& rPos) const;
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszPathName);
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU);
    virtual void SetDefaultTitle(CDocument* pDocument);

private:
    CDocument* Reopen(LPCTSTR path, BOOL addToMRU);

    CDocument* m_pOnlyDoc;
};

// A kind of document of which there are many, each in a child frame of the CMDIFrameWnd that is the main
// window.
class QFX_API CMultiDocTemplate : public CDocTemplate
{
    DECLARE_DYNAMIC(CMultiDocTemplate)

public:
    CMultiDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                      CRuntimeClass* pViewClass);
    virtual ~CMultiDocTemplate();

    // Also loads the menu and the accelerators that the frames of the kind share.
    virtual void LoadTemplate();
    virtual void AddDocument(CDocument* pDoc);
    virtual void RemoveDocument(CDocument* pDoc);
    virtual POSITION GetFirstDocPosition() const;
    virtual CDocument* GetNextDoc(POSITION& rPos) const;
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszPathName);
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU);
    virtual void SetDefaultTitle(CDocument* pDocument);

private:
    std::vector<CDocument*> m_documents;
    UINT m_nUntitledCount;
    HMENU m_hMenuShared;
    HACCEL m_hAccelTable;

    friend class CMDIChildWnd;
};
