// What a mode of the fuzzer does with its control.
#pragma once

#include <afxwin.h>

#include <memory>
#include <string>
#include <vector>

namespace quor::fuzz
{

// A control under test with its host. It lives for some hundred steps, is destroyed and made anew.
class Subject
{
public:
    virtual ~Subject() = default;

    // Makes the control in `parent`, and fills it, by the dice of the step.
    virtual void Create(CWnd& parent) = 0;
    virtual void Destroy() = 0;
    // The control's window; null when the host has destroyed it.
    virtual HWND Window() = 0;
    // Before a message or a call; an editor, for example, is opened.
    virtual void Prepare() {}
    // A public operation.
    virtual void Call() = 0;
    // Fails when the state contradicts itself.
    virtual void Check() = 0;
    // A number that sums up the state.
    virtual unsigned long Digest() = 0;
    // What reaches the parent of the control; returns whether `result` is the answer.
    virtual bool OnHostMessage(UINT, WPARAM, LPARAM, LRESULT&) { return false; }
    // One in so many steps is a call, the others are messages.
    virtual long CallsOneIn() { return 3; }
    // The window that a message goes to; by default the control or, less often, one of the windows in it.
    virtual HWND Target();
};

struct Mode
{
    const char* name;
    std::unique_ptr<Subject> (*make)(bool bare);
};

const std::vector<Mode>& AllModes();

} // namespace quor::fuzz
