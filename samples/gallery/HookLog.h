// HookLog: how the gallery's grids write what their hooks are told.
#pragma once

#include "samples/recording/HookCall.h"

class LogPane;

// Writes one line per hook call with its arguments; rows and columns are named as the interface names them,
// from 0. The hooks that draw are counted and summed up in one line per painting, and only when asked for.
class HookLog
{
public:
    // `pane` outlives the log.
    explicit HookLog(LogPane& logPane) : pane(logPane) {}

    void LogPainting(bool on) { logPainting = on; }
    // Writes a call, with the remark behind it, or counts it.
    void Add(const samples::HookCall& call);
    void Add(const CString& line);
    // What the line of the next call says besides its arguments, such as ": refused".
    void Remark(const CString& text) { remark = text; }
    // Writes the line about the drawing hooks, if there were any.
    void EndPainting();

private:
    // How often each drawing hook was called.
    struct PaintCount
    {
        long rows;
        long cells;
        long colours;
    };

    void Count(const samples::HookCall& call);

    LogPane& pane;
    bool logPainting = false;
    PaintCount painted = {};
    CString remark;
};
