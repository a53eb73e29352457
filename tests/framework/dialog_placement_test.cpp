// Where dialogs open: centred unless their template, their style or their code says where.
#include "tests/framework/ScriptedDialog.h"
#include "tests/support/HostWindow.h"

#include <gtest/gtest.h>

namespace
{

using namespace quor::test;

// A template at a place, in dialog units.
std::vector<WORD> TemplateAt(short x, short y, DWORD style)
{
    const DialogTemplateBuilder builder(WS_POPUP | WS_CAPTION | style);
    const WORD* const words = reinterpret_cast<const WORD*>(builder.Get());
    std::vector<WORD> copy(words, words + builder.SizeInBytes() / sizeof(WORD));
    DLGTEMPLATE& header = *reinterpret_cast<DLGTEMPLATE*>(copy.data());
    header.x = x;
    header.y = y;
    return copy;
}

class PlacedDialog : public CDialog
{
public:
    std::function<void()> atStart;

protected:
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        if (atStart)
            atStart();
        return TRUE;
    }
};

class DialogPlacement : public testing::Test
{
protected:
    // The centre of the dialog, from the centre of the host's window.
    CSize Distance() const
    {
        CRect host, dialog;
        m_host.GetWindowRect(&host);
        m_dialog.GetWindowRect(&dialog);
        return dialog.CenterPoint() - host.CenterPoint();
    }
    bool IsCentred() const { return std::abs(Distance().cx) <= 1 && std::abs(Distance().cy) <= 1; }
    CPoint Place() const
    {
        CRect dialog;
        m_dialog.GetWindowRect(&dialog);
        return dialog.TopLeft();
    }
    void Open(short x, short y, DWORD style = 0)
    {
        const std::vector<WORD> layout = TemplateAt(x, y, style);
        ASSERT_TRUE(m_dialog.CreateIndirect(reinterpret_cast<LPCDLGTEMPLATE>(layout.data()), &m_host));
    }

    HostWindow m_host{500, 400};
    PlacedDialog m_dialog;
};

TEST_F(DialogPlacement, ATemplateWithoutAPlaceIsCentredOverTheOwner)
{
    Open(0, 0);
    EXPECT_TRUE(IsCentred()) << Distance().cx << ' ' << Distance().cy;
}

TEST_F(DialogPlacement, AVisibleTemplateIsCentredToo)
{
    Open(0, 0, WS_VISIBLE);
    EXPECT_TRUE(IsCentred());
}

TEST_F(DialogPlacement, APlaceInTheTemplateHolds)
{
    Open(3, 0);
    EXPECT_FALSE(IsCentred());
}

TEST_F(DialogPlacement, AnAbsolutePlaceHolds)
{
    Open(0, 0, DS_ABSALIGN);
    EXPECT_EQ(Place(), CPoint(0, 0));
}

TEST_F(DialogPlacement, APlaceThatOnInitDialogChoseHolds)
{
    m_dialog.atStart = [this] { m_dialog.SetWindowPos(NULL, 33, 44, 0, 0, SWP_NOSIZE | SWP_NOZORDER); };
    Open(0, 0);
    EXPECT_EQ(Place(), CPoint(33, 44));
}

TEST_F(DialogPlacement, AWindowThatOnInitDialogHasShownStays)
{
    CPoint shownAt;
    m_dialog.atStart = [&] {
        m_dialog.ShowWindow(SW_SHOW);
        shownAt = Place();
    };
    Open(0, 0);
    EXPECT_EQ(Place(), shownAt);
    EXPECT_FALSE(IsCentred());
}

TEST_F(DialogPlacement, AModelessDialogMayDeleteItsWindowAtItsStart)
{
    m_dialog.atStart = [this] { m_dialog.DestroyWindow(); };
    const std::vector<WORD> layout = TemplateAt(0, 0, 0);
    EXPECT_FALSE(m_dialog.CreateIndirect(reinterpret_cast<LPCDLGTEMPLATE>(layout.data()), &m_host));
}

TEST_F(DialogPlacement, AModalDialogIsCentredToo)
{
    const DialogTemplateBuilder builder;
    ScriptedDialog dialog(builder, &m_host);
    CRect place, host;
    dialog.inLoop = [&] {
        dialog.GetWindowRect(&place);
        dialog.EndDialog(1);
    };
    dialog.DoModal();
    m_host.GetWindowRect(&host);
    EXPECT_LE(std::abs(place.CenterPoint().x - host.CenterPoint().x), 1);
    EXPECT_LE(std::abs(place.CenterPoint().y - host.CenterPoint().y), 1);
}

} // namespace
