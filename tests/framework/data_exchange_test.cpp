// Data exchange: values in both directions, what is refused, and what the user is told.
#include "tests/framework/DebugOutput.h"
#include "tests/framework/DialogTemplateBuilder.h"
#include "tests/support/HostWindow.h"
#include "tests/support/MessageBoxProbe.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

namespace
{

using namespace quor::test;

enum ControlId
{
    textId = 101,
    checkId,
    firstRadioId,
    secondRadioId,
    thirdRadioId,
    listId,
    comboId,
    editComboId,
    scrollId
};

// A dialog whose exchange is given by the test.
class ExchangeDialog : public CDialog
{
public:
    std::function<void(CDataExchange*)> exchange;

    // As if the user had typed it.
    void Type(LPCTSTR text) { SetDlgItemText(textId, text); }
    CString Text() const
    {
        CString text;
        GetDlgItemText(textId, text);
        return text;
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CDialog::DoDataExchange(pDX);
        if (exchange)
            exchange(pDX);
    }
};

DialogTemplateBuilder AllControls()
{
    DialogTemplateBuilder layout;
    layout.AddEdit(textId)
        .AddButton(checkId, BS_AUTO3STATE | WS_GROUP)
        .AddButton(firstRadioId, BS_AUTORADIOBUTTON | WS_GROUP)
        .AddButton(secondRadioId, BS_AUTORADIOBUTTON)
        .Add(L"STATIC", L"between", 0, 999)
        .AddButton(thirdRadioId, BS_AUTORADIOBUTTON)
        .Add(L"LISTBOX", L"", WS_GROUP, listId)
        .Add(L"COMBOBOX", L"", CBS_DROPDOWNLIST, comboId)
        .Add(L"COMBOBOX", L"", CBS_DROPDOWN, editComboId)
        .Add(L"SCROLLBAR", L"", 0, scrollId);
    return layout;
}

class DataExchange : public testing::Test
{
protected:
    DataExchange()
    {
        const DialogTemplateBuilder layout = AllControls();
        m_dialog.CreateIndirect(layout.Get(), &m_host);
        for (LPCTSTR text : {L"alpha", L"alphabet", L"beta"})
        {
            static_cast<CListBox*>(m_dialog.GetDlgItem(listId))->AddString(text);
            static_cast<CComboBox*>(m_dialog.GetDlgItem(comboId))->AddString(text);
            static_cast<CComboBox*>(m_dialog.GetDlgItem(editComboId))->AddString(text);
        }
    }

    // Shows a value in the text control and returns the text.
    template <class Value> std::wstring Shown(Value value)
    {
        m_dialog.exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, textId, value); };
        EXPECT_TRUE(m_dialog.UpdateData(FALSE));
        return std::wstring(m_dialog.Text());
    }

    // Saves the text into a value; returns whether that was accepted.
    template <class Value> bool Save(LPCTSTR text, Value& value)
    {
        m_dialog.Type(text);
        m_dialog.exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, textId, value); };
        return m_dialog.UpdateData(TRUE) != FALSE;
    }

    // Saves a text that must be refused, and returns what the user was told.
    template <class Value> std::wstring Refusal(LPCTSTR text, Value& value)
    {
        MessageBoxProbe probe;
        EXPECT_FALSE(Save(text, value)) << "accepted";
        return probe.Shown().size() == 1 ? probe.Shown()[0].text : L"(no single message)";
    }

    HostWindow m_host;
    ExchangeDialog m_dialog;
};

TEST_F(DataExchange, Text_ShowsValues)
{
    EXPECT_EQ(Shown<int>(-12), L"-12");
    EXPECT_EQ(Shown<UINT>(4000000000u), L"4000000000");
    EXPECT_EQ(Shown<long>(-2147483647L - 1), L"-2147483648");
    EXPECT_EQ(Shown<DWORD>(4294967295u), L"4294967295");
    EXPECT_EQ(Shown<short>(-3), L"-3");
    EXPECT_EQ(Shown<BYTE>(200), L"200");
    EXPECT_EQ(Shown<LONGLONG>(-9000000000LL), L"-9000000000");
    EXPECT_EQ(Shown<ULONGLONG>(18000000000000000000ULL), L"18000000000000000000");
    EXPECT_EQ(Shown<double>(0.1), L"0.1");
    EXPECT_EQ(Shown<double>(123456.789012345), L"123456.789012345");
    EXPECT_EQ(Shown<float>(0.1f), L"0.1");
    EXPECT_EQ(Shown<CString>(L"some text"), L"some text");
}

