// UndoHistory: the steps of an undo stack, their order and their limits.
#pragma once

#include "undo/UndoChange.h"

#include <deque>
#include <memory>
#include <span>
#include <vector>

namespace QuorUiCtr
{

// What is asked before and told after a step is taken back.
class UndoListener
{
public:
    virtual ~UndoListener() = default;
    virtual bool AskStep(bool back, const CString& name) = 0;
    virtual void TellStep(bool back, const CString& name) = 0;
    virtual void TellEnded() = 0;
    virtual void TellHistory() = 0;
    // See TGUndoStack.
    virtual bool RunKey(const MSG& message) = 0;
};

// Keeps what recorders hand in, in the order in which it happened.
//
// The history stands at a position between two steps. What changes there without being a step, as folding
// does and what hooks do while a step is taken back, drifts away from the position: it is taken back before
// the next step is, in either direction, and comes back when a step is made again; a step that is added has
// it for its beginning.
class UndoHistory
{
public:
    explicit UndoHistory(UndoListener& heard) : listener(heard) {}
    ~UndoHistory();
    UndoHistory(const UndoHistory&) = delete;
    UndoHistory& operator=(const UndoHistory&) = delete;

    // ---- Controls

    void Add(std::shared_ptr<UndoRecorder> recorder);
    UndoListener& GetListener() const { return listener; }
    // Makes the recorder of a control leave; false without one.
    bool Leave(const CWnd& control);
    // The recorder of a control; null when it is not watched.
    UndoRecorder* Find(const CWnd& control) const;
    const std::vector<std::shared_ptr<UndoRecorder>>& GetRecorders() const { return recorders; }
    // Forgets a recorder with all that it has recorded. It may be deleted then.
    void Remove(UndoRecorder& recorder);

    // ---- Recording

    // Changes are to be recorded; else they are left out.
    bool IsRecording() const { return leavingOut == 0; }
    void BeginLeavingOut() { ++leavingOut; }
    void EndLeavingOut() { --leavingOut; }
    // From one to the other all changes are one step; they nest, and the outermost name counts. The recorder
    // of the control that the step begins with, if any, has its view kept. `joins`: the step becomes a part
    // of the one before it.
    void BeginStep(UndoRecorder* recorder, const UndoName& name);
    void EndStep(bool joins = false);
    // Instead of BeginStep: goes on with the last step, when it is the one behind which the history stands at
    // `position`, and nothing has happened since. False: it is not, and nothing has begun.
    bool ContinueStep(unsigned position);
    // Where the history stands: no two positions have the same number.
    unsigned Position() const { return undo.empty() ? base : undo.back()->id; }
    bool IsInStep() const { return depth > 0; }
    // A change that has happened. Outside of steps it is one.
    void Record(std::unique_ptr<UndoChange> change);
    // The change that takes back the one that is being reverted.
    void RecordBack(std::unique_ptr<UndoChange> change);
    // The last change where Record, or RecordBack, would put another; null without one.
    UndoChange* GetLast(bool back) const;
    // A step is being taken back just now.
    bool IsReverting() const { return mirror != nullptr; }
    // Neither undoing nor redoing is possible: one of them is going on.
    bool IsBusy() const { return busy; }
    // Calls `use` for every change of a recorder, from the last one to the first.
    template <class Use> void ForChanges(const UndoRecorder& recorder, Use use);

    // ---- Going back and forth

    bool CanGo(bool back) const;
    bool Go(bool back);
    long GetNum(bool back) const { return static_cast<long>((back ? undo : redo).size()); }
    // The step that Go would take is 0.
    CString GetName(bool back, long i) const;
    void Clear();
    // Nothing more is known of the controls.
    void End();

    // ---- Limits and the saved point

    void SetLimits(long steps, std::size_t bytes);
    std::size_t GetBytes() const;
    // Steps are being dropped, with the rows and columns that they own.
    bool IsDropping() const { return dropping; }
    void SetSaved();
    bool IsSaved() const { return saved == Position(); }

private:
    using Changes = std::vector<std::unique_ptr<UndoChange>>;
    using Held = std::vector<std::shared_ptr<UndoRecorder>>;
    static constexpr unsigned NoPosition = 0xFFFFFFFF;

