// The ready-made collections and the typed ones over them.
#include <afxwin.h>
#include <afxtempl.h>

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace
{

// CObject is not its first base, so that pointers change on the way to it.
struct Name
{
    virtual ~Name() {}
    std::string text;
};

class Item : public CObject
{
public:
    explicit Item(int number = 0) : value(number) {}
    int value;
};

class NamedItem : public Name, public CObject
{
};

template <class List> std::wstring Texts(const List& list)
{
    std::wstring text;
    for (POSITION position = list.GetHeadPosition(); position != nullptr;)
        text += std::wstring(list.GetNext(position)) + L" ";
    return text;
}

template <class Array> class NumberArray : public testing::Test
{
};

using NumberArrays = testing::Types<CByteArray, CWordArray, CDWordArray, CUIntArray>;
TYPED_TEST_SUITE(NumberArray, NumberArrays);

} // namespace

TYPED_TEST(NumberArray, BehavesAsAnArray)
{
    TypeParam numbers;
    EXPECT_EQ(-1, numbers.GetUpperBound());
    EXPECT_EQ(0, numbers.Add(5));
    numbers.SetAtGrow(2, 7);
    numbers.InsertAt(1, 6, 2);
    numbers[0] = 4;
    TypeParam copy;
    copy.Copy(numbers);
    EXPECT_EQ(5, copy.Append(numbers));
    copy.InsertAt(0, &numbers);
    copy.RemoveAt(0, 5);
    const TypeParam& read = copy;
    std::string text;
    for (INT_PTR i = 0; i < read.GetCount(); ++i)
        text += std::to_string(read[i]);
    EXPECT_EQ("4660746607", text);
    EXPECT_EQ(7u, read.GetData()[4]);
    EXPECT_TRUE(numbers.IsKindOf(RUNTIME_CLASS(TypeParam)));
}

TEST(StringArray, TakesTextsOfBothKinds)
{
    CStringArray texts;
    texts.Add(L"b");
    texts.Add(CString(L"c"));
    texts.InsertAt(0, L"a", 2);
    texts.SetAt(1, L"A");
    texts.SetAtGrow(4, L"d");
    texts[2] += L"!";
    const CStringArray& read = texts;
    CString all;
    for (INT_PTR i = 0; i < read.GetSize(); ++i)
        all += read[i] + L" ";
    EXPECT_STREQ(L"a A b! c d ", all);
    EXPECT_STREQ(L"d", read.GetData()[4]);
}

TEST(PointerArray, ReadsWhatATypedReferenceWrote)
{
    Item first(1), second(2);
    CTypedPtrArray<CObArray, Item*> items;
    items.Add(&first);
    items[0] = &second;
    EXPECT_EQ(&second, items.GetAt(0));
    const CObArray& untyped = items;
    EXPECT_EQ(&second, untyped[0]);
    EXPECT_EQ(&second, untyped.GetData()[0]);
    items.ElementAt(0) = &first;
    EXPECT_EQ(1, items[0]->value);
}

TEST(PointerArray, TypedArrays_CopyEachOther)
{
    Item first(1), second(2);
    CTypedPtrArray<CPtrArray, Item*> items, others;
    items.SetAtGrow(1, &first);
    EXPECT_EQ(nullptr, items[0]);
    items.SetAt(0, &second);
    others.Copy(items);
    EXPECT_EQ(2, others.Append(items));
    others.InsertAt(1, &items);
    others.InsertAt(0, &first);
    std::string text;
    for (INT_PTR i = 0; i < others.GetSize(); ++i)
        text += std::to_string(others[i]->value);
    EXPECT_EQ("1221121", text);
}

TEST(PointerArray, ObjectsBehindAnotherBase_AreFoundByValue)
{
    NamedItem item;
    CTypedPtrArray<CObArray, NamedItem*> items;
    items.Add(&item);
    const CTypedPtrArray<CObArray, NamedItem*>& read = items;
    EXPECT_EQ(&item, read[0]);
    EXPECT_EQ(static_cast<CObject*>(&item), static_cast<const CObArray&>(items).GetAt(0));
}

