// The clipboard in the editor of a property: what a mask or a set of valid characters takes of it.
#include "tests/support/PropertySheet.h"

#include <cstring>

using namespace quor::test;

namespace
{

class PropertyGridClipboard : public PropertySheetTest
{
protected:
    void PutOnClipboard(const std::wstring& text)
    {
        const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
        const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, bytes);
        std::memcpy(::GlobalLock(block), text.c_str(), bytes);
        ::GlobalUnlock(block);
        ASSERT_TRUE(::OpenClipboard(host));
        ::EmptyClipboard();
        EXPECT_NE(::SetClipboardData(CF_UNICODETEXT, block), nullptr);
        ::CloseClipboard();
    }

    std::wstring OnClipboard()
    {
        std::wstring text;
        EXPECT_TRUE(::OpenClipboard(host));
        if (const HANDLE data = ::GetClipboardData(CF_UNICODETEXT))
            text = static_cast<const wchar_t*>(::GlobalLock(data));
        ::CloseClipboard();
        return text;
    }

    // Opens the editor of a property with these characters selected.
    CEdit& Open(Property* property, int first, int last)
    {
        EXPECT_TRUE(grid.EditItem(property));
        CEdit& editor = *static_cast<CEdit*>(Editor());
        editor.SetSel(first, last);
        return editor;
    }

    std::wstring Caret(CEdit& editor)
    {
        int first = 0;
        int last = 0;
        editor.GetSel(first, last);
        return std::to_wstring(first) + L"," + std::to_wstring(last);
    }
};

TEST_F(PropertyGridClipboard, IntoAMask_CharactersGoWhereTypedOnesWould)
{
    PutOnClipboard(L"x9y87");
    CEdit& editor = Open(code, 0, -1);
    editor.Paste();
    EXPECT_EQ(EditorText(), L"xy-87") << "what does not fit is left out";
    EXPECT_EQ(Caret(editor), L"5,5");
    PutOnClipboard(L"4");
    editor.SetSel(3, 5);
    editor.Paste();
    EXPECT_EQ(EditorText(), L"xy-4_");
}

TEST_F(PropertyGridClipboard, CutFromAMask_LeavesThePlacesEmpty)
{
    CEdit& editor = Open(code, 0, 2);
    editor.Cut();
    EXPECT_EQ(EditorText(), L"__-12");
    EXPECT_EQ(OnClipboard(), L"AB");
}

TEST_F(PropertyGridClipboard, ClearedPartOfAMask_IsEmptyAndNotKept)
{
    PutOnClipboard(L"kept");
    CEdit& editor = Open(code, 3, 5);
    editor.Clear();
    EXPECT_EQ(EditorText(), L"AB-__");
    EXPECT_EQ(OnClipboard(), L"kept");
}

TEST_F(PropertyGridClipboard, WithoutAMask_TheEditorDoesAsAnyOther)
{
    PutOnClipboard(L"new");
    CEdit& editor = Open(title, 0, 2);
    editor.Paste();
    EXPECT_EQ(EditorText(), L"newaft");
    editor.SetSel(3, 6);
    editor.Cut();
    EXPECT_EQ(EditorText(), L"new");
    EXPECT_EQ(OnClipboard(), L"aft");
    editor.SetSel(0, 1);
    editor.Clear();
    EXPECT_EQ(EditorText(), L"ew");
}

TEST_F(PropertyGridClipboard, ValidCharacters_AreTakenAndOthersAreNot)
{
    auto* const digits = new Property(L"Digits", _variant_t(L"77"), L"", 0, NULL, NULL, L"0123456789");
    texts->AddSubItem(digits);
    PutOnClipboard(L"a1b2");
    Open(digits, 0, 1).Paste();
    EXPECT_EQ(EditorText(), L"127");
    PutOnClipboard(L"none");
    Open(digits, 0, 1).Paste();
    EXPECT_EQ(EditorText(), L"127") << "nothing is replaced by nothing";
}

TEST_F(PropertyGridClipboard, ChooseOnlyEditor_TakesNothing)
{
    PutOnClipboard(L"Star");
    Open(shape, 0, -1).Paste();
    EXPECT_EQ(EditorText(), L"Circle");
}

} // namespace
