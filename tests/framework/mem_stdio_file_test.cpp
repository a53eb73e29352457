// CMemFile and CStdioFile: files in memory, and files of lines.
#include "tests/framework/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

TEST(MemFile, GrowsWithWhatIsWritten)
{
    CMemFile file(16);
    for (int i = 0; i < 1000; ++i)
        file.Write(&i, sizeof(i));
    EXPECT_EQ(4000u, file.GetLength());
    EXPECT_EQ(40u, file.Seek(40, CFile::begin));
    int value = 0;
    EXPECT_EQ(4u, file.Read(&value, 4));
    EXPECT_EQ(10, value);
    EXPECT_EQ(3996u, file.Seek(-4, CFile::end));
    int rest[2] = {};
    EXPECT_EQ(4u, file.Read(rest, 8));
    EXPECT_EQ(999, rest[0]);
}

TEST(MemFile, ReadsByteByByte)
{
    CMemFile file;
    file.Write("ab", 2);
    file.SeekToBegin();
    char read = 0;
    EXPECT_EQ(1u, file.Read(&read, 1));
    EXPECT_EQ('a', read);
    EXPECT_EQ(1u, file.Read(&read, 1));
    EXPECT_EQ('b', read);
    EXPECT_EQ(0u, file.Read(&read, 1));
}

TEST(MemFile, AnAttachedBlockThatCannotGrowIsTheContent)
{
    BYTE block[4] = {1, 2, 3, 4};
    CMemFile file(block, 4);
    EXPECT_EQ(4u, file.GetLength());
    BYTE read[4] = {};
    EXPECT_EQ(4u, file.Read(read, 4));
    EXPECT_EQ(3, read[2]);
    file.SeekToBegin();
    file.Write("\x9", 1);
    EXPECT_EQ(9, block[0]);
    file.SeekToEnd();
    EXPECT_TRUE(Throws<CMemoryException>([&] { file.Write("x", 1); }));
    EXPECT_EQ(block, file.Detach());
    EXPECT_EQ(0u, file.GetLength());
}

TEST(MemFile, AnAttachedBlockThatMayGrowBeginsEmpty)
{
    CMemFile file(static_cast<BYTE*>(std::malloc(4)), 4, 4);
    EXPECT_EQ(0u, file.GetLength());
    file.Write("abcdefgh", 8);
    EXPECT_EQ(8u, file.GetLength());
    BYTE* block = file.Detach();
    EXPECT_EQ(0, std::memcmp(block, "abcdefgh", 8));
    std::free(block);
}

TEST(MemFile, BytesSkippedBySeekingAreZero)
{
    CMemFile file;
    file.Write("a", 1);
    file.Seek(4, CFile::begin);
    EXPECT_EQ(1u, file.GetLength());
    file.Write("b", 1);
    file.SeekToBegin();
    char bytes[5] = {};
    EXPECT_EQ(5u, file.Read(bytes, 5));
    EXPECT_EQ(std::string("a\0\0\0b", 5), std::string(bytes, 5));
    EXPECT_EQ(CFileException::badSeek, CauseThrownBy([&] { file.Seek(-1, CFile::begin); }));
}

TEST(MemFile, SetLengthCutsAndExtends)
{
    CMemFile file;
    file.Write("abcdef", 6);
    file.SetLength(2);
    EXPECT_EQ(2u, file.GetPosition());
    file.SetLength(3);
    file.SeekToBegin();
    char bytes[4] = {'x', 'x', 'x', 'x'};
    EXPECT_EQ(3u, file.Read(bytes, 4));
    EXPECT_EQ(std::string("ab\0x", 4), std::string(bytes, 4));
}