TEST(StringList, EditsAndSearches)
{
    CStringList list;
    const POSITION middle = list.AddTail(L"m");
    list.AddHead(L"a");
    list.AddTail(CString(L"z"));
    list.InsertBefore(middle, L"l");
    list.InsertAfter(middle, L"n");
    list.SetAt(middle, L"M");
    EXPECT_EQ(L"a l M n z ", Texts(list));
    EXPECT_EQ(middle, list.Find(L"M"));
    EXPECT_EQ(nullptr, list.Find(L"M", middle));
    EXPECT_EQ(middle, list.FindIndex(2));
    list.GetHead() += L"!";
    EXPECT_STREQ(L"a!", list.RemoveHead());
    EXPECT_STREQ(L"z", list.RemoveTail());
    POSITION position = list.GetTailPosition();
    EXPECT_STREQ(L"n", list.GetPrev(position));
    EXPECT_EQ(middle, position);
    list.RemoveAt(middle);
    EXPECT_EQ(2, list.GetCount());
    EXPECT_STREQ(L"n", list.GetTail());
}

TEST(StringList, AddedLists_KeepTheirOrder)
{
    CStringList list, others;
    list.AddTail(L"m");
    others.AddTail(L"1");
    others.AddTail(L"2");
    list.AddHead(&others);
    list.AddTail(&others);
    EXPECT_EQ(L"1 2 m 1 2 ", Texts(list));
    CList<CString, LPCTSTR> first, second;
    first.AddTail(L"x");
    second.AddTail(L"1");
    second.AddTail(L"2");
    first.AddHead(&second);
    EXPECT_EQ(L"1 2 x ", Texts(first));
}

TEST(ObjectList, TypedWalks)
{
    Item items[] = {Item(1), Item(2), Item(3)};
    CTypedPtrList<CObList, Item*> list;
    for (Item& item : items)
        list.AddTail(&item);
    CTypedPtrList<CObList, Item*> copy;
    copy.AddHead(&list);
    copy.AddTail(&list);
    std::string text;
    for (POSITION position = copy.GetHeadPosition(); position != nullptr;)
        text += std::to_string(copy.GetNext(position)->value);
    EXPECT_EQ("123123", text);
    const CTypedPtrList<CObList, Item*>& read = list;
    POSITION position = read.GetTailPosition();
    EXPECT_EQ(&items[2], read.GetPrev(position));
    EXPECT_EQ(&items[1], read.GetAt(position));
    EXPECT_EQ(&items[0], read.GetHead());
    list.GetHead() = &items[2];
    EXPECT_EQ(&items[2], list.RemoveHead());
    list.SetAt(list.GetHeadPosition(), &items[0]);
    EXPECT_EQ(nullptr, list.Find(&items[1]));
    EXPECT_EQ(list.GetTailPosition(), list.Find(&items[2]));
    EXPECT_EQ(&items[2], list.RemoveTail());
}

TEST(PointerList, HoldsPointers)
{
    int number = 0;
    CPtrList list;
    list.AddHead(&number);
    EXPECT_EQ(&number, list.GetHead());
    const CPtrList& read = list;
    EXPECT_EQ(&number, read.GetTail());
    EXPECT_EQ(&number, list.RemoveTail());
    EXPECT_TRUE(list.IsEmpty());
}

TEST(ReadyMap, TextsFindTexts)
{
    CMapStringToString map;
    map[L"one"] = L"1";
    map.SetAt(L"two", L"2");
    map.SetAt(L"one", L"I");
    EXPECT_EQ(2, map.GetCount());
    CString value;
    EXPECT_TRUE(map.Lookup(L"one", value));
    EXPECT_STREQ(L"I", value);
    EXPECT_FALSE(map.Lookup(L"three", value));
    std::set<std::wstring> pairs;
    for (CMapStringToString::CPair* pair = map.PGetFirstAssoc(); pair != nullptr;
         pair = map.PGetNextAssoc(pair))
    {
        pair->value += L"!";
        pairs.insert(std::wstring(pair->key) + L"=" + pair->value.GetString());
    }
    EXPECT_EQ((std::set<std::wstring>{L"one=I!", L"two=2!"}), pairs);
    EXPECT_STREQ(L"2!", map.PLookup(L"two")->value);
    EXPECT_TRUE(map.RemoveKey(L"two"));
    EXPECT_EQ(nullptr, map.PLookup(L"two"));
}

TEST(ReadyMap, LookupKey_GivesTheMapsOwnText)
{
    CMapStringToOb map;
    Item item;
    map.SetAt(L"key", &item);
    const CString asked(L"key");
    LPCTSTR key = nullptr;
    ASSERT_TRUE(map.LookupKey(asked, key));
    EXPECT_STREQ(L"key", key);
    EXPECT_NE(asked.GetString(), key);
    EXPECT_FALSE(map.LookupKey(L"other", key));
    EXPECT_EQ(map.HashKey(L"key"), map.HashKey(asked));
}

