// Input for drags: the platform's tree waits in a loop of its own for the first move.
#include "tests/treedrag_input/DragInput.h"

namespace quor::test
{

namespace
{

void QueueMouse(DWORD flags, int dx = 0, int dy = 0)
{
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    input.mi.dx = dx;
    input.mi.dy = dy;
    ::SendInput(1, &input, sizeof input);
}

} // namespace

DragInputTest::DragInputTest(CSize size) : DragTreeTest(UsualStyle, size)
{
    // Two drags from one place are no double click, however fast they are.
    ::SetDoubleClickTime(1);
    if (!Activate(owner))
        ADD_FAILURE() << "the window does not become active";
    tree->SetFocus();
}

DragInputTest::~DragInputTest()
{
    ::SetDoubleClickTime(m_doubleClickTime);
}

void DragInputTest::StartDrag(const std::string& name)
{
    MoveMouse(*tree, PointIn(At(name), Half::Upper) + CPoint(0, 3));
    // All at once: while the button is down and the mouse rests, the tree gives no other code a turn.
    QueueMouse(MOUSEEVENTF_LEFTDOWN);
    QueueMouse(MOUSEEVENTF_MOVE, 12, 0);
    QueueMouse(MOUSEEVENTF_MOVE, 1, 0);
    ASSERT_TRUE(PumpUntil([this] { return tree->IsDragging() != FALSE; })) << name;
    PumpPending();
}

void DragInputTest::MoveOver(const std::string& name, Half half)
{
    MoveMouse(*tree, PointIn(At(name), half));
}

void DragInputTest::Release()
{
    QueueMouse(MOUSEEVENTF_LEFTUP);
    ASSERT_TRUE(PumpUntil([this] { return tree->GetSafeHwnd() == nullptr || !tree->IsDragging(); }));
    PumpPending();
}

void DragInputTest::DragByMouse(const std::string& name, const std::string& target, Half half)
{
    StartDrag(name);
    MoveOver(target, half);
    Release();
}

CPoint DragInputTest::MousePoint() const
{
    CPoint point;
    ::GetCursorPos(&point);
    tree->ScreenToClient(&point);
    return point;
}

} // namespace quor::test
