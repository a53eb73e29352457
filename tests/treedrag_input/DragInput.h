// Drags of a tree's items with the real mouse.
#pragma once

#include "tests/treedrag/DragTreeTest.h"

namespace quor::test
{

class DragInputTest : public DragTreeTest
{
protected:
    explicit DragInputTest(CSize size = CSize(260, 300));
    ~DragInputTest() override;

    // Presses the button on an item and moves until the tree has begun the drag.
    void StartDrag(const std::string& name);
    // Moves the mouse during a drag.
    void MoveOver(const std::string& name, Half half);
    // Lets the button go where the mouse is.
    void Release();
    void DragByMouse(const std::string& name, const std::string& target, Half half);
    // Where the mouse is, in client coordinates of the tree.
    CPoint MousePoint() const;

private:
    UINT m_doubleClickTime = ::GetDoubleClickTime();
};

} // namespace quor::test