TEST(ReadyMap, PairsOfAnEmptyMap_AreNone)
{
    CMap<int, int, int, int> map;
    EXPECT_EQ(nullptr, map.PGetFirstAssoc());
    map[3] = 4;
    const CMap<int, int, int, int>& read = map;
    const CMap<int, int, int, int>::CPair* pair = read.PGetFirstAssoc();
    ASSERT_NE(nullptr, pair);
    EXPECT_EQ(3, pair->key);
    EXPECT_EQ(4, pair->value);
    EXPECT_EQ(nullptr, read.PGetNextAssoc(pair));
}

TEST(ReadyMap, TypedMaps_FindTheirOwnTypes)
{
    Item item(5), other(6);
    CTypedPtrMap<CMapStringToOb, CString, Item*> byName;
    byName.SetAt(L"five", &item);
    byName[L"six"] = &item;
    byName[L"six"] = &other;
    Item* found = nullptr;
    ASSERT_TRUE(byName.Lookup(L"six", found));
    EXPECT_EQ(6, found->value);
    EXPECT_TRUE(byName.RemoveKey(L"six"));
    POSITION position = byName.GetStartPosition();
    CString name;
    byName.GetNextAssoc(position, name, found);
    EXPECT_EQ(nullptr, position);
    EXPECT_STREQ(L"five", name);
    EXPECT_EQ(&item, found);

    CTypedPtrMap<CMapPtrToWord, Item*, WORD> numbers;
    numbers.SetAt(&item, 9);
    WORD number = 0;
    EXPECT_TRUE(numbers.Lookup(&item, number));
    EXPECT_EQ(9, number);
    CTypedPtrMap<CMapWordToPtr, WORD, Item*> byNumber;
    byNumber[7] = &item;
    EXPECT_TRUE(byNumber.Lookup(7, found));
    EXPECT_FALSE(byNumber.Lookup(8, found));
}

TEST(ReadyMap, PlainMapsOfPointers)
{
    Item item;
    void* pointer = nullptr;
    CObject* object = nullptr;
    CMapPtrToPtr pointers;
    pointers[&pointer] = &item;
    EXPECT_TRUE(pointers.Lookup(&pointer, pointer));
    EXPECT_EQ(&item, pointer);
    CMapWordToOb objects;
    objects.SetAt(3, &item);
    EXPECT_TRUE(objects.Lookup(3, object));
    EXPECT_EQ(&item, object);
    CMapStringToPtr names;
    names.SetAt(L"x", &item);
    EXPECT_TRUE(names.Lookup(L"x", pointer));
    EXPECT_EQ(&item, pointer);
    names.RemoveAll();
    names.InitHashTable(101);
    EXPECT_EQ(101u, names.GetHashTableSize());
}

TEST(ReadyCollections, HaveRunTimeClasses)
{
    for (const char* name : {"CByteArray", "CWordArray", "CDWordArray", "CObArray", "CStringArray", "CObList",
                             "CStringList", "CMapWordToOb", "CMapStringToOb", "CMapStringToString"})
    {
        CObject* const created = CRuntimeClass::CreateObject(name);
        ASSERT_NE(nullptr, created) << name;
        EXPECT_STREQ(name, created->GetRuntimeClass()->m_lpszClassName);
        delete created;
    }
    EXPECT_FALSE(CPtrList().IsKindOf(RUNTIME_CLASS(CObList)));
    EXPECT_TRUE((CTypedPtrList<CPtrList, int*>().IsKindOf(RUNTIME_CLASS(CPtrList))));
}

namespace
{

// Compared and copied by the functions that programs may specialise.
struct Part
{
    int number = 0;
    int note = 0;
};

} // namespace

template <> BOOL AFXAPI CompareElements<Part, Part>(const Part* pElement1, const Part* pElement2)
{
    return pElement1->number == pElement2->number;
}

template <> void AFXAPI CopyElements<Part>(Part* pDest, const Part* pSrc, INT_PTR nCount)
{
    for (INT_PTR i = 0; i < nCount; ++i)
    {
        pDest[i] = pSrc[i];
        ++pDest[i].note;
    }
}

TEST(ReadyCollections, ElementFunctions_CanBeSpecialised)
{
    CList<Part> list;
    list.AddTail(Part{1, 10});
    EXPECT_EQ(list.GetHeadPosition(), list.Find(Part{1, 99}));
    EXPECT_EQ(nullptr, list.Find(Part{2, 10}));
    CArray<Part> parts, copy;
    parts.Add(Part{1, 10});
    copy.Copy(parts);
    EXPECT_EQ(11, copy[0].note);
}