    // What one control has shown.
    struct Views
    {
        UndoRecorder* recorder;
        std::shared_ptr<UndoView> before;
        std::shared_ptr<UndoView> after;
    };
    struct Step
    {
        UndoName name;
        // Tells the position behind it from all others.
        unsigned id = 0;
        bool isHosts = false;
        Changes changes = {};
        // Of a step that was undone: what had drifted away from the position behind it, taken back.
        Changes away = {};
        std::vector<Views> views = {};
        std::size_t bytes = 0;

        bool IsBroken() const;
        bool IsView() const;
        void Weigh();
        Views& ViewsOf(UndoRecorder& recorder);
    };
    using Steps = std::deque<std::unique_ptr<Step>>;
    // Changes on the stack, as long as it lives: those that are being taken back, and what takes these back.
    // Hooks may let a control leave meanwhile, or delete rows.
    class Passing;

    static void Append(Changes& changes, std::unique_ptr<UndoChange> change);
    static std::size_t BytesOf(const Changes& changes);
    std::shared_ptr<UndoRecorder> Hold(const UndoRecorder* recorder) const;
    void Push(std::unique_ptr<Step> step, bool joins);
    bool JoinsLast(Step& step);
    void Put(Steps& steps, std::unique_ptr<Step> step);
    std::unique_ptr<Step> TakeLast(Steps& steps);
    void Drop(Steps& steps);
    static void Drop(Changes& changes);
    void DropFirst(Steps& steps);
    void KeepLimits();
    void RemoveFrom(Steps& steps, const UndoRecorder& recorder, unsigned before);
    bool GoBy(bool back);
    bool HasGone(const Step& reversed, const Held& touched) const;
    Held Touched();
    void DriftAgain();
    bool RevertAll(Changes& changes) const;
    void RollForward(Step& reversed, Step& away);
    void Finish(const std::vector<Views>& views, const Held& touched, bool back);
    void TellChanged(const Held& touched);
    // The steps on one side cannot be reached any more, from a position.
    void EndSide(bool back, unsigned position);

    UndoListener& listener;
    std::vector<std::shared_ptr<UndoRecorder>> recorders;
    // The last step done, and the next one to be done again, are at the back.
    Steps undo;
    Steps redo;
    Changes drift;
    // The step that is being recorded.
    std::unique_ptr<Step> open;
    int depth = 0;
    int leavingOut = 0;
    // What takes back the step that is being reverted; null at other times.
    Step* mirror = nullptr;
    // That step itself, as far as it is not reverted yet.
    std::unique_ptr<Step> taken;
    std::vector<Changes*> passing;
    // A step is being taken back, from the question to the last word.
    bool busy = false;
    // The position is another one already: what changes now drifts away from it.
    bool settling = false;
    bool dropping = false;

    // Of all steps.
    std::size_t bytes = 0;
    long maxSteps = 0;
    std::size_t maxBytes = 0;
    unsigned lastId = 0;
    // The positions below the first step, and where the host has saved.
    unsigned base = 0;
    unsigned saved = 0;
};

template <class Use> void UndoHistory::ForChanges(const UndoRecorder& recorder, Use use)
{
    const auto useAll = [&](Changes& changes) {
        for (auto change = changes.rbegin(); change != changes.rend(); ++change)
            if (*change != nullptr && &(*change)->GetRecorder() == &recorder)
                use(**change);
    };
    for (Changes* changes : passing)
        useAll(*changes);
    if (taken != nullptr)
    {
        useAll(taken->changes);
        useAll(taken->away);
    }
    useAll(drift);
    if (open != nullptr)
        useAll(open->changes);
    for (Steps* steps : {&redo, &undo})
        for (auto step = steps->rbegin(); step != steps->rend(); ++step)
        {
            useAll((*step)->changes);
            useAll((*step)->away);
        }
}

} // namespace QuorUiCtr
