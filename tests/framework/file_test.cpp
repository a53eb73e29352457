// CFile: opening, reading, writing, seeking, names, and the operations on closed files.
#include "tests/framework/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

constexpr UINT kCreate = CFile::modeCreate | CFile::modeReadWrite;

TEST(File, WhatIsWritten_IsReadBack)
{
    TemporaryFolder folder;
    CFile file(folder.File(_T("a.bin")), kCreate);
    file.Write("one\r\ntwo\0three", 14);
    EXPECT_EQ(14u, file.GetLength());
    EXPECT_EQ(14u, file.GetPosition());
    file.SeekToBegin();
    char bytes[20] = {};
    EXPECT_EQ(14u, file.Read(bytes, 20));
    EXPECT_EQ(0, std::memcmp(bytes, "one\r\ntwo\0three", 14));
    EXPECT_EQ(0u, file.Read(bytes, 20));
}

TEST(File, SeekCountsFromBeginCurrentAndEnd)
{
    TemporaryFolder folder;
    CFile file(folder.File(_T("a.bin")), kCreate);
    file.Write("0123456789", 10);
    EXPECT_EQ(3u, file.Seek(3, CFile::begin));
    EXPECT_EQ(5u, file.Seek(2, CFile::current));
    EXPECT_EQ(6u, file.Seek(-4, CFile::end));
    EXPECT_EQ(10u, file.SeekToEnd());
    EXPECT_EQ(15u, file.Seek(15, CFile::begin)) << "behind the end";
    EXPECT_EQ(10u, file.GetLength());
    EXPECT_EQ(CFileException::badSeek, CauseThrownBy([&] { file.Seek(-1, CFile::begin); }));
}

TEST(File, LengthsAndPositionsHave64Bits)
{
    TemporaryFolder folder;
    CFile file(folder.File(_T("sparse.bin")), kCreate);
    const ULONGLONG distant = 0x1'0000'0010ULL;
    EXPECT_EQ(distant, file.Seek(static_cast<LONGLONG>(distant), CFile::begin));
    EXPECT_EQ(distant, file.GetPosition());
}

TEST(File, SetLengthCutsExtendsAndMovesToTheEnd)
{
    TemporaryFolder folder;
    CFile file(folder.File(_T("a.bin")), kCreate);
    file.Write("0123456789", 10);
    file.SetLength(4);
    EXPECT_EQ(4u, file.GetLength());
    EXPECT_EQ(4u, file.GetPosition());
    file.SetLength(6);
    EXPECT_EQ(6u, file.GetPosition());
    file.Close();
    EXPECT_EQ(std::string("0123\0\0", 6), BytesOf(folder.File(_T("a.bin"))));
}

TEST(File, ModeCreateCutsAnExistingFileUnlessNoTruncate)
{
    TemporaryFolder folder;
    const CString path = folder.File(_T("a.txt"));
    MakeFile(path, "content");
    {
        CFile kept(path, kCreate | CFile::modeNoTruncate);
        EXPECT_EQ(7u, kept.GetLength());
    }
    CFile cut(path, kCreate);
    EXPECT_EQ(0u, cut.GetLength());
    CFile fresh(folder.File(_T("new.txt")), kCreate | CFile::modeNoTruncate);
    EXPECT_EQ(0u, fresh.GetLength());
}

TEST(File, OpenSaysWhyItFailed)
{
    TemporaryFolder folder;
    const CString path = folder.File(_T("missing.txt"));
    CFile file;
    CFileException error;
    EXPECT_FALSE(file.Open(path, CFile::modeRead, &error));
    EXPECT_EQ(CFileException::fileNotFound, error.m_cause);
    EXPECT_EQ(ERROR_FILE_NOT_FOUND, error.m_lOsError);
    EXPECT_STREQ(path, error.m_strFileName);
    EXPECT_EQ(CFile::hFileNull, file.m_hFile);
    EXPECT_FALSE(file.Open(folder.File(_T("no\\such.txt")), CFile::modeRead, &error));
    EXPECT_EQ(CFileException::badPath, error.m_cause);
    EXPECT_FALSE(file.Open(path, CFile::modeRead));
}

TEST(File, TheConstructorThrowsWhenItCannotOpen)
{
    TemporaryFolder folder;
    EXPECT_EQ(CFileException::fileNotFound,
              CauseThrownBy([&] { CFile file(folder.File(_T("missing.txt")), CFile::modeRead); }));
}