TEST_F(DataExchange, Text_SavesValues)
{
    int number = 0;
    EXPECT_TRUE(Save(L"  -42 ", number));
    EXPECT_EQ(number, -42);
    UINT natural = 0;
    EXPECT_TRUE(Save(L"4294967295", natural));
    EXPECT_EQ(natural, 4294967295u);
    LONGLONG large = 0;
    EXPECT_TRUE(Save(L"-9223372036854775808", large));
    EXPECT_EQ(large, (std::numeric_limits<LONGLONG>::min)());
    double real = 0;
    EXPECT_TRUE(Save(L"1.5e3", real));
    EXPECT_EQ(real, 1500.0);
    float small = 0;
    EXPECT_TRUE(Save(L".25", small));
    EXPECT_EQ(small, 0.25f);
    CString text;
    EXPECT_TRUE(Save(L" as it is ", text));
    EXPECT_STREQ(text, L" as it is ");
}

TEST_F(DataExchange, Text_RefusesWhatIsNoNumber)
{
    int number = 7;
    EXPECT_EQ(Refusal(L"", number), L"Please enter an integer.");
    EXPECT_EQ(Refusal(L"12x", number), L"Please enter an integer.");
    EXPECT_EQ(Refusal(L"2147483648", number), L"Please enter an integer.");
    EXPECT_EQ(number, 7);
    UINT natural = 7;
    EXPECT_EQ(Refusal(L"-1", natural), L"Please enter a positive integer.");
    // The C library takes a sign for a number without one and counts down from the largest.
    EXPECT_EQ(Refusal(L"-18446744073709551611", natural), L"Please enter a positive integer.");
    EXPECT_EQ(natural, 7u);
    BYTE byte = 7;
    EXPECT_EQ(Refusal(L"256", byte), L"Please enter an integer between 0 and 255.");
    double real = 7;
    EXPECT_EQ(Refusal(L"1,5", real), L"Please enter a number.");
    EXPECT_EQ(real, 7.0);
}

TEST_F(DataExchange, Refusal_GivesTheFocusBackAndSelectsTheText)
{
    int number = 0;
    ::SetFocus(::GetDlgItem(m_dialog.m_hWnd, listId));
    Refusal(L"wrong", number);
    EXPECT_EQ(::GetFocus(), ::GetDlgItem(m_dialog.m_hWnd, textId));
    int begin = -1, end = -1;
    static_cast<CEdit*>(m_dialog.GetDlgItem(textId))->GetSel(begin, end);
    EXPECT_EQ(begin, 0);
    EXPECT_EQ(end, 5);
}

TEST_F(DataExchange, Refusal_LeavesLaterMembersAlone)
{
    int number = 1, check = 1;
    m_dialog.exchange = [&](CDataExchange* pDX) {
        DDX_Text(pDX, textId, number);
        DDX_Check(pDX, checkId, check);
    };
    m_dialog.Type(L"no");
    MessageBoxProbe probe;
    EXPECT_FALSE(m_dialog.UpdateData(TRUE));
    EXPECT_EQ(check, 1);
}

TEST_F(DataExchange, Text_IntoABufferRefusesLongerTexts)
{
    wchar_t buffer[6] = L"";
    m_dialog.exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, textId, buffer, 6); };
    m_dialog.Type(L"12345");
    EXPECT_TRUE(m_dialog.UpdateData(TRUE));
    EXPECT_STREQ(buffer, L"12345");
    m_dialog.Type(L"123456");
    MessageBoxProbe probe;
    EXPECT_FALSE(m_dialog.UpdateData(TRUE));
    EXPECT_STREQ(buffer, L"12345");
    ASSERT_EQ(probe.Shown().size(), 1u);
    EXPECT_EQ(probe.Shown()[0].text, L"Please enter no more than 5 characters.");
}

TEST_F(DataExchange, Check_GoesBothWays)
{
    int value = BST_INDETERMINATE;
    m_dialog.exchange = [&](CDataExchange* pDX) { DDX_Check(pDX, checkId, value); };
    m_dialog.UpdateData(FALSE);
    EXPECT_EQ(m_dialog.IsDlgButtonChecked(checkId), static_cast<UINT>(BST_INDETERMINATE));
    m_dialog.CheckDlgButton(checkId, BST_CHECKED);
    m_dialog.UpdateData(TRUE);
    EXPECT_EQ(value, BST_CHECKED);
    value = 17;
    m_dialog.UpdateData(FALSE);
    EXPECT_EQ(value, BST_UNCHECKED);
}

