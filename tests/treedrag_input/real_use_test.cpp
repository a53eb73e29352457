// Putting a tree of 30 items in order, by the mouse alone and by the buttons Up and Down alone.
#include "tests/treedrag_input/DragInput.h"

namespace
{

using namespace quor::test;

constexpr UINT UpButton = 21;
constexpr UINT DownButton = 22;

constexpr const char* Disorder =
    "pear fruit+[oak carrot apple salmon elm] trout "
    "vegetables+[plum beech herring leek cherry pike] trees+[onion spruce quince] "
    "fish+[fir pea peach perch larch] empty[] bean eel willow cod turnip";
constexpr const char* Order = "fruit+[apple cherry peach pear plum quince] "
                              "vegetables+[bean carrot leek onion pea turnip] "
                              "trees+[beech elm fir larch oak spruce willow] "
                              "fish+[cod eel herring perch pike salmon trout] empty[]";

// The place of an item: where it stands and what stands before it.
struct Place
{
    std::string name;
    std::string parent;   // "none" at root level
    std::string previous; // "none" for the first child
};

class RealUse : public DragInputTest
{
protected:
    RealUse() : DragInputTest(CSize(300, 640)), up(MakeButton(UpButton, 10)), down(MakeButton(DownButton, 80))
    {
        Fill(Order);
        for (HTREEITEM item = tree->GetRootItem(); item != nullptr; item = tree->GetNextItem(item))
            wanted.push_back(
                {NameOf(item), NameOf(tree->GetParentItem(item)), NameOf(tree->GetPrevSiblingItem(item))});
        tree->DeleteAllItems();
        Fill(Disorder);
    }

    std::unique_ptr<CButton> MakeButton(UINT id, int x)
    {
        auto button = std::make_unique<CButton>();
        button->Create(id == UpButton ? L"Up" : L"Down", WS_CHILD | WS_VISIBLE, CRect(x, 0, x + 60, 20),
                       &owner, id);
        return button;
    }

    bool IsInPlace(const Place& place) const
    {
        const HTREEITEM item = At(place.name);
        return NameOf(tree->GetParentItem(item)) == place.parent &&
               NameOf(tree->GetPrevSiblingItem(item)) == place.previous;
    }

    int PositionOf(HTREEITEM wantedItem) const
    {
        int position = 0;
        for (HTREEITEM item = tree->GetRootItem(); item != wantedItem; item = tree->GetNextItem(item))
            ++position;
        return position;
    }

    void PressButton(UINT id)
    {
        Click(id == UpButton ? *up : *down, CPoint(20, 10));
        const std::string line = "command " + std::to_string(id) + " code 0";
        for (const std::string& entry : owner.TakeLog())
            if (entry == line)
                id == UpButton ? tree->MoveItemUp() : tree->MoveItemDown();
    }

    std::vector<Place> wanted;
    std::unique_ptr<CButton> up;
    std::unique_ptr<CButton> down;
};

TEST_F(RealUse, ByTheMouseAlone)
{
    ASSERT_EQ(tree->GetCount(), wanted.size());
    for (const Place& place : wanted)
    {
        if (IsInPlace(place))
            continue;
        if (place.previous != "none")
            DragByMouse(place.name, place.previous, Half::Lower);
        else if (place.parent != "none")
            DragByMouse(place.name, place.parent, Half::Lower);
        else
            DragByMouse(place.name, NameOf(tree->GetRootItem()), Half::Upper);
        // The lower half of an open folder means its first place: what stands after it goes before the next.
        if (!IsInPlace(place))
            DragByMouse(place.name, NameOf(tree->GetNextSiblingItem(At(place.previous))), Half::Upper);
        ASSERT_TRUE(IsInPlace(place)) << place.name << " in " << Outline();
    }
    EXPECT_EQ(Outline(), Order);
}

TEST_F(RealUse, ByUpAndDownAlone)
{
    for (const Place& place : wanted)
    {
        Click(*tree, PointIn(At(place.name), Half::Lower));
        ASSERT_EQ(Selected(), place.name);
        for (int presses = 0; presses < 100 && !IsInPlace(place); ++presses)
        {
            const std::string before = place.previous != "none" ? place.previous : place.parent;
            const bool isAfter = before == "none" || PositionOf(At(place.name)) > PositionOf(At(before));
            PressButton(isAfter ? UpButton : DownButton);
        }
        ASSERT_TRUE(IsInPlace(place)) << place.name << " in " << Outline();
    }
    EXPECT_EQ(Outline(), Order);
}

} // namespace