TEST(MemFile, GivesDirectAccessToItsBlock)
{
    CMemFile file;
    EXPECT_EQ(static_cast<UINT>(CFile::bufferDirect), file.GetBufferPtr(CFile::bufferCheck));
    void *start = NULL, *stop = NULL;
    EXPECT_EQ(3u, file.GetBufferPtr(CFile::bufferWrite, 3, &start, &stop));
    std::memcpy(start, "abc", 3);
    file.GetBufferPtr(CFile::bufferCommit, 2);
    EXPECT_EQ(2u, file.GetLength());
    file.SeekToBegin();
    EXPECT_EQ(2u, file.GetBufferPtr(CFile::bufferRead, 10, &start, &stop));
    EXPECT_EQ(2, static_cast<char*>(stop) - static_cast<char*>(start));
    EXPECT_EQ('b', static_cast<char*>(start)[1]);
    EXPECT_EQ(2u, file.GetPosition());
}

TEST(MemFile, LocksAndDuplicatesAreNotSupported)
{
    CMemFile file;
    EXPECT_TRUE(Throws<CNotSupportedException>([&] { file.LockRange(0, 1); }));
    EXPECT_TRUE(Throws<CNotSupportedException>([&] { file.UnlockRange(0, 1); }));
    EXPECT_TRUE(Throws<CNotSupportedException>([&] { file.Duplicate(); }));
}

// Keeps its block elsewhere.
class CountingMemFile : public CMemFile
{
public:
    ~CountingMemFile() override { CountingMemFile::Close(); }
    static int allocations, releases;

protected:
    BYTE* Alloc(SIZE_T nBytes) override
    {
        ++allocations;
        return CMemFile::Alloc(nBytes);
    }
    void Free(BYTE* lpMem) override
    {
        ++releases;
        CMemFile::Free(lpMem);
    }
};
int CountingMemFile::allocations = 0;
int CountingMemFile::releases = 0;

TEST(MemFile, MemoryComesFromTheDerivedClass)
{
    CountingMemFile::allocations = CountingMemFile::releases = 0;
    {
        CountingMemFile file;
        file.Write("x", 1);
    }
    EXPECT_EQ(1, CountingMemFile::allocations);
    EXPECT_EQ(1, CountingMemFile::releases);
}

constexpr UINT kCreate = CFile::modeCreate | CFile::modeWrite;

TEST(StdioFile, TextHasBothLineEndCharactersInTheFile)
{
    TemporaryFolder folder;
    const CString path = folder.File(_T("a.txt"));
    CStdioFile file(path, kCreate | CFile::typeText);
    file.WriteString(_T("one\ntwo\n"));
    file.Close();
    EXPECT_EQ("one\r\ntwo\r\n", BytesOf(path));
}

TEST(StdioFile, ReadsLinesWithoutTheirEnds)
{
    TemporaryFolder folder;
    const CString path = folder.File(_T("a.txt"));
    const std::string longLine(1000, 'x');
    MakeFile(path, "one\r\n\r\n" + longLine + "\r\nlast");
    CStdioFile file(path, CFile::modeRead | CFile::typeText);
    CString line;
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_STREQ(_T("one"), line);
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_STREQ(_T(""), line);
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(1000, line.GetLength());
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_STREQ(_T("last"), line);
    EXPECT_FALSE(file.ReadString(line));
    EXPECT_TRUE(line.IsEmpty());
}

TEST(StdioFile, ReadingIntoABufferKeepsTheLineEnd)
{
    TemporaryFolder folder;
    const CString path = folder.File(_T("a.txt"));
    MakeFile(path, "one\r\nsecond");
    CStdioFile file(path, CFile::modeRead | CFile::typeText);
    TCHAR text[6];
    EXPECT_EQ(text, file.ReadString(text, 6));
    EXPECT_STREQ(_T("one\n"), text);
    EXPECT_EQ(text, file.ReadString(text, 6));
    EXPECT_STREQ(_T("secon"), text);
    EXPECT_EQ(text, file.ReadString(text, 6));
    EXPECT_STREQ(_T("d"), text);
    EXPECT_EQ(nullptr, file.ReadString(text, 6));
}

