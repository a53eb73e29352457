// Device contexts whose output and whose queries go to different contexts: attributes are kept the same in
// both.
#include <afxwin.h>

#include <gtest/gtest.h>

namespace
{

// A context with an output and a query context of its own, both in memory.
class Pair : public CDC
{
public:
    Pair() : m_output(::CreateCompatibleDC(nullptr)), m_query(::CreateCompatibleDC(nullptr))
    {
        SetOutputDC(m_output);
        SetAttribDC(m_query);
    }
    ~Pair() override
    {
        ReleaseAttribDC();
        ReleaseOutputDC();
        ::DeleteDC(m_output);
        ::DeleteDC(m_query);
    }

    HDC m_output;
    HDC m_query;
};

CPoint PointOf(HDC dc, BOOL(WINAPI* get)(HDC, LPPOINT))
{
    CPoint point;
    get(dc, &point);
    return point;
}

CSize SizeOf(HDC dc, BOOL(WINAPI* get)(HDC, LPSIZE))
{
    CSize size;
    get(dc, &size);
    return size;
}

} // namespace

TEST(DCPair, TheOutputContextBelongsToTheObjectUntilItIsReleased)
{
    CDC dc;
    const HDC first = ::CreateCompatibleDC(nullptr);
    const HDC second = ::CreateCompatibleDC(nullptr);
    dc.SetOutputDC(first);
    EXPECT_EQ(CDC::FromHandle(first), &dc);
    EXPECT_EQ(dc.m_hAttribDC, nullptr);
    dc.SetOutputDC(second);
    EXPECT_EQ(CDC::FromHandle(second), &dc);
    EXPECT_NE(CDC::FromHandle(first), &dc);
    dc.ReleaseOutputDC();
    EXPECT_EQ(dc.m_hDC, nullptr);
    EXPECT_NE(CDC::FromHandle(second), &dc);
    dc.ReleaseOutputDC();
    dc.SetOutputDC(nullptr);
    EXPECT_EQ(dc.m_hDC, nullptr);
    CDC::DeleteTempMap();
    ::DeleteDC(first);
    ::DeleteDC(second);
}

TEST(DCPair, ObjectsAreSelectedIntoBoth)
{
    Pair dc;
    CPen pen(PS_SOLID, 1, RGB(1, 2, 3));
    CPen* const before = dc.SelectObject(&pen);
    EXPECT_EQ(::GetCurrentObject(dc.m_output, OBJ_PEN), pen.m_hObject);
    EXPECT_EQ(::GetCurrentObject(dc.m_query, OBJ_PEN), pen.m_hObject);
    dc.SelectObject(before);
    EXPECT_EQ(dc.SelectStockObject(GRAY_BRUSH)->m_hObject, ::GetStockObject(WHITE_BRUSH));
    EXPECT_EQ(::GetCurrentObject(dc.m_output, OBJ_BRUSH), ::GetStockObject(GRAY_BRUSH));
    EXPECT_EQ(::GetCurrentObject(dc.m_query, OBJ_BRUSH), ::GetStockObject(GRAY_BRUSH));
}

TEST(DCPair, ModesAreSetInBothAndTheirOldValuesReturned)
{
    Pair dc;
    EXPECT_EQ(dc.SetPolyFillMode(WINDING), ALTERNATE);
    EXPECT_EQ(::GetPolyFillMode(dc.m_output), WINDING);
    EXPECT_EQ(dc.GetPolyFillMode(), WINDING);
    const int stretching = ::GetStretchBltMode(dc.m_query);
    EXPECT_EQ(dc.SetStretchBltMode(COLORONCOLOR), stretching);
    EXPECT_EQ(::GetStretchBltMode(dc.m_output), COLORONCOLOR);
    EXPECT_EQ(dc.GetStretchBltMode(), COLORONCOLOR);
    EXPECT_EQ(dc.SetTextAlign(TA_RIGHT), static_cast<UINT>(TA_LEFT));
    EXPECT_EQ(::GetTextAlign(dc.m_output), static_cast<UINT>(TA_RIGHT));
    EXPECT_EQ(dc.GetTextAlign(), static_cast<UINT>(TA_RIGHT));
    EXPECT_EQ(dc.SetTextCharacterExtra(3), 0);
    EXPECT_EQ(::GetTextCharacterExtra(dc.m_output), 3);
    EXPECT_EQ(dc.GetTextCharacterExtra(), 3);
}

