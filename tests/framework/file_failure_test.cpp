// Files: what happens when the system refuses, and how files are shared and opened.
#include "tests/framework/BadArguments.h"
#include "tests/framework/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <io.h>

namespace quor::test
{
namespace
{

// A file whose handle stands for nothing: every operation of the system fails.
class BrokenFile : public CFile
{
public:
    BrokenFile() { m_hFile = reinterpret_cast<HANDLE>(static_cast<UINT_PTR>(0x7ffffff0)); }
    ~BrokenFile() override { m_hFile = hFileNull; }
};

TEST(FileFailure, EveryOperationThrowsWhenTheSystemRefuses)
{
    BrokenFile file;
    char byte = 0;
    CFileStatus status;
    EXPECT_TRUE(Throws<CFileException>([&] { file.Read(&byte, 1); }));
    EXPECT_TRUE(Throws<CFileException>([&] { file.Write(&byte, 1); }));
    EXPECT_TRUE(Throws<CFileException>([&] { file.Flush(); }));
    EXPECT_TRUE(Throws<CFileException>([&] { file.Seek(0, CFile::begin); }));
    EXPECT_TRUE(Throws<CFileException>([&] { file.GetPosition(); }));
    EXPECT_TRUE(Throws<CFileException>([&] { file.GetLength(); }));
    EXPECT_TRUE(Throws<CFileException>([&] { file.SetLength(1); }));
    EXPECT_TRUE(Throws<CFileException>([&] { file.LockRange(0, 1); }));
    EXPECT_TRUE(Throws<CFileException>([&] { file.UnlockRange(0, 1); }));
    EXPECT_TRUE(Throws<CFileException>([&] { delete file.Duplicate(); }));
    EXPECT_FALSE(file.GetStatus(status));
    EXPECT_EQ(file.Read(&byte, 0), 0u) << "nothing is asked for";
    file.Write(&byte, 0);
    EXPECT_EQ(CauseThrownBy([&] { file.Close(); }), CFileException::invalidFile);
    EXPECT_EQ(file.m_hFile, CFile::hFileNull) << "closed even so";
}

TEST(FileFailure, AFileThatMayOnlyBeReadCannotBeCut)
{
    TemporaryFolder folder;
    MakeFile(folder.File(L"a"), "text");
    CFile file(folder.File(L"a"), CFile::modeRead);
    EXPECT_TRUE(Throws<CFileException>([&] { file.SetLength(1); }));
    EXPECT_EQ(CauseThrownBy([&] { file.Write("x", 1); }), CFileException::accessDenied);
    EXPECT_EQ(file.GetLength(), 4u);
}

TEST(FileFailure, ANameThatIsNoneCannotBeOpened)
{
    CFile file;
    CFileException error;
    EXPECT_FALSE(file.Open(L"", CFile::modeRead, &error));
    EXPECT_NE(error.m_cause, CFileException::none);
    EXPECT_FALSE(file.Open(L"", CFile::modeRead)) << "without a place for the reason";
    EXPECT_TRUE(RefusesArguments([&] { file.Open(nullptr, CFile::modeRead); }));
    EXPECT_TRUE(Throws<CFileException>([&] { const CFile none(L"", CFile::modeRead); }));
    EXPECT_EQ(file.m_hFile, CFile::hFileNull);
}

TEST(FileFailure, NoStatusOfAFileThatIsNotThere)
{
    TemporaryFolder folder;
    CFileStatus status;
    EXPECT_FALSE(CFile::GetStatus(folder.File(L"nowhere"), status));
    EXPECT_EQ(CauseThrownBy([&] { CFile::SetStatus(folder.File(L"nowhere"), status); }),
              CFileException::fileNotFound);
    CFile closed;
    EXPECT_TRUE(closed.GetStatus(status));
    EXPECT_STREQ(status.m_szFullName, L"");
    EXPECT_EQ(status.m_size, 0);
}

TEST(FileOpening, EveryWayToShareIsAsked)
{
    TemporaryFolder folder;
    MakeFile(folder.File(L"a"), "text");
    const auto canOpen = [&](UINT flags) {
        CFile second;
        return second.Open(folder.File(L"a"), flags | CFile::shareDenyNone);
    };
    {
        CFile first(folder.File(L"a"), CFile::modeWrite | CFile::shareDenyRead);
        EXPECT_FALSE(canOpen(CFile::modeRead));
        EXPECT_TRUE(canOpen(CFile::modeWrite));
    }
    {
        CFile first(folder.File(L"a"), CFile::modeRead | CFile::shareDenyWrite);
        EXPECT_TRUE(canOpen(CFile::modeRead));
        EXPECT_FALSE(canOpen(CFile::modeWrite));
    }
    {
        CFile first(folder.File(L"a"), CFile::modeRead | CFile::shareExclusive);
        EXPECT_FALSE(canOpen(CFile::modeRead));
    }
    CFile first(folder.File(L"a"), CFile::modeRead | CFile::shareDenyNone);
    EXPECT_TRUE(canOpen(CFile::modeReadWrite));
}

TEST(FileOpening, TheHintsForTheSystemChangeNoContent)
{
    TemporaryFolder folder;
    {
        CFile file(folder.File(L"a"),
                   CFile::modeCreate | CFile::modeReadWrite | CFile::osWriteThrough | CFile::osRandomAccess);
        file.Write("text", 4);
        file.SeekToBegin();
        char read[4] = {};
        EXPECT_EQ(file.Read(read, 4), 4u);
        EXPECT_EQ(std::string(read, 4), "text");
    }
    CFile sequential(folder.File(L"a"), CFile::modeRead | CFile::osSequentialScan);
    EXPECT_EQ(sequential.GetLength(), 4u);
    sequential.Close();
    CFile unbuffered(folder.File(L"a"), CFile::modeRead | CFile::osNoBuffer);
    EXPECT_EQ(unbuffered.GetLength(), 4u);
    EXPECT_TRUE(unbuffered.IsKindOf(RUNTIME_CLASS(CFile)));
}

TEST(FileOpening, TheHandleIsInheritedUnlessItIsRefused)
{
    TemporaryFolder folder;
    MakeFile(folder.File(L"a"), "text");
    DWORD flags = 0;
    const CFile inherited(folder.File(L"a"), CFile::modeRead | CFile::shareDenyNone);
    EXPECT_TRUE(::GetHandleInformation(inherited.m_hFile, &flags) && (flags & HANDLE_FLAG_INHERIT) != 0);
    const CFile own(folder.File(L"a"), CFile::modeRead | CFile::shareDenyNone | CFile::modeNoInherit);
    EXPECT_TRUE(::GetHandleInformation(own.m_hFile, &flags) && (flags & HANDLE_FLAG_INHERIT) == 0);
}

TEST(FileOpening, AbortClosesWithoutAWord)
{
    TemporaryFolder folder;
    CFile file(folder.File(L"a"), CFile::modeCreate | CFile::modeWrite);
    file.Abort();
    EXPECT_EQ(file.m_hFile, CFile::hFileNull);
    EXPECT_TRUE(file.GetFilePath().IsEmpty());
    EXPECT_TRUE(file.GetFileTitle().IsEmpty());
    file.Abort();
    EXPECT_TRUE(::DeleteFile(folder.File(L"a"))) << "nobody has it open";
}

TEST(StdioFileFailure, WhatCannotBeReadOrWrittenThrows)
{
    TemporaryFolder folder;
    MakeFile(folder.File(L"a"), "text");
    CStdioFile reader(folder.File(L"a"), CFile::modeRead | CFile::typeText);
    EXPECT_EQ(CauseThrownBy([&] {
                  reader.WriteString(L"x");
                  reader.Flush();
              }),
              CFileException::diskFull);
    EXPECT_EQ(CauseThrownBy([&] { reader.Write("x", 1); }), CFileException::diskFull);
    EXPECT_TRUE(RefusesArguments([&] { reader.WriteString(nullptr); }));
    wchar_t text[8] = L"";
    EXPECT_TRUE(RefusesArguments([&] { reader.ReadString(nullptr, 8); }));
    EXPECT_TRUE(RefusesArguments([&] { reader.ReadString(text, 0); }));
    EXPECT_EQ(CauseThrownBy([&] { reader.Seek(-1, CFile::begin); }), CFileException::badSeek);
    EXPECT_TRUE(Throws<CNotSupportedException>([&] { reader.LockRange(0, 1); }));
    EXPECT_TRUE(Throws<CNotSupportedException>([&] { reader.UnlockRange(0, 1); }));
}

TEST(StdioFileFailure, AStreamWithoutItsFileThrows)
{
    TemporaryFolder folder;
    MakeFile(folder.File(L"a"), "text");
    CStdioFile file(folder.File(L"a"), CFile::modeReadWrite | CFile::typeText);
    _close(_fileno(file.m_pStream));
    wchar_t text[8] = L"";
    char bytes[4] = {};
    EXPECT_EQ(CauseThrownBy([&] { file.ReadString(text, 8); }), CFileException::genericException);
    EXPECT_EQ(CauseThrownBy([&] { file.Read(bytes, 4); }), CFileException::genericException);
    EXPECT_TRUE(Throws<CFileException>([&] { file.GetPosition(); }));
    EXPECT_TRUE(Throws<CFileException>([&] { file.GetLength(); }));
    EXPECT_EQ(CauseThrownBy([&] { file.Close(); }), CFileException::diskFull);
    EXPECT_EQ(file.m_pStream, nullptr) << "closed even so";
}

TEST(StdioFileFailure, AbortClosesTheStream)
{
    TemporaryFolder folder;
    CStdioFile file(folder.File(L"a"), CFile::modeCreate | CFile::modeWrite | CFile::typeBinary);
    file.Write("text", 4);
    file.Abort();
    EXPECT_EQ(file.m_pStream, nullptr);
    EXPECT_EQ(file.m_hFile, CFile::hFileNull);
    EXPECT_TRUE(::DeleteFile(folder.File(L"a"))) << "nobody has it open";
    file.Abort();
}

TEST(StdioFileFailure, AbortLeavesAStreamOfSomebodyElse)
{
    TemporaryFolder folder;
    FILE* const stream = _wfopen(folder.File(L"a"), L"w");
    ASSERT_NE(stream, nullptr);
    {
        CStdioFile file(stream);
        file.WriteString(L"line\n");
        file.Flush();
    }
    EXPECT_GT(std::fputs("more", stream), -1);
    std::fclose(stream);
    EXPECT_EQ(BytesOf(folder.File(L"a")), "line\r\nmore");
}

TEST(StdioFileOpening, TakesATransactionThatIsNone)
{
    TemporaryFolder folder;
    CStdioFile file(static_cast<CAtlTransactionManager*>(nullptr));
    EXPECT_TRUE(file.IsKindOf(RUNTIME_CLASS(CStdioFile)));
    EXPECT_EQ(file.m_pStream, nullptr);
    CFileException error;
    EXPECT_FALSE(file.Open(folder.File(L"nowhere"), CFile::modeRead, nullptr, &error));
    EXPECT_EQ(error.m_cause, CFileException::fileNotFound);
    EXPECT_EQ(CauseThrownBy([&] { const CStdioFile none(folder.File(L"nowhere"), CFile::modeRead); }),
              CFileException::fileNotFound);
    EXPECT_TRUE(file.Open(folder.File(L"a"), CFile::modeCreate | CFile::modeReadWrite | CFile::modeNoInherit,
                          &error));
    file.WriteString(L"one\ntwo");
    file.SeekToBegin();
    CString line;
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_STREQ(line, L"one");
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_STREQ(line, L"two");
    EXPECT_FALSE(file.ReadString(line));
    file.Close();
}

TEST(MemFileLimits, AbortFreesAndForgets)
{
    CMemFile file;
    file.Write("text", 4);
    file.Abort();
    EXPECT_EQ(file.GetLength(), 0u);
    EXPECT_EQ(file.GetPosition(), 0u);
    EXPECT_TRUE(file.IsKindOf(RUNTIME_CLASS(CMemFile)));
}

TEST(MemFileLimits, ItsBufferIsGivenToWhoeverWantsToReadOrWriteInPlace)
{
    CMemFile file;
    file.Write("abcdef", 6);
    file.SeekToBegin();
    void* start = nullptr;
    void* end = nullptr;
    EXPECT_EQ(file.GetBufferPtr(CFile::bufferCheck), static_cast<UINT>(CFile::bufferDirect));
    EXPECT_EQ(file.GetBufferPtr(CFile::bufferRead, 4, &start, &end), 4u);
    EXPECT_EQ(std::string(static_cast<char*>(start), static_cast<char*>(end)), "abcd");
    EXPECT_EQ(file.GetBufferPtr(CFile::bufferRead, 4, &start, &end), 2u) << "no more than there is";
    EXPECT_EQ(file.GetBufferPtr(CFile::bufferRead, 4, &start, &end), 0u);
    EXPECT_EQ(file.GetBufferPtr(CFile::bufferWrite, 3, &start, &end), 3u);
    std::memcpy(start, "ghi", 3);
    EXPECT_EQ(file.GetLength(), 6u) << "not yet written";
    file.GetBufferPtr(CFile::bufferCommit, 3);
    EXPECT_EQ(file.GetLength(), 9u);
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { file.GetBufferPtr(77, 1, &start, &end); }));
    EXPECT_TRUE(RefusesArguments([&] { file.GetBufferPtr(CFile::bufferRead, 1, nullptr, nullptr); }));
}

TEST(MemFileLimits, ASubclassThatHasNoMemoryLeavesTheContent)
{
    class Poor : public CMemFile
    {
    public:
        bool m_isPoor = false;

    protected:
        BYTE* Realloc(BYTE* block, SIZE_T size) override
        {
            return m_isPoor ? nullptr : CMemFile::Realloc(block, size);
        }
    };
    Poor file;
    file.Write("text", 4);
    file.m_isPoor = true;
    const std::string more(5000, 'x');
    EXPECT_TRUE(Throws<CMemoryException>([&] { file.Write(more.data(), 5000); }));
    EXPECT_EQ(file.GetLength(), 4u);
    EXPECT_TRUE(Throws<CMemoryException>([&] { file.SetLength(static_cast<ULONGLONG>(-1) / 2); }));
}

} // namespace
} // namespace quor::test
