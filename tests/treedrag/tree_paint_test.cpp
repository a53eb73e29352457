// What is painted, by pixels: the tree, the labels of a drag, the insertion line.
#include "tests/treedrag/DragTreeTest.h"

#include "tests/support/Snapshot.h"

namespace
{

using namespace quor::test;

constexpr COLORREF Black = RGB(0, 0, 0);

// The highlight and the drag image are pictures of their own: the image is taken off.
class TreePaint : public DragTreeTest
{
protected:
    TreePaint()
    {
        Activate(owner);
        tree->SetFocus();
    }
    ~TreePaint() override
    {
        if (tree->IsDragging())
            tree->CompleteDrag(FALSE);
    }

    Snapshot TakeSnapshot()
    {
        CImageList::DragShowNolock(FALSE);
        tree->UpdateWindow();
        const Snapshot snapshot(*tree);
        CImageList::DragShowNolock(TRUE);
        return snapshot;
    }

    CRect Label(const std::string& name) const
    {
        CRect label;
        tree->GetItemRect(At(name), label, TRUE);
        return label;
    }

    int ClientRight() const
    {
        CRect client;
        tree->GetClientRect(client);
        return client.right;
    }

    // The line at y from x on: the bar, the end caps and nothing where the caps leave room.
    void ExpectLine(int x, int y)
    {
        const Snapshot picture = TakeSnapshot();
        const int right = ClientRight() - 2;
        EXPECT_TRUE(picture.IsAll(CRect(x, y, right, y + 2), Black)) << "bar";
        for (const int end : {x, right})
            EXPECT_TRUE(picture.IsAll(CRect(end, y - 2, end + 1, y + 4), Black)) << "cap at " << end;
        for (const int end : {x + 1, right - 1})
        {
            EXPECT_TRUE(picture.IsAll(CRect(end, y - 1, end + 1, y + 3), Black)) << "cap at " << end;
            EXPECT_NE(picture.At(end, y - 2), Black);
            EXPECT_NE(picture.At(end, y + 3), Black);
        }
        EXPECT_EQ(CountLines(picture), 2) << "rows of pixels that are black far to the right";
    }

    // How many rows are black at the right, where no label reaches.
    int CountLines(const Snapshot& picture) const
    {
        const int x = ClientRight() - 20;
        return picture.CountColour(CRect(x, 0, x + 1, picture.Height()), Black);
    }

    void ExpectSamePicture(const Snapshot& left, const Snapshot& right) const
    {
        int different = 0;
        for (int y = 0; y < left.Height(); ++y)
            for (int x = 0; x < left.Width(); ++x)
                different += left.At(x, y) != right.At(x, y);
        EXPECT_EQ(different, 0);
    }
};

TEST_F(TreePaint, LooksLikeAPlainTree)
{
    Fill("a f+[x g[y]] b[] c");
    tree->SelectItem(At("f"));
    const Snapshot ours = TakeSnapshot();
    CRect place;
    tree->GetWindowRect(place);
    owner.ScreenToClient(place);
    CTreeCtrl plain;
    plain.Create(UsualStyle, place, &owner, TreeId + 1);
    plain.SetImageList(&images, TVSIL_NORMAL);
    std::map<HTREEITEM, HTREEITEM> copies = {{nullptr, TVI_ROOT}};
    for (HTREEITEM item = tree->GetRootItem(); item != nullptr; item = tree->GetNextItem(item))
    {
        int image = 0;
        int selectedImage = 0;
        tree->GetItemImage(item, image, selectedImage);
        copies[item] = plain.InsertItem(tree->GetItemText(item), image, selectedImage,
                                        copies[tree->GetParentItem(item)]);
    }
    plain.Expand(copies[At("f")], TVE_EXPAND);
    plain.SelectItem(copies[At("f")]);
    tree->ShowWindow(SW_HIDE);
    plain.SetFocus();
    ExpectSamePicture(ours, Snapshot(plain));
}

TEST_F(TreePaint, EraseDoesNothing)
{
    Fill("a");
    const Snapshot before = TakeSnapshot();
    CClientDC context(tree.get());
    EXPECT_EQ(tree->SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(context.GetSafeHdc())), 0);
    ExpectSamePicture(before, Snapshot(*tree));
}

TEST_F(TreePaint, PaintsTheInvalidPartOnly)
{
    Fill("a b c d");
    TakeSnapshot();
    CClientDC context(tree.get());
    context.SetPixelV(200, 100, RGB(255, 0, 0));
    tree->InvalidateRect(CRect(0, 0, 260, 50));
    tree->UpdateWindow();
    EXPECT_EQ(Snapshot(*tree).At(200, 100), RGB(255, 0, 0));
    tree->InvalidateRect(CRect(150, 90, 260, 120));
    tree->UpdateWindow();
    EXPECT_NE(Snapshot(*tree).At(200, 100), RGB(255, 0, 0));
}

TEST_F(TreePaint, EmptyWindow_IsPaintedWithoutHarm)
{
    Fill("a");
    tree->MoveWindow(0, 0, 0, 0);
    tree->Invalidate();
    tree->UpdateWindow();
    EXPECT_FALSE(tree->GetUpdateRect(nullptr));
}