TEST_F(DataExchange, Radio_CountsTheRadioButtonsOfItsGroup)
{
    int value = 2;
    m_dialog.exchange = [&](CDataExchange* pDX) { DDX_Radio(pDX, firstRadioId, value); };
    m_dialog.UpdateData(FALSE);
    EXPECT_EQ(m_dialog.GetCheckedRadioButton(firstRadioId, thirdRadioId), thirdRadioId);
    m_dialog.CheckRadioButton(firstRadioId, thirdRadioId, secondRadioId);
    m_dialog.UpdateData(TRUE);
    EXPECT_EQ(value, 1);
    m_dialog.CheckDlgButton(secondRadioId, BST_UNCHECKED);
    m_dialog.UpdateData(TRUE);
    EXPECT_EQ(value, -1);
}

TEST_F(DataExchange, Index_OfListAndCombo)
{
    int listIndex = 2, comboIndex = 1;
    m_dialog.exchange = [&](CDataExchange* pDX) {
        DDX_LBIndex(pDX, listId, listIndex);
        DDX_CBIndex(pDX, comboId, comboIndex);
    };
    m_dialog.UpdateData(FALSE);
    EXPECT_EQ(static_cast<CListBox*>(m_dialog.GetDlgItem(listId))->GetCurSel(), 2);
    EXPECT_EQ(static_cast<CComboBox*>(m_dialog.GetDlgItem(comboId))->GetCurSel(), 1);
    static_cast<CListBox*>(m_dialog.GetDlgItem(listId))->SetCurSel(-1);
    static_cast<CComboBox*>(m_dialog.GetDlgItem(comboId))->SetCurSel(0);
    m_dialog.UpdateData(TRUE);
    EXPECT_EQ(listIndex, -1);
    EXPECT_EQ(comboIndex, 0);
}

TEST_F(DataExchange, String_OfListAndCombo_SelectsByBeginning)
{
    CString listText = L"alphab", comboText = L"be";
    m_dialog.exchange = [&](CDataExchange* pDX) {
        DDX_LBString(pDX, listId, listText);
        DDX_CBString(pDX, comboId, comboText);
    };
    m_dialog.UpdateData(FALSE);
    m_dialog.UpdateData(TRUE);
    EXPECT_STREQ(listText, L"alphabet");
    EXPECT_STREQ(comboText, L"beta");
}

TEST_F(DataExchange, StringExact_ComparesWholeTexts)
{
    CString listText = L"alphab", comboText = L"alphabet";
    m_dialog.exchange = [&](CDataExchange* pDX) {
        DDX_LBStringExact(pDX, listId, listText);
        DDX_CBStringExact(pDX, comboId, comboText);
    };
    m_dialog.UpdateData(FALSE);
    m_dialog.UpdateData(TRUE);
    EXPECT_STREQ(listText, L"");
    EXPECT_STREQ(comboText, L"alphabet");
}

TEST_F(DataExchange, String_OfAnEditableCombo_ShowsTextsThatAreNotInItsList)
{
    CString text = L"gamma";
    m_dialog.exchange = [&](CDataExchange* pDX) { DDX_CBString(pDX, editComboId, text); };
    m_dialog.UpdateData(FALSE);
    text.Empty();
    m_dialog.UpdateData(TRUE);
    EXPECT_STREQ(text, L"gamma");
}

TEST_F(DataExchange, Scroll_GoesBothWays)
{
    CScrollBar* bar = static_cast<CScrollBar*>(m_dialog.GetDlgItem(scrollId));
    bar->SetScrollRange(0, 50);
    int value = 20;
    m_dialog.exchange = [&](CDataExchange* pDX) { DDX_Scroll(pDX, scrollId, value); };
    m_dialog.UpdateData(FALSE);
    EXPECT_EQ(bar->GetScrollPos(), 20);
    bar->SetScrollPos(33);
    m_dialog.UpdateData(TRUE);
    EXPECT_EQ(value, 33);
}

TEST_F(DataExchange, MinMax_AcceptsTheEndsAndRefusesBeyond)
{
    int value = 0;
    m_dialog.exchange = [&](CDataExchange* pDX) {
        DDX_Text(pDX, textId, value);
        DDV_MinMaxInt(pDX, value, -5, 10);
    };
    MessageBoxProbe probe;
    for (LPCTSTR good : {L"-5", L"10", L"0"})
    {
        m_dialog.Type(good);
        EXPECT_TRUE(m_dialog.UpdateData(TRUE)) << good;
    }
    EXPECT_TRUE(probe.Shown().empty());
    for (LPCTSTR bad : {L"-6", L"11"})
    {
        m_dialog.Type(bad);
        EXPECT_FALSE(m_dialog.UpdateData(TRUE)) << bad;
    }
    ASSERT_EQ(probe.Shown().size(), 2u);
    EXPECT_EQ(probe.Shown()[0].text, L"Please enter an integer between -5 and 10.");
}

