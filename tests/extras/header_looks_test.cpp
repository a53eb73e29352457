// What extensions have to say of headers: tips of every place, and captions in fonts of their own.
#include "grid/TGGridExtension.h"
#include "tests/extras/ExtraGrid.h"

#include <string>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// Has a tip for every place, and draws captions in a large font.
class TellingExtension : public TGGridExtension
{
public:
    CFont* font = nullptr;
    bool tips = true;
    std::string asked;

protected:
    bool OnTip(TGGridPlace place, long row, long col, CString& text) override
    {
        asked =
            std::to_string(static_cast<int>(place)) + ": " + std::to_string(row) + "," + std::to_string(col);
        text = L"the extension's";
        return tips;
    }
    void OnCaptionLook(TGGridCol&, TGTextLook& look) override { look.font = font; }
    void OnCellLook(TGGridCell&, TGTextLook& look) override { look.font = font; }
};

class HeaderLooks : public ExtraTest<TellingExtension>
{
protected:
    // The text of a window's tip at a point; "-" for none.
    static std::string TipOf(CWnd& window, CPoint point)
    {
        TOOLINFO info = {};
        info.cbSize = sizeof info;
        if (window.OnToolHitTest(point, &info) == -1)
            return "-";
        if (info.lpszText == nullptr || info.lpszText == LPSTR_TEXTCALLBACK)
            return "?";
        const std::string text = Narrow(info.lpszText);
        ::free(info.lpszText);
        return text;
    }
};

TEST_F(HeaderLooks, TipsOfEveryPlace_AreAskedFor)
{
    Make();
    const struct
    {
        CWnd& window;
        CPoint point;
        const char* asked;
    } places[] = {
        {*grid.GetDlgItem(102), CPoint(5, 5), "3: -1,-1"},
        {*grid.GetDlgItem(103), CPoint(150, 10), "2: -1,1"},
        {*grid.GetDlgItem(104), CPoint(5, 2 * rowHeight + 10), "1: 2,-1"},
        {grid, grid.InsideOf(1, 2).CenterPoint(), "0: 1,2"},
    };
    for (const auto& place : places)
    {
        extra.tips = true;
        EXPECT_EQ(TipOf(place.window, place.point), "the extension's") << place.asked;
        EXPECT_EQ(extra.asked, place.asked);
        extra.tips = false;
        EXPECT_EQ(TipOf(place.window, place.point), "-") << place.asked;
    }
}

TEST_F(HeaderLooks, CaptionsAndCells_AreDrawnInTheFontOfTheExtension)
{
    Make();
    grid.GetCol(0).SetName(L"name");
    const auto caption = [this] { return InkIn(Picture(), CaptionOf(0)).Width(); };
    const long plainCaption = caption();
    const long plainCell = Ink(0, 0).Width();
    CFont large;
    large.CreatePointFont(140, L"Arial");
    extra.font = &large;
    EXPECT_GT(caption(), plainCaption);
    EXPECT_GT(Ink(0, 0).Width(), plainCell);
    extra.font = nullptr;
    EXPECT_EQ(caption(), plainCaption);
    EXPECT_EQ(Ink(0, 0).Width(), plainCell);
}

} // namespace
} // namespace quor::test
