// Collections in archives.
#include "tests/framework/TemporaryFolder.h"

#include <afxtempl.h>

#include <gtest/gtest.h>

#include <functional>

namespace quor::test
{
namespace
{

// Stores one collection and loads it into another.
void Pass(CObject& from, CObject& to)
{
    CMemFile file;
    {
        CArchive ar(&file, CArchive::store);
        from.Serialize(ar);
    }
    file.SeekToBegin();
    CArchive ar(&file, CArchive::load);
    to.Serialize(ar);
    EXPECT_TRUE(ar.IsBufferEmpty()) << "something was stored that was not loaded";
}

TEST(CollectionArchive, TemplatesOfPlainValuesComeBack)
{
    CArray<int, int> array, arrayRead;
    CList<double, double> list, listRead;
    CMap<int, int, long, long> map, mapRead;
    for (int i = 0; i < 300; ++i)
    {
        array.Add(i * i);
        list.AddTail(i / 4.0);
        map[i] = -i;
    }
    arrayRead.Add(77);
    Pass(array, arrayRead);
    Pass(list, listRead);
    Pass(map, mapRead);
    ASSERT_EQ(300, arrayRead.GetSize());
    EXPECT_EQ(299 * 299, arrayRead[299]);
    ASSERT_EQ(300, listRead.GetCount());
    EXPECT_EQ(0.75, listRead.GetAt(listRead.FindIndex(3)));
    ASSERT_EQ(300, mapRead.GetCount());
    EXPECT_EQ(-123, mapRead[123]);
}

TEST(CollectionArchive, TemplatesOfStringsComeBack)
{
    CArray<CString> array, arrayRead;
    CList<CString> list, listRead;
    CMap<CString, LPCTSTR, CString, LPCTSTR> map, mapRead;
    array.Add(_T("one"));
    array.Add(_T(""));
    list.AddTail(_T("two"));
    map[_T("key")] = _T("value");
    Pass(array, arrayRead);
    Pass(list, listRead);
    Pass(map, mapRead);
    ASSERT_EQ(2, arrayRead.GetSize());
    EXPECT_STREQ(_T("one"), arrayRead[0]);
    EXPECT_STREQ(_T(""), arrayRead[1]);
    EXPECT_STREQ(_T("two"), listRead.GetHead());
    EXPECT_STREQ(_T("value"), mapRead[_T("key")]);
}

TEST(CollectionArchive, AnArrayIsItsCountAndItsElements)
{
    CMemFile file;
    {
        CWordArray words;
        words.Add(0x0102);
        words.Add(3);
        CArchive ar(&file, CArchive::store);
        words.Serialize(ar);
    }
    const BYTE expected[] = {2, 0, 2, 1, 3, 0};
    ASSERT_EQ(sizeof(expected), file.GetLength());
    BYTE* const bytes = file.Detach();
    EXPECT_EQ(0, std::memcmp(bytes, expected, sizeof(expected)));
    std::free(bytes);
}

TEST(CollectionArchive, MoreElementsThanAWordCountsComeBack)
{
    CByteArray bytes, bytesRead;
    bytes.SetSize(70000);
    bytes[69999] = 9;
    Pass(bytes, bytesRead);
    ASSERT_EQ(70000, bytesRead.GetSize());
    EXPECT_EQ(9, bytesRead[69999]);
}

TEST(CollectionArchive, ReadyMadeCollectionsOfTextComeBack)
{
    CStringArray array, arrayRead;
    CStringList list, listRead;
    CMapStringToString map, mapRead;
    array.Add(_T("a"));
    list.AddTail(_T("b"));
    list.AddTail(_T("c"));
    map[_T("d")] = _T("e");
    Pass(array, arrayRead);
    Pass(list, listRead);
    Pass(map, mapRead);
    ASSERT_EQ(1, arrayRead.GetSize());
    EXPECT_STREQ(_T("a"), arrayRead[0]);
    ASSERT_EQ(2, listRead.GetCount());
    EXPECT_STREQ(_T("c"), listRead.GetTail());
    EXPECT_STREQ(_T("e"), mapRead[_T("d")]);
}

TEST(CollectionArchive, SharedObjectsOfCollectionsAreLoadedOnce)
{
    CStringArray shared;
    shared.Add(_T("text"));
    CObArray array, arrayRead;
    array.Add(&shared);
    array.Add(NULL);
    array.Add(&shared);
    Pass(array, arrayRead);
    ASSERT_EQ(3, arrayRead.GetSize());
    EXPECT_EQ(nullptr, arrayRead[1]);
    EXPECT_EQ(arrayRead[0], arrayRead[2]);
    CStringArray* read = DYNAMIC_DOWNCAST(CStringArray, arrayRead[0]);
    ASSERT_NE(nullptr, read);
    EXPECT_STREQ(_T("text"), (*read)[0]);
    delete read;
}

TEST(CollectionArchive, ObjectListsAndMapsComeBack)
{
    CDWordArray first, second;
    first.Add(1);
    second.Add(2);
    CObList list, listRead;
    CMapStringToOb byText, byTextRead;
    CMapWordToOb byWord, byWordRead;
    list.AddTail(&first);
    byText[_T("second")] = &second;
    byWord[5] = &first;
    Pass(list, listRead);
    Pass(byText, byTextRead);
    Pass(byWord, byWordRead);
    CObject *fromList = listRead.GetHead(), *fromText = byTextRead[_T("second")], *fromWord = byWordRead[5];
    EXPECT_EQ(1u, (*STATIC_DOWNCAST(CDWordArray, fromList))[0]);
    EXPECT_EQ(2u, (*STATIC_DOWNCAST(CDWordArray, fromText))[0]);
    EXPECT_EQ(1u, (*STATIC_DOWNCAST(CDWordArray, fromWord))[0]);
    delete fromList;
    delete fromText;
    delete fromWord;
}

TEST(CollectionArchive, PointersToCollectionsHaveOperators)
{
    CMemFile file;
    {
        CObList list;
        CArchive ar(&file, CArchive::store);
        ar << &list;
    }
    file.SeekToBegin();
    CArchive ar(&file, CArchive::load);
    CObList* read = NULL;
    ar >> read;
    ASSERT_NE(nullptr, read);
    EXPECT_TRUE(read->IsEmpty());
    delete read;
    EXPECT_FALSE(CPtrArray().IsSerializable());
}

TEST(CollectionArchive, ACountBeyondTheFileIsNoEndlessLoop)
{
    BYTE bytes[] = {0xFE, 0xFF, 1, 0, 0, 0};
    CMemFile file(bytes, sizeof(bytes));
    CArchive ar(&file, CArchive::load);
    CList<int, int> list;
    EXPECT_TRUE(Throws<CArchiveException>([&] { list.Serialize(ar); }));
    EXPECT_EQ(1, list.GetCount());
}

} // namespace
} // namespace quor::test