TEST_F(DataExchange, MinMax_OfEveryType)
{
    MessageBoxProbe probe;
    const auto refuses = [this](std::function<void(CDataExchange*)> check) {
        m_dialog.exchange = std::move(check);
        return m_dialog.UpdateData(TRUE) == FALSE;
    };
    EXPECT_TRUE(refuses([](CDataExchange* pDX) { DDV_MinMaxByte(pDX, 9, 10, 20); }));
    EXPECT_TRUE(refuses([](CDataExchange* pDX) { DDV_MinMaxShort(pDX, -1, 0, 20); }));
    EXPECT_TRUE(refuses([](CDataExchange* pDX) { DDV_MinMaxLong(pDX, 21, 0, 20); }));
    EXPECT_TRUE(refuses([](CDataExchange* pDX) { DDV_MinMaxUInt(pDX, 4000000000u, 0, 20); }));
    EXPECT_TRUE(refuses([](CDataExchange* pDX) { DDV_MinMaxDWord(pDX, 21, 0, 20); }));
    EXPECT_TRUE(refuses([](CDataExchange* pDX) { DDV_MinMaxLongLong(pDX, -1, 0, 20); }));
    EXPECT_TRUE(refuses([](CDataExchange* pDX) { DDV_MinMaxULongLong(pDX, 21, 0, 20); }));
    EXPECT_TRUE(refuses([](CDataExchange* pDX) { DDV_MinMaxFloat(pDX, 0.6f, 0.1f, 0.5f); }));
    EXPECT_TRUE(refuses([](CDataExchange* pDX) { DDV_MinMaxDouble(pDX, -1.25, -1, 2.5); }));
    ASSERT_EQ(probe.Shown().size(), 9u);
    EXPECT_EQ(probe.Shown()[7].text, L"Please enter a number between 0.1 and 0.5.");
    EXPECT_EQ(probe.Shown()[8].text, L"Please enter a number between -1 and 2.5.");
}

TEST_F(DataExchange, MinMax_DoesNotCheckWhatIsShown)
{
    int value = 99;
    m_dialog.exchange = [&](CDataExchange* pDX) {
        DDX_Text(pDX, textId, value);
        DDV_MinMaxInt(pDX, value, 0, 10);
    };
    MessageBoxProbe probe;
    DebugOutput output;
    EXPECT_TRUE(m_dialog.UpdateData(FALSE));
    EXPECT_STREQ(m_dialog.Text(), L"99");
    EXPECT_TRUE(probe.Shown().empty());
    EXPECT_EQ(output.Take().find("out of range") != std::string::npos, HasTraces);
}

TEST_F(DataExchange, MaxChars_LimitsTypingAndRefusesLongerTexts)
{
    CString text = L"abc";
    m_dialog.exchange = [&](CDataExchange* pDX) {
        DDX_Text(pDX, textId, text);
        DDV_MaxChars(pDX, text, 4);
    };
    m_dialog.UpdateData(FALSE);
    EXPECT_EQ(static_cast<CEdit*>(m_dialog.GetDlgItem(textId))->GetLimitText(), 4u);
    MessageBoxProbe probe;
    m_dialog.Type(L"abcd");
    EXPECT_TRUE(m_dialog.UpdateData(TRUE));
    m_dialog.Type(L"abcde");
    EXPECT_FALSE(m_dialog.UpdateData(TRUE));
    ASSERT_EQ(probe.Shown().size(), 1u);
    EXPECT_EQ(probe.Shown()[0].text, L"Please enter no more than 4 characters.");
}

TEST_F(DataExchange, MissingControl_FailsTheExchange)
{
    int value = 3;
    m_dialog.exchange = [&](CDataExchange* pDX) { EXPECT_THROW(DDX_Text(pDX, 4711, value), CException*); };
    m_dialog.UpdateData(TRUE);
    EXPECT_EQ(value, 3);
}

TEST_F(DataExchange, Control_SubclassesOnceAndReflects)
{
    class CountingEdit : public CEdit
    {
    public:
        int subclassed = 0;
        std::wstring lastText;

    protected:
        void PreSubclassWindow() override { ++subclassed; }
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_SETTEXT)
                lastText = reinterpret_cast<LPCWSTR>(lParam);
            return CEdit::WindowProc(message, wParam, lParam);
        }
    };
    CountingEdit edit;
    m_dialog.exchange = [&](CDataExchange* pDX) { DDX_Control(pDX, textId, edit); };
    m_dialog.UpdateData(FALSE);
    m_dialog.UpdateData(TRUE);
    EXPECT_EQ(edit.subclassed, 1);
    EXPECT_EQ(m_dialog.GetDlgItem(textId), &edit);
    m_dialog.Type(L"through the object");
    EXPECT_EQ(edit.lastText, L"through the object");
    m_dialog.DestroyWindow();
    EXPECT_EQ(edit.m_hWnd, nullptr);
}

} // namespace
