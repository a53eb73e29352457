// Windows on the clipboard that do something as they are asked for its content, or lose it.
#include "tests/clipboard/ClipboardTest.h"
#include "tests/support/Rounds.h"

#include <cstring>
#include <memory>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// Owns the clipboard, offers a text, and acts before it renders it or when it is to lose it.
class OddOwner : public CWnd
{
public:
    OddOwner() { CreateEx(0, AfxRegisterWndClass(0), L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr); }
    ~OddOwner() override
    {
        rendering = losing = asked = nullptr;
        DestroyWindow();
    }
    void Offer(UINT format = CF_UNICODETEXT)
    {
        ASSERT_TRUE(::OpenClipboard(m_hWnd));
        ::EmptyClipboard();
        ::SetClipboardData(format, nullptr);
        ::CloseClipboard();
    }

    std::function<void()> rendering;
    std::function<void()> losing;
    // Another thread has sent a message.
    std::function<void()> asked;
    // Null: it renders nothing, as a program that has gone.
    const wchar_t* text = L"a";

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_RENDERFORMAT)
        {
            if (rendering)
                rendering();
            if (text != nullptr)
                Render(static_cast<UINT>(wParam));
            return 0;
        }
        if (message == WM_DESTROYCLIPBOARD && losing)
            losing();
        if (message == WM_NULL && asked)
            asked();
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    void Render(UINT format) const
    {
        const std::size_t bytes = (std::wcslen(text) + 1) * sizeof(wchar_t);
        const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, bytes);
        std::memcpy(::GlobalLock(memory), text, bytes);
        ::GlobalUnlock(memory);
        ::SetClipboardData(format, memory);
    }
};

class OddOwners : public ClipboardTest
{
protected:
    OddOwners()
    {
        Make();
        clipboard.Detach();
        pasting = std::make_unique<TGClipboard>(grid);
    }

    std::unique_ptr<TGClipboard> pasting;
    OddOwner owner;
};

TEST_F(OddOwners, AnExtensionThatIsDeletedWhileItReads_Ends)
{
    owner.rendering = [this] { pasting.reset(); };
    owner.Offer();
    EXPECT_EQ(Text(pasting->Paste()), "refused: not allowed, done 0");
    EXPECT_EQ(AllTexts(grid), "0,0|0,1|0,2 / 1,0|1,1|1,2 / 2,0|2,1|2,2");
}

TEST_F(OddOwners, AnExtensionThatLeavesWhileItReads_Ends)
{
    owner.rendering = [this] { pasting->Detach(); };
    owner.Offer();
    EXPECT_EQ(Text(pasting->Paste()), "refused: not allowed, done 0");
    EXPECT_EQ(AllTexts(grid), "0,0|0,1|0,2 / 1,0|1,1|1,2 / 2,0|2,1|2,2");
}

TEST_F(OddOwners, AnExtensionThatIsDeletedAsItTakesTheClipboard_Ends)
{
    owner.Offer();
    owner.losing = [this] { pasting.reset(); };
    EXPECT_EQ(Text(pasting->CopyAll()), "refused: not allowed, done 0");
    EXPECT_EQ(pasting, nullptr);
}

// More cells than are read at once.
TEST_F(OddOwners, WhatChangesWhileACopyWaits_DoesNotMatter)
{
    constexpr long Many = 7001;
    grid.SetRowNum(Many);
    grid.GetCell(Many - 1, 0).SetText(L"last");
    pasting->SetPatience(DefaultDeadline);
    HeldClipboard held;
    owner.asked = [this] {
        grid.GetCell(0, 0).SetText(L"new");
        grid.Clear();
    };
    held.ReleaseWhenAnswered(owner.m_hWnd);
    EXPECT_EQ(Text(pasting->CopyAll()), "done 21003");
    held.Release();
    const std::wstring text = TextOnClipboard();
    EXPECT_EQ(text.substr(0, 11), L"0,0\t0,1\t0,2");
    EXPECT_NE(text.find(L"last\t"), std::wstring::npos);
}

TEST_F(OddOwners, AnExtensionThatLeavesWhileACopyWaits_StillRenders)
{
    grid.SetRowNum(7001);
    pasting->SetPatience(DefaultDeadline);
    HeldClipboard held;
    owner.asked = [this] {
        pasting->Detach();
        grid.Clear();
    };
    held.ReleaseWhenAnswered(owner.m_hWnd);
    EXPECT_EQ(Text(pasting->CopyAll()), "done 21003");
    held.Release();
    EXPECT_EQ(TextOnClipboard().substr(0, 11), L"0,0\t0,1\t0,2");
}

TEST_F(OddOwners, AnOwnerThatRendersNothing_LeavesNothingToPaste)
{
    owner.text = nullptr;
    owner.Offer();
    EXPECT_EQ(Text(pasting->Paste()), "refused: nothing to paste, done 0");
}

} // namespace
} // namespace quor::test