TEST(DCPair, TheMappingIsKeptInBoth)
{
    Pair dc;
    dc.SetMapMode(MM_ANISOTROPIC);
    EXPECT_TRUE(dc.SetWindowExt(10, 20) == CSize(1, 1));
    EXPECT_TRUE(dc.GetWindowExt() == CSize(10, 20));
    EXPECT_TRUE(dc.ScaleWindowExt(3, 2, 1, 2) == CSize(10, 20));
    EXPECT_TRUE(SizeOf(dc.m_output, ::GetWindowExtEx) == CSize(15, 10));
    EXPECT_TRUE(SizeOf(dc.m_query, ::GetWindowExtEx) == CSize(15, 10));
    dc.SetViewportExt(8, 9);
    EXPECT_TRUE(dc.ScaleViewportExt(2, 1, 1, 3) == CSize(8, 9));
    EXPECT_TRUE(SizeOf(dc.m_output, ::GetViewportExtEx) == CSize(16, 3));
    EXPECT_TRUE(dc.GetViewportExt() == CSize(16, 3));
    dc.SetWindowOrg(1, 2);
    EXPECT_TRUE(dc.OffsetWindowOrg(3, 4) == CPoint(1, 2));
    EXPECT_TRUE(PointOf(dc.m_output, ::GetWindowOrgEx) == CPoint(4, 6));
    EXPECT_TRUE(dc.GetWindowOrg() == CPoint(4, 6));
    dc.SetViewportOrg(5, 6);
    EXPECT_TRUE(dc.OffsetViewportOrg(-1, 1) == CPoint(5, 6));
    EXPECT_TRUE(PointOf(dc.m_output, ::GetViewportOrgEx) == CPoint(4, 7));
    EXPECT_TRUE(dc.GetViewportOrg() == CPoint(4, 7));
}

TEST(DCPair, TheClipRegionIsMovedInBoth)
{
    Pair dc;
    CRgn region;
    region.CreateRectRgn(0, 0, 10, 10);
    dc.SelectClipRgn(&region);
    EXPECT_EQ(dc.OffsetClipRgn(5, 6), SIMPLEREGION);
    CRgn now;
    now.CreateRectRgn(0, 0, 0, 0);
    for (const HDC context : {dc.m_output, dc.m_query})
    {
        EXPECT_EQ(::GetClipRgn(context, now), 1);
        CRect box;
        now.GetRgnBox(box);
        EXPECT_TRUE(box == CRect(5, 6, 15, 16));
    }
}

TEST(DCPair, ThePositionIsKeptInBoth)
{
    Pair dc;
    dc.MoveTo(3, 4);
    EXPECT_TRUE(PointOf(dc.m_output, ::GetCurrentPositionEx) == CPoint(3, 4));
    EXPECT_TRUE(dc.GetCurrentPosition() == CPoint(3, 4));
    dc.LineTo(7, 8);
    EXPECT_TRUE(PointOf(dc.m_output, ::GetCurrentPositionEx) == CPoint(7, 8));
    EXPECT_TRUE(dc.GetCurrentPosition() == CPoint(7, 8));
    EXPECT_TRUE(dc.MoveTo(0, 0) == CPoint(7, 8));
}

TEST(DCPair, TextIsMeasuredWhereItGoes)
{
    Pair dc;
    CFont large;
    large.CreatePointFont(400, L"Tahoma");
    const HGDIOBJ before = ::SelectObject(dc.m_output, large);
    const CString text(L"text");
    EXPECT_GT(dc.GetOutputTextExtent(text).cy, 2 * dc.GetTextExtent(text).cy);
    EXPECT_TRUE(dc.GetOutputTextExtent(text, 4) == dc.GetOutputTextExtent(text));
    ::SelectObject(dc.m_output, before);
}

TEST(DCPair, OneWithoutContextsChangesNothing)
{
    CDC dc;
    EXPECT_EQ(dc.SetBkColor(RGB(1, 2, 3)), CLR_INVALID);
    EXPECT_EQ(dc.SetROP2(R2_XORPEN), 0);
    EXPECT_EQ(dc.SetBkMode(TRANSPARENT), 0);
    EXPECT_EQ(dc.SetTextAlign(TA_RIGHT), static_cast<UINT>(GDI_ERROR));
    EXPECT_EQ(dc.SelectClipRgn(nullptr), ERROR);
    EXPECT_TRUE(dc.MoveTo(1, 1) == CPoint(0, 0));
    EXPECT_FALSE(dc.DeleteDC());
}
