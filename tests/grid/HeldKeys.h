// Shift and Ctrl for messages that a test sends itself.
#pragma once

#include <afxwin.h>

#include <initializer_list>

namespace quor::test
{

// Keys that the thread sees as held for as long as the object lives.
class HeldKeys
{
public:
    HeldKeys(std::initializer_list<int> keys)
    {
        ::GetKeyboardState(before);
        BYTE held[256];
        ::GetKeyboardState(held);
        for (const int key : keys)
            held[key] = 0x80;
        ::SetKeyboardState(held);
    }
    ~HeldKeys() { ::SetKeyboardState(before); }
    HeldKeys(const HeldKeys&) = delete;
    HeldKeys& operator=(const HeldKeys&) = delete;

private:
    BYTE before[256];
};

} // namespace quor::test
