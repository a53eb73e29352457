// Random drags of rows with random vetoes, compared with a list of letters: no row and no host data is lost
// or comes twice.
#include "tests/grid/HeaderFixture.h"
#include "tests/grid/ModelGrid.h"

#include <algorithm>
#include <random>
#include <utility>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// Host data that knows the row it was given to.
struct NamedData : CountedData
{
    explicit NamedData(char rowName) : name(rowName) {}
    char name;
};

// What the grid is to look like: the rows with a mark for the selected ones.
class ReferenceRows
{
public:
    explicit ReferenceRows(const std::string& letters) : rows(letters) {}

    void Select(const std::vector<long>& indices)
    {
        selected.clear();
        for (const long i : indices)
            selected += rows[static_cast<std::size_t>(i)];
    }
    // The selected rows leave, then enter as one run before what stood at `to`, or at the end turned around.
    void Move(std::size_t to)
    {
        std::string above = rows.substr(0, to);
        std::string below = rows.substr(to);
        const auto isSelected = [this](char row) { return selected.find(row) != std::string::npos; };
        std::erase_if(above, isSelected);
        std::erase_if(below, isSelected);
        std::string moved = selected;
        if (below.empty())
            std::reverse(moved.begin(), moved.end());
        rows = above + moved + below;
    }
    std::string Text() const
    {
        std::string text;
        for (const char row : rows)
            text += (text.empty() ? "" : " ") + std::string(1, row) +
                    (selected.find(row) != std::string::npos ? "*" : "");
        return text;
    }
    bool IsSelected(std::size_t i) const { return selected.find(rows[i]) != std::string::npos; }

private:
    std::string rows;
    std::string selected; // in the order of the rows
};

class RandomDrags : public HeaderFixture
{
protected:
    long Below(long limit) { return std::uniform_int_distribution<long>(0, limit - 1)(random); }

    std::vector<long> SomeRows(long number)
    {
        std::vector<long> some;
        for (long i = 0; i < number; ++i)
            if (Below(3) == 0)
                some.push_back(i);
        if (some.empty())
            some.push_back(Below(number));
        return some;
    }

    // At most one of the hooks of a drag, or none.
    std::string SomeVeto()
    {
        static const char* const hooks[] = {"OnBeginMoveRow", "OnMovingRow", "OnMoveRow", "", "", ""};
        return hooks[Below(6)];
    }

    // What a hook does to the rows: some at every call, some once.
    void Act(CommandGrid& grid, long act)
    {
        if (act == 0 || act == 4)
            grid.actions.clear();
        if (act <= 1 && grid.GetRowNum() > 2)
            grid.DelRowEx(Below(grid.GetRowNum()));
        else if (act == 2 && grid.GetRowNum() < 30)
            grid.InsertRow(0, nullptr);
        else if (act == 3 && !grid.IsTreeGrid())
            grid.MoveRow(0, grid.GetRowNum());
        else if (act == 4)
            grid.Clear();
    }

    void AddData(CommandGrid& grid)
    {
        for (long i = 0; i < grid.GetRowNum(); ++i)
            grid.GetRow(i).SetExtendData(new NamedData(FirstText(grid.GetRow(i))[0]));
    }
    static void CheckData(CommandGrid& grid)
    {
        for (long i = 0; i < grid.GetRowNum(); ++i)
        {
            const auto* data = static_cast<NamedData*>(grid.GetRow(i).GetExtendData());
            ASSERT_NE(data, nullptr);
            ASSERT_EQ(FirstText(grid.GetRow(i))[0], data->name);
        }
    }

    std::mt19937 random;
};

TEST_F(RandomDrags, OfPlainRows_LoseNothing)
{
    constexpr unsigned Seed = 20261121;
    SCOPED_TRACE(Seed);
    random.seed(Seed);
    const std::string letters = "abcdefghijkl";
    const long number = static_cast<long>(letters.size());
    CountedData::alive = 0;
    {
        CommandGrid grid;
        Make(grid, letters);
        AddData(grid);
        grid.SelectRows({0});
        grid.DoCopy();
        ReferenceRows reference(letters);
        for (int step = 0; step < 300; ++step)
        {
            const std::vector<long> selected = SomeRows(number);
            grid.UnSelect();
            for (const long i : selected)
                grid.SelectRow(i, true);
            reference.Select(selected);
            const long from = selected[static_cast<std::size_t>(Below(static_cast<long>(selected.size())))];
            const long to = Below(number + 3);
            const std::string veto = SomeVeto();
            grid.vetoes = {veto};
            DragRow(grid, from, to);
            if (veto.empty() && to != from && to <= number)
                reference.Move(static_cast<std::size_t>(to));
            ASSERT_EQ(grid.Rows(), reference.Text()) << "step " << step << " from " << from << " to " << to;
            ASSERT_NO_FATAL_FAILURE(CheckData(grid));
            ASSERT_EQ(CountedData::alive, number);
            ASSERT_EQ(grid.Buffer(), "a");
            ASSERT_EQ(::GetCapture(), nullptr);
        }
        EXPECT_TRUE(ShowsNoTrace(grid));
    }
    EXPECT_EQ(CountedData::alive, 0);
}