TEST_F(TreePaint, Line_AtTheUpperEdge)
{
    Fill("a b c");
    BeginDrag("c");
    MoveTo("b", Half::Upper);
    ExpectLine(Label("b").left, Label("b").top);
}

TEST_F(TreePaint, Line_AtTheLowerEdge)
{
    Fill("a b c d");
    BeginDrag("a");
    MoveTo("c", Half::Lower);
    ExpectLine(Label("c").left, Label("c").bottom);
}

TEST_F(TreePaint, Line_AtTheFirstChildOfAnOpenFolder)
{
    Fill("a f+[x y]");
    BeginDrag("a");
    MoveTo("f", Half::Lower);
    ExpectLine(Label("x").left, Label("x").top);
}

TEST_F(TreePaint, Line_BelowAClosedFolder_StaysAtItsLevel)
{
    Fill("a f[x] b");
    BeginDrag("a");
    MoveTo("f", Half::Lower);
    ExpectLine(Label("f").left, Label("f").bottom);
}

TEST_F(TreePaint, Line_InAnEmptyFolder_IsIndentedByALevel)
{
    Fill("b e[] f+[x] a");
    tree->SetIndent(30);
    BeginDrag("a");
    MoveTo("e", Half::Lower);
    ExpectLine(Label("e").left + 30, Label("e").bottom);
    MoveTo("e", Half::Upper);
    ExpectLine(Label("e").left, Label("e").top);
}

TEST_F(TreePaint, Line_GoesWithTheDrag)
{
    Fill("a b c");
    EXPECT_EQ(CountLines(TakeSnapshot()), 0);
    BeginDrag("c");
    EXPECT_EQ(CountLines(TakeSnapshot()), 0) << "no target yet";
    MoveTo("a", Half::Lower);
    EXPECT_EQ(CountLines(TakeSnapshot()), 2);
    MoveTo("b", Half::Lower);
    EXPECT_EQ(CountLines(TakeSnapshot()), 2);
    tree->CompleteDrag(FALSE);
    EXPECT_EQ(CountLines(TakeSnapshot()), 0);
}

TEST_F(TreePaint, Drag_HidesSelectionAndHighlight)
{
    Fill("a b c");
    tree->SelectItem(At("c"));
    const COLORREF highlight = ::GetSysColor(COLOR_HIGHLIGHT);
    const CRect everything(0, 0, 260, 300);
    EXPECT_GT(TakeSnapshot().CountColour(everything, highlight), 20);
    BeginDrag("c");
    MoveTo("a", Half::Lower);
    EXPECT_EQ(TakeSnapshot().CountColour(everything, highlight), 0);
}

TEST_F(TreePaint, Drag_KeepsTheLabelsReadable)
{
    Fill("mmmm b c");
    const CRect label = Label("mmmm");
    const int before = TakeSnapshot().CountColour(label, ::GetSysColor(COLOR_WINDOWTEXT));
    tree->SelectItem(At("c"));
    const int plain = TakeSnapshot().CountColour(label, ::GetSysColor(COLOR_WINDOWTEXT));
    BeginDrag("c");
    const int dragged = TakeSnapshot().CountColour(label, ::GetSysColor(COLOR_WINDOWTEXT));
    EXPECT_GT(plain, 5);
    EXPECT_NEAR(dragged, plain, plain / 4) << "before the selection moved: " << before;
}

TEST_F(TreePaint, Drag_FramesTheSelectedItem)
{
    Fill("a b c");
    BeginDrag("b");
    MoveTo("a", Half::Upper);
    const Snapshot picture = TakeSnapshot();
    const CRect label = Label("b");
    const COLORREF ground = ::GetSysColor(COLOR_WINDOW);
    const CRect upperEdge(label.left, label.top, label.left + 8, label.top + 1);
    EXPECT_EQ(upperEdge.Width() - picture.CountColour(upperEdge, ground), 4) << "every second pixel";
}

// As much of it as the platform shows up to the edge of the window, and dots.
TEST_F(TreePaint, Drag_ShortensALabelThatDoesNotFit)
{
    Fill("a b c");
    const CString longText(L'l', 400);
    tree->SetItemText(At("a"), longText);
    BeginDrag("c");
    const Snapshot picture = TakeSnapshot();
    CRect place = Label(std::string(400, 'l'));
    place = CRect(place.left + 2, place.top + 1, ClientRight(), place.bottom);
    CClientDC screen(tree.get());
    CBitmap paper;
    paper.CreateCompatibleBitmap(&screen, ClientRight(), place.bottom);
    CDC drawing;
    drawing.CreateCompatibleDC(&screen);
    drawing.SelectObject(&paper);
    drawing.SelectObject(tree->GetFont());
    drawing.FillSolidRect(CRect(0, 0, ClientRight(), place.bottom), ::GetSysColor(COLOR_WINDOW));
    CRect text = place;
    constexpr UINT Shortened = DT_SINGLELINE | DT_NOCLIP | DT_END_ELLIPSIS;
    drawing.DrawText(longText, text, Shortened | DT_CALCRECT);
    drawing.DrawText(longText, text, Shortened);
    int different = 0;
    for (int y = place.top; y < place.bottom; ++y)
        for (int x = place.left; x < place.right; ++x)
            different += drawing.GetPixel(x, y) != picture.At(x, y);
    EXPECT_EQ(different, 0);
}

} // namespace