TEST(File, ExclusiveUnlessSharingIsAskedFor)
{
    TemporaryFolder folder;
    const CString path = folder.File(_T("a.txt"));
    CFileException error;
    {
        CFile alone(path, CFile::modeCreate | CFile::modeWrite);
        CFile second;
        EXPECT_FALSE(second.Open(path, CFile::modeRead | CFile::shareDenyNone, &error));
        EXPECT_EQ(CFileException::sharingViolation, error.m_cause);
    }
    CFile reader(path, CFile::modeRead | CFile::shareDenyWrite);
    CFile second;
    EXPECT_FALSE(second.Open(path, CFile::modeWrite | CFile::shareDenyNone, &error));
    EXPECT_TRUE(second.Open(path, CFile::modeRead | CFile::shareDenyNone, &error));
}

TEST(File, WritingToAFileOpenedForReading_IsDenied)
{
    TemporaryFolder folder;
    const CString path = folder.File(_T("a.txt"));
    MakeFile(path, "content");
    CFile file(path, CFile::modeRead);
    EXPECT_EQ(CFileException::accessDenied, CauseThrownBy([&] { file.Write("x", 1); }));
}

TEST(File, NamesAreThoseOfTheFullPath)
{
    TemporaryFolder folder;
    CFile file;
    EXPECT_TRUE(file.GetFilePath().IsEmpty());
    EXPECT_TRUE(file.GetFileName().IsEmpty());
    EXPECT_TRUE(file.GetFileTitle().IsEmpty());
    file.Open(folder.Path() + _T("\\.\\letter.wri"), kCreate);
    EXPECT_STREQ(folder.File(_T("letter.wri")), file.GetFilePath());
    EXPECT_STREQ(_T("letter.wri"), file.GetFileName());
    EXPECT_EQ(0, file.GetFileTitle().Find(_T("letter")));
    file.Close();
    EXPECT_TRUE(file.GetFilePath().IsEmpty());
    file.SetFilePath(_T("C:\\other\\name.txt"));
    EXPECT_STREQ(_T("C:\\other\\name.txt"), file.GetFilePath());
    EXPECT_STREQ(_T("name.txt"), file.GetFileName());
}

TEST(File, AfterCloseTheObjectOpensAnother)
{
    TemporaryFolder folder;
    CFile file(folder.File(_T("a.txt")), kCreate);
    file.Close();
    EXPECT_EQ(CFile::hFileNull, file.m_hFile);
    EXPECT_TRUE(file.Open(folder.File(_T("b.txt")), kCreate));
    file.Abort();
    EXPECT_EQ(CFile::hFileNull, file.m_hFile);
    EXPECT_TRUE(file.Open(folder.File(_T("a.txt")), CFile::modeRead));
}

TEST(File, AHandleOfTheCallerStaysOpen)
{
    TemporaryFolder folder;
    const HANDLE handle = ::CreateFile(folder.File(_T("a.txt")), GENERIC_WRITE, 0, NULL, CREATE_NEW, 0, NULL);
    {
        CFile file(handle);
        EXPECT_EQ(handle, static_cast<HANDLE>(file));
        file.Write("abc", 3);
    }
    LARGE_INTEGER size;
    EXPECT_TRUE(::GetFileSizeEx(handle, &size));
    EXPECT_EQ(3, size.QuadPart);
    ::CloseHandle(handle);
}

TEST(File, ADuplicateSharesTheFilePointer)
{
    TemporaryFolder folder;
    CFile file(folder.File(_T("a.txt")), kCreate);
    file.Write("abcdef", 6);
    CFile* copy = file.Duplicate();
    EXPECT_NE(file.m_hFile, copy->m_hFile);
    EXPECT_STREQ(file.GetFilePath(), copy->GetFilePath());
    copy->Seek(2, CFile::begin);
    EXPECT_EQ(2u, file.GetPosition());
    delete copy;
    EXPECT_EQ(6u, file.GetLength()) << "the original is still open";
}

TEST(File, ALockedRangeIsClosedToOthers)
{
    TemporaryFolder folder;
    const CString path = folder.File(_T("a.txt"));
    MakeFile(path, "0123456789");
    CFile first(path, CFile::modeReadWrite | CFile::shareDenyNone);
    CFile second(path, CFile::modeReadWrite | CFile::shareDenyNone);
    first.LockRange(2, 4);
    EXPECT_EQ(CFileException::lockViolation, CauseThrownBy([&] { second.LockRange(3, 1); }));
    EXPECT_EQ(CFileException::lockViolation, CauseThrownBy([&] { first.UnlockRange(2, 3); }));
    first.UnlockRange(2, 4);
    EXPECT_EQ(-1, CauseThrownBy([&] { second.LockRange(3, 1); }));
}

TEST(File, RenameAndRemoveWorkOnClosedFiles)
{
    TemporaryFolder folder;
    const CString oldPath = folder.File(_T("old.txt")), newPath = folder.File(_T("new.txt"));
    MakeFile(oldPath, "x");
    CFile::Rename(oldPath, newPath);
    EXPECT_EQ("x", BytesOf(newPath));
    EXPECT_EQ(CFileException::fileNotFound, CauseThrownBy([&] { CFile::Rename(oldPath, newPath); }));
    CFile::Remove(newPath);
    EXPECT_EQ(CFileException::fileNotFound, CauseThrownBy([&] { CFile::Remove(newPath); }));
}

