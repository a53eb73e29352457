// CDocument: data that views show and that is kept in a file.
#pragma once

#include "fx/cmdtarget.h"
#include "fx/position.h"
#include "fx/string.h"
#include <vector>

class CDocTemplate;
class CException;
class CFile;
class CFileException;
class CFrameWnd;
class CView;

// Data that views show: keeps the list of its views, tells them about changes, and is read from and written
// to one file. It owns no view. Handles ID_FILE_CLOSE, ID_FILE_SAVE and ID_FILE_SAVE_AS; commands that it
// does not handle go on to its template.
class QFX_API CDocument : public CCmdTarget
{
    DECLARE_DYNAMIC(CDocument)

public:
    CDocument();
    virtual ~CDocument();

    const CString& GetTitle() const { return m_strTitle; }
    // Also refreshes the titles of the views' frames.
    virtual void SetTitle(LPCTSTR lpszTitle);
    // The full path of the file; empty for a document that has never been saved.
    const CString& GetPathName() const { return m_strPathName; }
    // Makes the path a full one, and takes the title from it. bAddToMRU also enters it into the list of
    // recently used files.
    virtual void SetPathName(LPCTSTR lpszPathName, BOOL bAddToMRU = TRUE);
    virtual void ClearPathName();
    // NULL for a document that no template made.
    CDocTemplate* GetDocTemplate() const { return m_pDocTemplate; }
    virtual BOOL IsModified() { return m_bModified; }
    virtual void SetModifiedFlag(BOOL bModified = TRUE) { m_bModified = bModified; }

    // The views, in the order of their addition. A view belongs to one document at most.
    void AddView(CView* pView);
    void RemoveView(CView* pView);
    virtual POSITION GetFirstViewPosition() const;
    // Returns the view and moves on; rPosition becomes NULL after the last one.
    virtual CView* GetNextView(POSITION& rPosition) const;
    // Calls OnUpdate of every view but the sender.
    void UpdateAllViews(CView* pSender, LPARAM lHint = 0L, CObject* pHint = NULL);

    // Starts a new document: empties it, forgets its path and clears the modified flag. FALSE refuses.
    virtual BOOL OnNewDocument();
    // Empties the document and reads the file through Serialize. On failure the user has been told and the
    // document is empty, or untouched when the file could not be opened.
    virtual BOOL OnOpenDocument(LPCTSTR lpszPathName);
    // Writes the file through Serialize and clears the modified flag. On failure the user has been told, and
    // the file is what it was.
    virtual BOOL OnSaveDocument(LPCTSTR lpszPathName);
    // Called to empty the document.
    virtual void DeleteContents();
    // Called when views came or went. The base closes the document after its last view if m_bAutoDelete is
    // set, and numbers the frames of one document.
    virtual void OnChangedViewList();
    // Destroys the frames of all views and empties the document; deletes it if m_bAutoDelete is set. Asks
    // nobody.
    virtual void OnCloseDocument();

    // Whether the frame may be closed: asks the user to save when it is the last one of the document.
    virtual BOOL CanCloseFrame(CFrameWnd* pFrame);
    // Called before a frame of the document is destroyed. The base does nothing.
    virtual void PreCloseFrame(CFrameWnd* pFrame);
    // Asks whether to save a modified document, and saves it. FALSE when what is going on must stop.
    virtual BOOL SaveModified();
    // Tells the user why reading or writing failed: for the cause in e, else with the string nIDPDefault, in
    // which %1 stands for the path.
    virtual void ReportSaveLoadException(LPCTSTR lpszPathName, CException* e, BOOL bSaving, UINT nIDPDefault);
    // The open file, or NULL with *pError set; to be given back with ReleaseFile, which closes it, or gives
    // up what was written when bAbort is set.
    virtual CFile* GetFile(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError);
    virtual void ReleaseFile(CFile* pFile, BOOL bAbort);

    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

    // TRUE (the default): the document was created with new and goes with its last view.
    BOOL m_bAutoDelete;

protected:
    DECLARE_MESSAGE_MAP()

private:
    friend class CMultiDocTemplate;
    friend class CSingleDocTemplate;

    CString m_strTitle;
    BOOL m_bModified;
    afx_msg void OnFileClose();
    afx_msg void OnFileSave();
    afx_msg void OnFileSaveAs();

    bool SaveUnder(LPCTSTR path);
    bool SaveInPlace();
    CString ProposedFileName() const;
    CFrameWnd* OtherFrame(const CFrameWnd* frame) const;
    void NumberFrames();

    std::vector<CView*> m_views;
    CString m_strPathName;
    CDocTemplate* m_pDocTemplate;

    friend class CDocTemplate;
    friend class CFrameWnd;
};
