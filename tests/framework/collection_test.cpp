// CArray, CList, CMap and the ready-made arrays.
#include <afxwin.h>
#include <afxtempl.h>

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <vector>

namespace
{

// Counts how often it is made and destroyed.
struct Counted
{
    static int alive;
    static int made;

    Counted() { Begin(); }
    explicit Counted(int number) : value(number) { Begin(); }
    Counted(const Counted& source) : value(source.value) { Begin(); }
    Counted& operator=(const Counted& source) = default;
    ~Counted() { --alive; }

    int value = -1;

private:
    static void Begin()
    {
        ++alive;
        ++made;
    }
};

int Counted::alive = 0;
int Counted::made = 0;

std::string Text(const CArray<int>& numbers)
{
    std::string text;
    for (INT_PTR i = 0; i < numbers.GetSize(); ++i)
        text += std::to_string(numbers[i]) + " ";
    return text;
}

CArray<int>& Fill(CArray<int>& numbers, int count)
{
    for (int i = 0; i < count; ++i)
        numbers.Add(i);
    return numbers;
}

std::wstring Text(const CList<CString>& list)
{
    std::wstring text;
    for (POSITION position = list.GetHeadPosition(); position != nullptr;)
        text += list.GetNext(position) + L" ";
    return text;
}

} // namespace

TEST(Array, AddAndAccess)
{
    CArray<int> numbers;
    EXPECT_TRUE(numbers.IsEmpty());
    EXPECT_EQ(-1, numbers.GetUpperBound());
    EXPECT_EQ(nullptr, numbers.GetData());
    EXPECT_EQ(0, numbers.Add(5));
    EXPECT_EQ(1, numbers.Add(6));
    numbers[0] = 7;
    numbers.SetAt(1, 8);
    numbers.ElementAt(1) += 1;
    EXPECT_EQ("7 9 ", Text(numbers));
    EXPECT_EQ(2, numbers.GetCount());
    EXPECT_EQ(9, numbers.GetData()[1]);
}

TEST(Array, SetSize_MakesDefaultElementsAndDestroysRemovedOnes)
{
    const int before = Counted::alive;
    {
        CArray<Counted> array;
        array.SetSize(5);
        EXPECT_EQ(before + 5, Counted::alive);
        EXPECT_EQ(-1, array[4].value);
        array.SetSize(2);
        EXPECT_EQ(before + 2, Counted::alive);
        array.SetSize(0);
        EXPECT_EQ(before, Counted::alive);
        array.SetSize(3);
    }
    EXPECT_EQ(before, Counted::alive);
}

TEST(Array, Growth_MovesElementsWithoutConstructors)
{
    CArray<Counted> array;
    array.SetSize(3);
    const Counted* const oldData = array.GetData();
    const int made = Counted::made;
    array.SetSize(1000);
    EXPECT_NE(oldData, array.GetData());
    EXPECT_EQ(made + 997, Counted::made);
}

TEST(Array, SetAtGrow_FillsTheGap)
{
    CArray<int> numbers;
    numbers.SetAtGrow(3, 9);
    EXPECT_EQ("0 0 0 9 ", Text(numbers));
    numbers.SetAtGrow(1, 5);
    EXPECT_EQ("0 5 0 9 ", Text(numbers));
}

TEST(Array, InsertAndRemove)
{
    CArray<int> numbers;
    Fill(numbers, 4);
    numbers.InsertAt(1, 9, 2);
    EXPECT_EQ("0 9 9 1 2 3 ", Text(numbers));
    numbers.RemoveAt(0);
    numbers.RemoveAt(2, 2);
    EXPECT_EQ("9 9 3 ", Text(numbers));
    numbers.InsertAt(5, 1);
    EXPECT_EQ("9 9 3 0 0 1 ", Text(numbers));
    CArray<int> others;
    Fill(others, 2);
    numbers.InsertAt(1, &others);
    EXPECT_EQ("9 0 1 9 3 0 0 1 ", Text(numbers));
    numbers.RemoveAll();
    EXPECT_TRUE(numbers.IsEmpty());
}

TEST(Array, CopyAndAppend)
{
    CArray<int> first;
    CArray<int> second;
    Fill(first, 3);
    EXPECT_EQ(0, second.Append(first));
    EXPECT_EQ(3, second.Append(first));
    EXPECT_EQ("0 1 2 0 1 2 ", Text(second));
    second.Copy(first);
    EXPECT_EQ("0 1 2 ", Text(second));
    second.FreeExtra();
    second.Copy(second);
    EXPECT_EQ("0 1 2 ", Text(second));
}

TEST(Array, ElementsOfItself_CanBeAdded)
{
    CArray<CString, const CString&> texts;
    texts.Add(L"first");
    for (int i = 0; i < 100; ++i)
        texts.Add(texts[0]);
    texts.InsertAt(0, texts[50]);
    EXPECT_EQ(102, texts.GetSize());
    EXPECT_STREQ(L"first", texts[0]);
    EXPECT_STREQ(L"first", texts[101]);
}