TEST(FileStatus, TellsSizeTimesAttributesAndPath)
{
    TemporaryFolder folder;
    const CString path = folder.File(_T("a.txt"));
    const CTime before = CTime::GetCurrentTime() - CTimeSpan(0, 0, 0, 5);
    MakeFile(path, "12345");
    ::SetFileAttributes(path, FILE_ATTRIBUTE_READONLY);
    CFileStatus status;
    ASSERT_TRUE(CFile::GetStatus(folder.Path() + _T("\\.\\a.txt"), status));
    EXPECT_EQ(5u, status.m_size);
    EXPECT_STREQ(path, status.m_szFullName);
    EXPECT_EQ(CFile::readOnly, status.m_attribute & (CFile::readOnly | CFile::directory));
    EXPECT_TRUE(status.m_mtime >= before && status.m_mtime <= CTime::GetCurrentTime() + CTimeSpan(5));
    CFile file(path, CFile::modeRead);
    CFileStatus ofOpenFile;
    ASSERT_TRUE(file.GetStatus(ofOpenFile));
    EXPECT_EQ(5u, ofOpenFile.m_size);
    EXPECT_TRUE(status.m_mtime == ofOpenFile.m_mtime);
    EXPECT_EQ(status.m_attribute, ofOpenFile.m_attribute);
    EXPECT_STREQ(path, ofOpenFile.m_szFullName);
    EXPECT_FALSE(CFile::GetStatus(folder.File(_T("missing.txt")), status));
    ASSERT_TRUE(CFile::GetStatus(folder.Path(), status));
    EXPECT_NE(0, status.m_attribute & CFile::directory);
}

TEST(FileStatus, SetsTimesAndAttributes)
{
    TemporaryFolder folder;
    const CString path = folder.File(_T("a.txt"));
    MakeFile(path, "x");
    CFileStatus status;
    ASSERT_TRUE(CFile::GetStatus(path, status));
    const CTime wanted(2001, 2, 3, 4, 5, 6);
    status.m_mtime = wanted;
    status.m_attribute |= CFile::readOnly;
    CFile::SetStatus(path, status);
    CFileStatus after;
    ASSERT_TRUE(CFile::GetStatus(path, after));
    EXPECT_TRUE(wanted == after.m_mtime);
    EXPECT_NE(0, after.m_attribute & CFile::readOnly);
    // Without a time only the attributes change, also back from read-only.
    status.m_mtime = CTime();
    status.m_attribute = 0;
    CFile::SetStatus(path, status);
    ASSERT_TRUE(CFile::GetStatus(path, after));
    EXPECT_TRUE(wanted == after.m_mtime);
    EXPECT_EQ(0, after.m_attribute & CFile::readOnly);
    EXPECT_EQ(CFileException::fileNotFound,
              CauseThrownBy([&] { CFile::SetStatus(folder.File(_T("missing.txt")), status); }));
}

TEST(FileException, CausesFollowFromErrorCodes)
{
    EXPECT_EQ(CFileException::sharingViolation, CFileException::OsErrorToException(ERROR_SHARING_VIOLATION));
    EXPECT_EQ(CFileException::diskFull, CFileException::OsErrorToException(ERROR_DISK_FULL));
    EXPECT_EQ(CFileException::genericException, CFileException::OsErrorToException(999999));
    EXPECT_EQ(CFileException::fileNotFound, CFileException::ErrnoToException(ENOENT));
    EXPECT_EQ(CFileException::diskFull, CFileException::ErrnoToException(ENOSPC));
    EXPECT_EQ(CFileException::tooManyOpenFiles,
              CauseThrownBy([] { CFileException::ThrowOsError(ERROR_TOO_MANY_OPEN_FILES, _T("x")); }));
    EXPECT_EQ(CFileException::accessDenied, CauseThrownBy([] { CFileException::ThrowErrno(EACCES); }));
}

TEST(FileException, TheMessageNamesTheFile)
{
    TCHAR text[200];
    CFileException known(CFileException::fileNotFound, -1, _T("c:\\data\\x.txt"));
    EXPECT_TRUE(known.GetErrorMessage(text, _countof(text)));
    EXPECT_STREQ(_T("The file \"c:\\data\\x.txt\" was not found."), text);
    CFileException unnamed(CFileException::diskFull);
    EXPECT_TRUE(unnamed.GetErrorMessage(text, _countof(text)));
    EXPECT_STREQ(_T("The file could not be written because the disk is full."), text);
    EXPECT_TRUE(unnamed.GetErrorMessage(text, 9));
    EXPECT_STREQ(_T("The file"), text);
}

} // namespace
} // namespace quor::test