// Where rows end up in a tree depends on their neighbours; that none is lost or doubled does not.
TEST_F(RandomDrags, OfTreeRows_LoseNothing)
{
    constexpr unsigned Seed = 7;
    SCOPED_TRACE(Seed);
    random.seed(Seed);
    CountedData::alive = 0;
    {
        CommandGrid grid(true);
        Make(grid, "abcdef");
        AddData(grid);
        for (const long parent : {1L, 3L, 4L})
            for (long k = 0; k < 3; ++k)
            {
                const char name = static_cast<char>('g' + CountedData::alive - 6);
                grid.AddChild(grid.GetTreeRow(parent), name).SetExtendData(new NamedData(name));
            }
        const auto letters = [&] {
            std::string found;
            for (const char character : grid.Rows())
                if (character >= 'a' && character <= 'z')
                    found += character;
            std::sort(found.begin(), found.end());
            return found;
        };
        const std::string all = letters();
        ASSERT_EQ(all, "abcdefghijklmno");
        for (int step = 0; step < 300; ++step)
        {
            TGGridTreeRow& folded = grid.GetTreeRow(Below(grid.GetRowNum()));
            folded.IsFold() ? folded.UnFold() : folded.Fold();
            const std::vector<long> selected = SomeRows(grid.GetRowNum());
            grid.UnSelect();
            for (const long i : selected)
                grid.SelectRow(i, true);
            const std::string before = grid.Rows();
            const std::string veto = SomeVeto();
            grid.vetoes = {veto};
            const long from = selected[static_cast<std::size_t>(Below(static_cast<long>(selected.size())))];
            const long to = Below(grid.GetRowNum() + 2);
            grid.TakeLog();
            DragRow(grid, from, to);
            if (!veto.empty())
            {
                ASSERT_EQ(grid.Rows(), before)
                    << "step " << step << " from " << from << " to " << to << " " << veto << ": "
                    << grid.TakeText() << " scroll " << grid.VScroll();
            }
            ASSERT_EQ(letters(), all)
                << "step " << step << " from " << from << " to " << to << " before " << before;
            ASSERT_NO_FATAL_FAILURE(CheckData(grid));
            ASSERT_EQ(CountedData::alive, 15);
        }
        EXPECT_TRUE(ShowsNoTrace(grid));
    }
    EXPECT_EQ(CountedData::alive, 0);
}

// Hooks that delete, add and move rows while rows are dragged.
TEST_F(RandomDrags, WithHooksThatChangeTheRows_KeepTheGridConsistent)
{
    constexpr unsigned Seed = 99;
    SCOPED_TRACE(Seed);
    random.seed(Seed);
    static const char* const hooks[] = {"OnBeginMoveRow", "OnMovingRow",   "OnMoveRow",
                                        "OnEndMoveRow",   "OnDataChanged", "OnCurChanged"};
    for (int step = 0; step < 120; ++step)
    {
        CountedData::alive = 0;
        {
            CommandGrid grid(step % 2 == 1);
            Make(grid, "abcdefgh");
            if (grid.IsTreeGrid())
            {
                grid.AddChild(grid.GetTreeRow(2), 'x');
                grid.AddChild(grid.GetTreeRow(2), 'y');
                grid.GetTreeRow(2).UnFold();
            }
            AddData(grid);
            for (const long i : SomeRows(grid.GetRowNum()))
                grid.SelectRow(i, true);
            const long from = grid.GetSelRow(0).GetIndex();
            const long act = Below(5);
            const char* hook = hooks[Below(6)];
            bool acting = false;
            grid.actions[hook] = [&] {
                if (!std::exchange(acting, true))
                {
                    Act(grid, act);
                    acting = false;
                }
            };
            DragRow(grid, from, Below(10));
            grid.actions.clear();
            grid.Rows();
            EXPECT_EQ(::GetCapture(), nullptr);
            EXPECT_EQ(grid.Buffer(), "");
        }
        ASSERT_EQ(CountedData::alive, 0) << "step " << step;
    }
}

} // namespace
} // namespace quor::test