TEST(Array, RandomEdits_MatchAVector)
{
    const unsigned seed = 20261121;
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    CArray<CString, const CString&> array;
    std::vector<CString> reference;
    for (int step = 0; step < 2000; ++step)
    {
        const INT_PTR index = static_cast<INT_PTR>(random() % (reference.size() + 1));
        CString text;
        text.Format(L"%d", step);
        if (random() % 3 != 0 || index == static_cast<INT_PTR>(reference.size()))
        {
            array.InsertAt(index, text);
            reference.insert(reference.begin() + index, text);
        }
        else
        {
            array.RemoveAt(index);
            reference.erase(reference.begin() + index);
        }
    }
    ASSERT_EQ(static_cast<INT_PTR>(reference.size()), array.GetSize());
    for (INT_PTR i = 0; i < array.GetSize(); ++i)
        ASSERT_STREQ(reference[static_cast<size_t>(i)], array[i]);
}

TEST(Array, ReadyMadeArrays_HoldTheirTypes)
{
    CStringArray texts;
    texts.Add(L"a");
    EXPECT_STREQ(L"a", texts[0]);
    CPtrArray pointers;
    pointers.Add(&texts);
    EXPECT_EQ(&texts, pointers[0]);
    CUIntArray numbers;
    numbers.Add(7u);
    CDWordArray words;
    words.SetSize(2);
    CObArray objects;
    objects.Add(&texts);
    EXPECT_EQ(7u, numbers[0]);
    EXPECT_EQ(0u, words[1]);
    EXPECT_EQ(&texts, objects.GetAt(0));
}

#ifndef _DEBUG
// With assertions the same mistakes end the process.
TEST(Array, BadIndices_Throw)
{
    CArray<int> numbers;
    Fill(numbers, 2);
    int thrown = 0;
    const auto expectThrow = [&](auto mistake) {
        try
        {
            mistake();
        }
        catch (CInvalidArgException* exception)
        {
            ++thrown;
            exception->Delete();
        }
    };
    expectThrow([&] { numbers.GetAt(2); });
    expectThrow([&] { numbers.SetAt(-1, 0); });
    expectThrow([&] { numbers.RemoveAt(1, 2); });
    expectThrow([&] { numbers.SetSize(-1); });
    expectThrow([&] { numbers.InsertAt(-1, 0); });
    EXPECT_EQ(5, thrown);
    EXPECT_EQ("0 1 ", Text(numbers));
}
#endif

TEST(List, EditsAtBothEndsAndInTheMiddle)
{
    CList<CString> list;
    const POSITION middle = list.AddTail(L"m");
    list.AddHead(L"a");
    list.AddTail(L"z");
    list.InsertBefore(middle, L"l");
    list.InsertAfter(middle, L"n");
    EXPECT_EQ(L"a l m n z ", Text(list));
    list.SetAt(middle, L"M");
    EXPECT_STREQ(L"a", list.RemoveHead());
    EXPECT_STREQ(L"z", list.RemoveTail());
    EXPECT_EQ(L"l M n ", Text(list));
    EXPECT_EQ(middle, list.Find(L"M"));
    EXPECT_EQ(nullptr, list.Find(L"M", middle));
    EXPECT_EQ(middle, list.FindIndex(1));
    EXPECT_EQ(nullptr, list.FindIndex(3));
    list.RemoveAt(middle);
    EXPECT_EQ(L"l n ", Text(list));
    POSITION position = list.GetTailPosition();
    EXPECT_STREQ(L"n", list.GetPrev(position));
    EXPECT_STREQ(L"l", list.GetPrev(position));
    EXPECT_EQ(nullptr, position);
    list.RemoveAll();
    EXPECT_TRUE(list.IsEmpty());
}

TEST(Map, RandomEdits_MatchAMap)
{
    const unsigned seed = 4711;
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    CMap<CString, LPCWSTR, int, int> map;
    std::map<std::wstring, int> reference;
    for (int step = 0; step < 3000; ++step)
    {
        CString key;
        key.Format(L"key %u", static_cast<unsigned>(random() % 200));
        if (random() % 3 != 0)
        {
            map.SetAt(key, step);
            reference[key.GetString()] = step;
        }
        else
        {
            EXPECT_EQ(reference.erase(key.GetString()) > 0, map.RemoveKey(key) != FALSE);
        }
    }
    std::map<std::wstring, int> seen;
    for (POSITION position = map.GetStartPosition(); position != nullptr;)
    {
        CString key;
        int value = 0;
        map.GetNextAssoc(position, key, value);
        seen[key.GetString()] = value;
    }
    EXPECT_EQ(reference, seen);
    EXPECT_EQ(static_cast<INT_PTR>(reference.size()), map.GetCount());
    int value = 0;
    EXPECT_FALSE(map.Lookup(L"missing", value));
    EXPECT_EQ(nullptr, map.PLookup(L"missing"));
}

TEST(Map, NumbersAndPointers_AreKeys)
{
    CMap<int, int, CString, LPCWSTR> names;
    names[3] = L"three";
    CString name;
    EXPECT_TRUE(names.Lookup(3, name));
    EXPECT_STREQ(L"three", name);
    CMap<void*, void*, int, int> pointers;
    pointers.SetAt(&names, 1);
    EXPECT_EQ(1, pointers.PLookup(&names)->value);
}