TEST(StdioFile, BinaryTextIsWrittenAsItIsInMemory)
{
    TemporaryFolder folder;
    const CString path = folder.File(_T("a.bin"));
    CStdioFile file(path, kCreate | CFile::typeBinary);
    file.WriteString(_T("a\n"));
    file.Close();
    EXPECT_EQ(std::string("a\0\n\0", 4), BytesOf(path));
    CStdioFile again(path, CFile::modeRead | CFile::typeBinary);
    CString line;
    EXPECT_TRUE(again.ReadString(line));
    EXPECT_STREQ(_T("a"), line);
}

TEST(StdioFile, UnicodeTextKeepsEveryCharacterAndHasNoMark)
{
    TemporaryFolder folder;
    const CString path = folder.File(_T("u.txt"));
    {
        CStdioFile file(path, kCreate | CFile::typeUnicode);
        file.WriteString(L"\x4e2d\n");
    }
    EXPECT_EQ(std::string("\x2d\x4e\r\0\n\0", 6), BytesOf(path));
    CStdioFile file(path, CFile::modeRead | CFile::typeUnicode);
    CString line;
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_STREQ(L"\x4e2d", line);
}

TEST(StdioFile, SeeksReadsAndWritesBytes)
{
    TemporaryFolder folder;
    CStdioFile file(folder.File(_T("a.bin")), CFile::modeCreate | CFile::modeReadWrite | CFile::typeBinary);
    file.Write("0123456789", 10);
    EXPECT_EQ(10u, file.GetPosition());
    EXPECT_EQ(10u, file.GetLength());
    EXPECT_EQ(4u, file.Seek(4, CFile::begin));
    EXPECT_EQ(10u, file.GetLength());
    char bytes[3];
    EXPECT_EQ(3u, file.Read(bytes, 3));
    EXPECT_EQ('6', bytes[2]);
    EXPECT_EQ(7u, file.GetPosition());
    EXPECT_EQ(CFileException::badSeek, CauseThrownBy([&] { file.Seek(-1, CFile::begin); }));
}

TEST(StdioFile, FlushBringsTheTextToTheFile)
{
    TemporaryFolder folder;
    const CString path = folder.File(_T("a.txt"));
    CStdioFile file(path, kCreate | CFile::typeText | CFile::shareDenyNone);
    file.WriteString(_T("x"));
    file.Flush();
    // The writer is open, so the reader has to share with it.
    EXPECT_EQ("x", BytesOf(path));
}

TEST(StdioFile, OpenSaysWhyItFailed)
{
    TemporaryFolder folder;
    CStdioFile file;
    CFileException error;
    EXPECT_FALSE(file.Open(folder.File(_T("missing.txt")), CFile::modeRead | CFile::typeText, &error));
    EXPECT_EQ(CFileException::fileNotFound, error.m_cause);
    EXPECT_EQ(nullptr, file.m_pStream);
    EXPECT_TRUE(
        Throws<CFileException>([&] { CStdioFile missing(folder.File(_T("missing.txt")), CFile::modeRead); }));
}

TEST(StdioFile, AStreamOfTheCallerStaysOpen)
{
    TemporaryFolder folder;
    const CString path = folder.File(_T("a.txt"));
    FILE* stream = _wfopen(path, L"w");
    {
        CStdioFile file(stream);
        file.WriteString(_T("text"));
    }
    EXPECT_EQ(0, std::fclose(stream));
    EXPECT_EQ("text", BytesOf(path));
}

TEST(StdioFile, LocksAndDuplicatesAreNotSupported)
{
    TemporaryFolder folder;
    CStdioFile file(folder.File(_T("a.txt")), kCreate);
    EXPECT_TRUE(Throws<CNotSupportedException>([&] { file.LockRange(0, 1); }));
    EXPECT_TRUE(Throws<CNotSupportedException>([&] { file.UnlockRange(0, 1); }));
    EXPECT_TRUE(Throws<CNotSupportedException>([&] { file.Duplicate(); }));
}

} // namespace
} // namespace quor::test
