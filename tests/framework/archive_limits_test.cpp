// Archives: limits, damaged contents, what they refuse; collections and objects as their run-time classes
// know them.
#include "tests/framework/BadArguments.h"
#include "tests/framework/TemporaryFolder.h"

#include <afxcoll.h>
#include <afxcmn.h>

#include <gtest/gtest.h>

#include <memory>

namespace quor::test
{
namespace
{

// A file in memory with these bytes, to be read.
class Bytes : public CMemFile
{
public:
    explicit Bytes(const std::string& bytes)
    {
        Write(bytes.data(), static_cast<UINT>(bytes.size()));
        SeekToBegin();
    }
};

// The cause of the archive exception that the call throws, or -1.
template <typename TCall> int ArchiveCause(TCall call)
{
    try
    {
        call();
    }
    catch (CArchiveException* exception)
    {
        const int cause = exception->m_cause;
        exception->Delete();
        return cause;
    }
    return -1;
}

TEST(ArchiveLimits, NeedAFile)
{
    EXPECT_TRUE(RefusesArguments([] { CArchive archive(nullptr, CArchive::load); }));
    Bytes file("abc");
    CArchive archive(&file, CArchive::load);
    archive.Abort();
    char byte = 0;
    EXPECT_TRUE(RefusesArguments([&] { archive.Read(&byte, 1); }));
    EXPECT_TRUE(RefusesArguments([&] { archive.Flush(); }));
}

TEST(ArchiveLimits, NothingIsReadWhereNothingIsAskedFor)
{
    Bytes file("abc");
    CArchive archive(&file, CArchive::load);
    char byte = 'x';
    EXPECT_EQ(archive.Read(&byte, 0), 0u);
    EXPECT_EQ(byte, 'x');
    wchar_t text[4] = L"x";
    EXPECT_EQ(archive.ReadString(text, 0), nullptr);
    EXPECT_EQ(archive.ReadString(text, 1), text);
    EXPECT_STREQ(text, L"");
    EXPECT_TRUE(RefusesArguments([&] { archive.ReadString(nullptr, 4); }));
}

TEST(ArchiveLimits, HalfACharacterIsTheEndInTheMiddle)
{
    Bytes file(std::string("a\0b", 3));
    CArchive archive(&file, CArchive::load);
    CString text;
    EXPECT_EQ(ArchiveCause([&] { archive.ReadString(text); }), CArchiveException::endOfFile);
}

TEST(ArchiveLimits, LinesEndWithOrWithoutACarriageReturn)
{
    const std::wstring lines = L"one\r\ntwo\n\r\n\nlast";
    Bytes file(std::string(reinterpret_cast<const char*>(lines.data()), lines.size() * sizeof(wchar_t)));
    CArchive archive(&file, CArchive::load);
    wchar_t piece[16] = L"";
    EXPECT_STREQ(archive.ReadString(piece, 16), L"one");
    EXPECT_STREQ(archive.ReadString(piece, 16), L"two");
    EXPECT_STREQ(archive.ReadString(piece, 16), L"");
    CString text(L"x");
    EXPECT_TRUE(archive.ReadString(text));
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_TRUE(archive.ReadString(text));
    EXPECT_STREQ(text, L"last");
    EXPECT_FALSE(archive.ReadString(text));
    EXPECT_EQ(archive.ReadString(piece, 16), nullptr);
}

TEST(ArchiveLimits, NegativeLengthsAndMissingTextsAreRefused)
{
    CMemFile file;
    CArchive archive(&file, CArchive::store);
    EXPECT_TRUE(RefusesArguments([&] { archive.Write("x", -1); }));
    EXPECT_TRUE(RefusesArguments([&] { archive.WriteString(nullptr); }));
    archive.Close();
    EXPECT_EQ(file.GetLength(), 0u);
}

TEST(ArchiveLimits, AShortBufferOfTheCallerIsNotUsed)
{
    CMemFile file;
    char tiny[4] = {'w', 'x', 'y', 'z'};
    {
        CArchive archive(&file, CArchive::store, 4, tiny);
        archive << static_cast<DWORD>(0x01020304);
    }
    EXPECT_EQ(std::string(tiny, 4), "wxyz");
    EXPECT_EQ(file.GetLength(), 4u);
    char large[256] = {};
    {
        CArchive archive(&file, CArchive::store, 256, large);
        archive << static_cast<BYTE>(7);
    }
    EXPECT_EQ(large[0], 7);
}

// A file that refuses to be written.
class FullFile : public CMemFile
{
public:
    void Write(const void*, UINT) override { AfxThrowFileException(CFileException::diskFull); }
};

TEST(ArchiveLimits, OneThatGoesDoesNotThrow)
{
    FullFile file;
    {
        CArchive archive(&file, CArchive::store);
        archive << 5;
    }
    CArchive archive(&file, CArchive::store);
    archive << 5;
    EXPECT_EQ(CauseThrownBy([&] { archive.Close(); }), CFileException::diskFull)
        << "but one that is closed does";
    archive.Abort();
}

TEST(ArchiveLimits, ATextThatIsTooLongForAnyProgramIsRefused)
{
    // A wide text whose length needs eight bytes.
    Bytes file(
        std::string("\xff\xfe\xff\xff\xff\xff\xff\xff\xff\xff\xff\xff\xff\xff\xff\xff\x7f\xff\xff\xff", 20));
    CArchive archive(&file, CArchive::load);
    CString text;
    EXPECT_NE(ArchiveCause([&] { archive >> text; }), -1);
}

// Asks for its version and gives it back.
class Asking : public CObject
{
public:
    DECLARE_SERIAL(Asking)
    UINT first = 0;
    UINT again = 0;
    void Serialize(CArchive& archive) override
    {
        if (archive.IsStoring())
            return;
        first = archive.GetObjectSchema();
        archive.SetObjectSchema(first);
        again = archive.GetObjectSchema();
    }
};
IMPLEMENT_SERIAL(Asking, CObject, VERSIONABLE_SCHEMA | 3)

TEST(ArchiveObjectRules, TheVersionCanBeGivenBackToBeReadAgain)
{
    CMemFile file;
    {
        Asking object;
        CArchive archive(&file, CArchive::store);
        archive << static_cast<const CObject*>(&object);
    }
    file.SeekToBegin();
    CArchive archive(&file, CArchive::load);
    const CObject* read = nullptr;
    archive >> read;
    const std::unique_ptr<const CObject> owned(read);
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(static_cast<const Asking*>(read)->first, 3u);
    EXPECT_EQ(static_cast<const Asking*>(read)->again, 3u);
}

TEST(ArchiveObjectRules, AClassIsNoObjectAndAnObjectNoClass)
{
    CMemFile file;
    {
        CArchive archive(&file, CArchive::store);
        archive << static_cast<CObject*>(nullptr);
        archive << static_cast<WORD>(5);
    }
    file.SeekToBegin();
    {
        CArchive archive(&file, CArchive::load);
        EXPECT_EQ(ArchiveCause([&] { archive.ReadClass(); }), CArchiveException::badIndex) << "a null object";
        EXPECT_EQ(ArchiveCause([&] { archive.ReadObject(nullptr); }), CArchiveException::badIndex)
            << "never seen";
    }
    Bytes big(std::string("\xff\x7f\x00\x00\x00\x80", 6));
    CArchive archive(&big, CArchive::load);
    EXPECT_EQ(ArchiveCause([&] { archive.ReadObject(nullptr); }), CArchiveException::badIndex);
    EXPECT_TRUE(Throws<CArchiveException>([&] { archive.WriteObject(nullptr); })) << "it loads";
    EXPECT_TRUE(Throws<CNotSupportedException>([&] { archive.ReadClass(RUNTIME_CLASS(CMenu)); }));
}

TEST(ArchiveObjectRules, ExceptionsTellTheNameOfTheFile)
{
    wchar_t text[256] = L"";
    const auto message = [&](CException* exception) {
        EXPECT_TRUE(exception->GetErrorMessage(text, 256));
        EXPECT_FALSE(exception->GetErrorMessage(nullptr, 0));
        EXPECT_FALSE(exception->GetErrorMessage(text, 0));
        return std::wstring(text);
    };
    CArchiveException named(CArchiveException::endOfFile, L"letter.txt");
    EXPECT_NE(message(&named).find(L"letter.txt"), std::wstring::npos);
    CArchiveException plain(CArchiveException::endOfFile);
    EXPECT_EQ(message(&plain).find(L"letter.txt"), std::wstring::npos);
    CArchiveException unknown(4711);
    CArchiveException negative(-1);
    CArchiveException generic(CArchiveException::genericException);
    EXPECT_EQ(message(&unknown), message(&generic));
    EXPECT_EQ(message(&negative), message(&generic));
}

TEST(CollectionClasses, AreKnownByName)
{
    const std::pair<CRuntimeClass*, bool> classes[] = {
        {RUNTIME_CLASS(CByteArray), true},        {RUNTIME_CLASS(CWordArray), true},
        {RUNTIME_CLASS(CDWordArray), true},       {RUNTIME_CLASS(CUIntArray), false},
        {RUNTIME_CLASS(CPtrArray), false},        {RUNTIME_CLASS(CObArray), true},
        {RUNTIME_CLASS(CStringArray), true},      {RUNTIME_CLASS(CPtrList), false},
        {RUNTIME_CLASS(CObList), true},           {RUNTIME_CLASS(CStringList), true},
        {RUNTIME_CLASS(CMapWordToPtr), false},    {RUNTIME_CLASS(CMapPtrToWord), false},
        {RUNTIME_CLASS(CMapPtrToPtr), false},     {RUNTIME_CLASS(CMapWordToOb), true},
        {RUNTIME_CLASS(CMapStringToPtr), false},  {RUNTIME_CLASS(CMapStringToOb), true},
        {RUNTIME_CLASS(CMapStringToString), true}};
    for (const auto& [record, isSerialisable] : classes)
    {
        EXPECT_EQ(CRuntimeClass::FromName(record->m_lpszClassName), record);
        const std::unique_ptr<CObject> made(record->CreateObject());
        EXPECT_EQ(made != nullptr, isSerialisable) << record->m_lpszClassName;
        EXPECT_TRUE(made == nullptr || made->GetRuntimeClass() == record) << record->m_lpszClassName;
        EXPECT_EQ(record->m_wSchema != 0xFFFF, isSerialisable) << record->m_lpszClassName;
    }
    EXPECT_STREQ(CMapWordToPtr().GetRuntimeClass()->m_lpszClassName, "CMapWordToPtr");
    EXPECT_STREQ(CMapPtrToWord().GetRuntimeClass()->m_lpszClassName, "CMapPtrToWord");
    EXPECT_STREQ(CMapPtrToPtr().GetRuntimeClass()->m_lpszClassName, "CMapPtrToPtr");
    EXPECT_STREQ(CMapStringToPtr().GetRuntimeClass()->m_lpszClassName, "CMapStringToPtr");
}

TEST(CollectionClasses, MapsFromTextsGiveTheirOwnKey)
{
    CMapStringToPtr pointers;
    CMapStringToString texts;
    pointers[L"key"] = &pointers;
    texts[L"key"] = L"value";
    const CString other(L"key");
    LPCTSTR found = nullptr;
    EXPECT_TRUE(pointers.LookupKey(other, found));
    EXPECT_STREQ(found, L"key");
    EXPECT_NE(found, other.GetString());
    found = nullptr;
    EXPECT_TRUE(texts.LookupKey(other, found));
    EXPECT_STREQ(found, L"key");
    found = nullptr;
    EXPECT_FALSE(pointers.LookupKey(L"none", found));
    EXPECT_FALSE(texts.LookupKey(L"none", found));
    EXPECT_EQ(found, nullptr);
}

TEST(PlainObjects, KnowTheRootOfTheClasses)
{
    class Plain : public CObject
    {
    };
    const Plain object;
    EXPECT_EQ(object.GetRuntimeClass(), RUNTIME_CLASS(CObject));
    EXPECT_TRUE(object.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(object.IsKindOf(RUNTIME_CLASS(CException)));
    EXPECT_FALSE(object.IsSerializable());
    object.AssertValid();
    EXPECT_EQ(CRuntimeClass::FromName(static_cast<LPCSTR>(nullptr)), nullptr);
    EXPECT_EQ(CRuntimeClass::CreateObject("NoSuchClass"), nullptr);
    EXPECT_EQ(CRuntimeClass::CreateObject(L"NoSuchClass"), nullptr);
    CMenu menu;
    EXPECT_EQ(AfxStaticDownCast(RUNTIME_CLASS(CMenu), &menu), &menu);
    EXPECT_EQ(AfxDynamicDownCast(RUNTIME_CLASS(CPen), &menu), nullptr);
    EXPECT_EQ(AfxDynamicDownCast(RUNTIME_CLASS(CPen), static_cast<CObject*>(nullptr)), nullptr);
}

TEST(PlainObjects, ExceptionsHaveTheirTexts)
{
    const auto textOf = [](void (*raise)()) {
        std::wstring result;
        try
        {
            raise();
        }
        catch (CException* exception)
        {
            wchar_t text[128] = L"";
            UINT help = 7;
            EXPECT_TRUE(exception->GetErrorMessage(text, 128, &help));
            EXPECT_EQ(help, 0u);
            EXPECT_FALSE(exception->GetErrorMessage(nullptr, 0));
            wchar_t small[4] = L"";
            EXPECT_TRUE(exception->GetErrorMessage(small, 4)) << "as much as fits";
            EXPECT_EQ(std::wstring(small), std::wstring(text).substr(0, 3));
            result = text;
            exception->Delete();
        }
        return result;
    };
    const std::wstring texts[] = {textOf(&AfxThrowMemoryException), textOf(&AfxThrowResourceException),
                                  textOf(&AfxThrowNotSupportedException),
                                  textOf(&AfxThrowInvalidArgException)};
    for (const std::wstring& one : texts)
    {
        EXPECT_FALSE(one.empty());
        EXPECT_EQ(std::count(std::begin(texts), std::end(texts), one), 1) << "each has its own";
    }
}

TEST(ImageLists, ComeFromBitmapsAndAreReplaced)
{
    CImageList images;
    EXPECT_TRUE(images.IsKindOf(RUNTIME_CLASS(CImageList)));
    EXPECT_FALSE(images.Create(4711u, 16, 1, RGB(255, 0, 255)));
    EXPECT_FALSE(images.Attach(nullptr));
    EXPECT_FALSE(images.DeleteImageList());
    ASSERT_TRUE(images.Create(8, 8, ILC_COLOR32, 1, 1));
    CBitmap red, green;
    std::vector<DWORD> pixels(64, 0x00ff0000);
    red.CreateBitmap(8, 8, 1, 32, pixels.data());
    pixels.assign(64, 0x0000ff00);
    green.CreateBitmap(8, 8, 1, 32, pixels.data());
    ASSERT_EQ(images.Add(&red, static_cast<CBitmap*>(nullptr)), 0);
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    CBitmap paper;
    paper.CreateBitmap(8, 8, 1, 32, nullptr);
    CBitmap* const before = dc.SelectObject(&paper);
    images.Draw(&dc, 0, CPoint(0, 0), ILD_NORMAL);
    EXPECT_EQ(dc.GetPixel(4, 4), RGB(255, 0, 0));
    EXPECT_TRUE(images.Replace(0, &green, nullptr));
    images.Draw(&dc, 0, CPoint(0, 0), ILD_NORMAL);
    EXPECT_EQ(dc.GetPixel(4, 4), RGB(0, 255, 0));
    EXPECT_FALSE(images.Replace(9, &green, nullptr));
    dc.SelectObject(before);
}

TEST(ImageLists, WhatIsNoListCannotBeRead)
{
    CMemFile file;
    {
        CArchive archive(&file, CArchive::store);
        archive << static_cast<DWORD>(100);
        archive.Write("short", 5);
    }
    file.SeekToBegin();
    CArchive archive(&file, CArchive::load);
    CImageList images;
    EXPECT_FALSE(images.Read(&archive)) << "fewer bytes than announced";
    EXPECT_EQ(images.GetSafeHandle(), nullptr);
}

} // namespace
} // namespace quor::test
