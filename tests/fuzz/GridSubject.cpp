// The modes of grids: plain, tree rows, tree grid, header windows, editors.
#include "tests/fuzz/GridInvariants.h"
#include "tests/fuzz/HostileHooks.h"
#include "tests/fuzz/Modes.h"

#include "grid/TGTreeGrid.h"

#include <memory>

namespace quor::fuzz
{

using namespace QuorUiCtr;

namespace
{

constexpr int OpenEditor = 101;
constexpr int QuadId = 102;
constexpr int RowHeaderId = 104;

enum class Focus
{
    Everything,
    Headers,
    Editors
};

std::unique_ptr<TGGrid> MakePlain()
{
    return std::make_unique<HostileHooks<TGGrid>>(false, 60);
}

std::unique_ptr<TGGrid> MakeTreeRows()
{
    return std::make_unique<HostileHooks<TGGrid>>(true, 60);
}

std::unique_ptr<TGGrid> MakeTreeGrid()
{
    return std::make_unique<HostileHooks<TGTreeGrid>>(true);
}

class GridSubject : public Subject
{
public:
    GridSubject(std::unique_ptr<TGGrid> (*maker)(), Focus chosen) : make(maker), focus(chosen) {}

    void Create(CWnd& parent) override
    {
        grid = make();
        if (Dice().OneIn(2))
            FillGrid(*grid, focus == Focus::Editors);
        grid->Create(CRect(10, 10, 230, 170), WS_CHILD | WS_VISIBLE, &parent);
        if (grid->IsColEmpty())
            FillGrid(*grid, focus == Focus::Editors);
    }

    void Destroy() override { grid.reset(); }
    HWND Window() override { return grid ? grid->GetSafeHwnd() : nullptr; }

    void Prepare() override
    {
        if (focus != Focus::Editors || grid->IsEditing() || Dice().OneIn(4))
            return;
        const long col = AnyCol(*grid);
        if (col < 0)
            return;
        const long row = Dice().Below(grid->GetRowNum() + 1);
        Say("opens an editor at %ld,%ld", row, col);
        grid->BeginEditCell(row, col);
    }

    void Call() override
    {
        if (grid->IsTreeGrid() && !Dice().OneIn(3))
            CallTreeRows(*grid);
        else
            CallGrid(*grid);
    }

    long CallsOneIn() override { return focus == Focus::Everything ? 3 : 6; }

    HWND Target() override
    {
        if (focus == Focus::Headers && !Dice().OneIn(5))
            if (const HWND header =
                    ::GetDlgItem(*grid, static_cast<int>(Dice().Between(QuadId, RowHeaderId))))
                return header;
        const HWND editor = ::GetDlgItem(*grid, OpenEditor);
        if (focus == Focus::Editors && editor != nullptr && !Dice().OneIn(4))
        {
            const HWND part = ::GetWindow(editor, GW_CHILD);
            return part != nullptr && Dice().OneIn(3) ? part : editor;
        }
        return Subject::Target();
    }

    void Check() override { CheckGrid(*grid); }
    unsigned long Digest() override { return Window() != nullptr ? DigestOfGrid(*grid) : 0; }

private:
    std::unique_ptr<TGGrid> (*make)();
    Focus focus;
    std::unique_ptr<TGGrid> grid;
};

} // namespace

std::unique_ptr<Subject> MakeGridMode(bool)
{
    return std::make_unique<GridSubject>(MakePlain, Focus::Everything);
}

std::unique_ptr<Subject> MakeTreeRowsMode(bool)
{
    return std::make_unique<GridSubject>(MakeTreeRows, Focus::Everything);
}

std::unique_ptr<Subject> MakeTreeGridMode(bool)
{
    return std::make_unique<GridSubject>(MakeTreeGrid, Focus::Everything);
}

std::unique_ptr<Subject> MakeHeadersMode(bool)
{
    return std::make_unique<GridSubject>(MakePlain, Focus::Headers);
}

std::unique_ptr<Subject> MakeEditorsMode(bool)
{
    return std::make_unique<GridSubject>(MakePlain, Focus::Editors);
}

} // namespace quor::fuzz
