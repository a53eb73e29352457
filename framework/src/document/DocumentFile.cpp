// CDocument: reading and writing its file.
#include "document/DocumentSupport.h"
#include "document/FilePrompt.h"
#include "document/MirrorFile.h"
#include "fx/archive.h"

namespace
{

// A document that is just being read or written, as an archive.
class DocumentArchive
{
public:
    DocumentArchive(CDocument& document, CFile& file, CArchive::Mode mode)
        : m_archive(&file, static_cast<UINT>(mode) | CArchive::bNoFlushOnDelete)
    {
        m_archive.m_pDocument = &document;
    }
    void Serialize()
    {
        const CWaitCursor wait;
        m_archive.m_pDocument->Serialize(m_archive);
        m_archive.Close();
    }

private:
    CArchive m_archive;
};

// The text for the cause of a file exception; 0 when it says nothing.
UINT TextOfCause(const CFileException& exception, bool saving)
{
    switch (exception.m_cause)
    {
    case CFileException::fileNotFound:
    case CFileException::badPath:
        return AFX_IDP_FAILED_INVALID_PATH;
    case CFileException::diskFull:
    case CFileException::directoryFull:
        return AFX_IDP_FAILED_DISK_FULL;
    case CFileException::accessDenied:
    case CFileException::sharingViolation:
    case CFileException::lockViolation:
        return saving ? AFX_IDP_FAILED_ACCESS_WRITE : AFX_IDP_FAILED_ACCESS_READ;
    case CFileException::badSeek:
    case CFileException::tooManyOpenFiles:
    case CFileException::invalidFile:
    case CFileException::hardIO:
        return saving ? AFX_IDP_FAILED_IO_ERROR_WRITE : AFX_IDP_FAILED_IO_ERROR_READ;
    default:
        return 0;
    }
}

UINT TextOfException(CException* exception, bool saving)
{
    if (exception == nullptr)
        return 0;
    if (exception->IsKindOf(RUNTIME_CLASS(CArchiveException)))
        return saving ? AFX_IDP_FAILED_IO_ERROR_WRITE : AFX_IDP_FAILED_INVALID_FORMAT;
    CFileException* const fileException = DYNAMIC_DOWNCAST(CFileException, exception);
    return fileException != nullptr ? TextOfCause(*fileException, saving) : 0;
}

} // namespace

BOOL CDocument::OnNewDocument()
{
    DeleteContents();
    m_strPathName.Empty();
    SetModifiedFlag(FALSE);
    return TRUE;
}

CFile* CDocument::GetFile(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError)
{
    CFile* const file = new quorfx::MirrorFile;
    if (file->Open(lpszFileName, nOpenFlags, pError))
        return file;
    delete file;
    return nullptr;
}

void CDocument::ReleaseFile(CFile* pFile, BOOL bAbort)
{
    if (bAbort)
        pFile->Abort();
    else
        pFile->Close();
    delete pFile;
}

BOOL CDocument::OnOpenDocument(LPCTSTR lpszPathName)
{
    CFileException error;
    CFile* const file = GetFile(lpszPathName, CFile::modeRead | CFile::shareDenyWrite, &error);
    if (file == nullptr)
    {
        ReportSaveLoadException(lpszPathName, &error, FALSE, AFX_IDP_FAILED_TO_OPEN_DOC);
        return FALSE;
    }
    DeleteContents();
    // Until it has been read, nobody may take the document for what is in the file.
    SetModifiedFlag();
    try
    {
        DocumentArchive archive(*this, *file, CArchive::load);
        if (file->GetLength() != 0)
            archive.Serialize();
        ReleaseFile(file, FALSE);
    }
    catch (CException* exception)
    {
        ReleaseFile(file, TRUE);
        DeleteContents();
        ReportSaveLoadException(lpszPathName, exception, FALSE, AFX_IDP_FAILED_TO_OPEN_DOC);
        exception->Delete();
        return FALSE;
    }
    SetModifiedFlag(FALSE);
    return TRUE;
}

BOOL CDocument::OnSaveDocument(LPCTSTR lpszPathName)
{
    CFileException error;
    CFile* file =
        GetFile(lpszPathName, CFile::modeCreate | CFile::modeReadWrite | CFile::shareExclusive, &error);
    if (file == nullptr)
    {
        ReportSaveLoadException(lpszPathName, &error, TRUE, AFX_IDP_INVALID_FILENAME);
        return FALSE;
    }
    try
    {
        DocumentArchive archive(*this, *file, CArchive::store);
        archive.Serialize();
        ReleaseFile(file, FALSE);
    }
    catch (CException* exception)
    {
        ReleaseFile(file, TRUE);
        ReportSaveLoadException(lpszPathName, exception, TRUE, AFX_IDP_FAILED_TO_SAVE_DOC);
        exception->Delete();
        return FALSE;
    }
    SetModifiedFlag(FALSE);
    return TRUE;
}

void CDocument::ReportSaveLoadException(LPCTSTR lpszPathName, CException* e, BOOL bSaving, UINT nIDPDefault)
{
    // Whoever throws a CUserException has told the user.
    if (e != nullptr && e->IsKindOf(RUNTIME_CLASS(CUserException)))
        return;
    const UINT specific = TextOfException(e, bSaving != FALSE);
    CString text;
    AfxFormatString1(text, specific != 0 ? specific : nIDPDefault, lpszPathName);
    AfxMessageBox(text, MB_ICONEXCLAMATION, specific != 0 ? specific : nIDPDefault);
}

// The file's own name, or one made from the title: up to the first character that no file name may have.
CString CDocument::ProposedFileName() const
{
    if (!m_strPathName.IsEmpty())
        return m_strPathName;
    CString name = m_strTitle;
    const int bad = name.FindOneOf(_T(" #%;/\\:*?\"<>|"));
    if (bad >= 0)
        name = name.Left(bad);
    CString extension;
    if (m_pDocTemplate != nullptr && m_pDocTemplate->GetDocString(extension, CDocTemplate::filterExt))
        name += extension;
    return name;
}

// Asks for a name when the path is NULL. false when the user cancels or the file cannot be written.
bool CDocument::SaveUnder(LPCTSTR path)
{
    CString name(path);
    if (name.IsEmpty())
    {
        name = ProposedFileName();
        if (!quorfx::PromptForFile(name, AFX_IDS_SAVEFILE, OFN_HIDEREADONLY | OFN_PATHMUSTEXIST, false,
                                   m_pDocTemplate))
            return false;
    }
    const CWaitCursor wait;
    if (!OnSaveDocument(name))
        return false;
    SetPathName(name);
    return true;
}

// A read-only file is saved under another name.
bool CDocument::SaveInPlace()
{
    const DWORD attributes = ::GetFileAttributes(m_strPathName);
    const bool isReadOnly = attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY);
    return SaveUnder(m_strPathName.IsEmpty() || isReadOnly ? nullptr : m_strPathName.GetString());
}

void CDocument::OnFileSave()
{
    SaveInPlace();
}

void CDocument::OnFileSaveAs()
{
    SaveUnder(nullptr);
}
