// What a step that is taken back shows: nothing while it goes on, all of it at its end.
#include "tests/undo/WatchedTree.h"

#include "tests/support/Snapshot.h"

#include <string>

namespace
{

using namespace quor::test;

// Sees the messages of a tree's window for as long as it lives.
class SeenTree
{
public:
    explicit SeenTree(HWND window) : tree(window)
    {
        drawing.clear();
        isUnaided = false;
        before = reinterpret_cast<WNDPROC>(
            ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&SeenTree::Procedure)));
    }
    ~SeenTree() { ::SetWindowLongPtrW(tree, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(before)); }
    SeenTree(const SeenTree&) = delete;
    SeenTree& operator=(const SeenTree&) = delete;

    // Drawing that is switched on and off, and what comes and goes in between.
    static inline std::string drawing;
    // The platform's tree may paint itself anew when drawing is switched on again, or leave that to the
    // program. This one leaves it.
    static inline bool isUnaided = false;

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_SETREDRAW)
            drawing += wParam != 0 ? "on " : "off ";
        if (message == TVM_INSERTITEMW)
            drawing += "insert ";
        if (message == TVM_SETITEMW)
            drawing += "set ";
        if (message == TVM_DELETEITEM)
            drawing += "delete ";
        const LRESULT result = ::CallWindowProcW(before, window, message, wParam, lParam);
        if (message == WM_SETREDRAW && isUnaided)
            ::ValidateRect(window, nullptr);
        return result;
    }

    static inline WNDPROC before = nullptr;
    HWND tree;
};

using TreeStepsOnScreen = WatchedTreeTest;

TEST_F(TreeStepsOnScreen, DrawNothingUntilTheyAreDone)
{
    Begin("a f+[x y] b");
    tree->DeleteItem(At("f"));
    const SeenTree seen(*tree);
    Undo();
    EXPECT_EQ(seen.drawing, "off insert insert insert on ");
    seen.drawing.clear();
    Redo();
    EXPECT_EQ(seen.drawing, "off delete on ");
}

TEST_F(TreeStepsOnScreen, AreToBePaintedWhereThePlatformDoesNotDoItByItself)
{
    Begin("a f+[x y] b");
    Select("b");
    tree->DeleteItem(At("x"));
    const SeenTree seen(*tree);
    seen.isUnaided = true;
    for (const bool isUndo : {true, false})
    {
        tree->UpdateWindow();
        isUndo ? Undo() : Redo();
        CRect client;
        tree->GetClientRect(client);
        CRect due;
        EXPECT_TRUE(tree->GetUpdateRect(due));
        EXPECT_EQ(due, client);
    }
}

TEST_F(TreeStepsOnScreen, ShowWhatCameBack)
{
    Begin("a b");
    const int row = [this] {
        CRect second;
        tree->GetItemRect(At("b"), second, FALSE);
        return second.CenterPoint().y;
    }();
    const CRect beside(0, row - 5, 60, row + 5);
    tree->DeleteItem(At("b"));
    EXPECT_TRUE(Snapshot(*tree).IsUniform(beside));
    Undo();
    EXPECT_FALSE(Snapshot(*tree).IsUniform(beside));
    Redo();
    EXPECT_TRUE(Snapshot(*tree).IsUniform(beside));
}

} // namespace
