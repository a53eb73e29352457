// An undo stack goes back and forth by its steps.
#include "undo/UndoHistory.h"

#include "grid/model/ScopedValue.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace QuorUiCtr
{

class UndoHistory::Passing
{
public:
    Passing(UndoHistory& itsHistory, std::initializer_list<Changes*> lists)
        : history(itsHistory), before(itsHistory.passing.size())
    {
        history.passing.insert(history.passing.end(), lists);
    }
    ~Passing() { history.passing.resize(before); }
    Passing(const Passing&) = delete;
    Passing& operator=(const Passing&) = delete;

private:
    UndoHistory& history;
    std::size_t before;
};

bool UndoHistory::CanGo(bool back) const
{
    for (const auto& recorder : std::vector(recorders))
        recorder->Settle();
    const Steps& steps = back ? undo : redo;
    return !busy && depth == 0 && !steps.empty() && !steps.back()->IsBroken();
}

CString UndoHistory::GetName(bool back, long i) const
{
    const Steps& steps = back ? undo : redo;
    if (i < 0 || i >= static_cast<long>(steps.size()))
        return CString();
    return steps[steps.size() - 1 - static_cast<std::size_t>(i)]->name.Get();
}

bool UndoHistory::Go(bool back)
{
    if (busy || depth > 0)
        return false;
    const ScopedValue guard(busy, true);
    for (const auto& recorder : std::vector(recorders))
        if (Hold(recorder.get()) != nullptr)
            recorder->EndEdit();
    Steps& steps = back ? undo : redo;
    for (const auto& recorder : std::vector(recorders))
        recorder->Settle();
    if (depth > 0 || steps.empty())
        return false;
    if (steps.back()->IsBroken())
    {
        EndSide(back, Position());
        return false;
    }
    const unsigned id = steps.back()->id;
    const CString name = steps.back()->name.Get();
    // Who is asked may change everything.
    if (!listener.AskStep(back, name) || depth > 0 || steps.empty() || steps.back()->id != id)
        return false;
    if (!GoBy(back))
        return false;
    {
        const ScopedValue drifting(settling, true);
        listener.TellStep(back, name);
    }
    listener.TellHistory();
    return true;
}

bool UndoHistory::GoBy(bool back)
{
    const ScopedValue guard(settling, true);
    const unsigned position = Position();
    taken = TakeLast(back ? undo : redo);
    auto reversed = std::make_unique<Step>();
    reversed->name = taken->name;
    reversed->id = taken->id;
    reversed->isHosts = taken->isHosts;
    const Held touched = Touched();
    for (const auto& recorder : touched)
        recorder->BeginRevert();
    // What others change meanwhile drifts away from the new position.
    Changes drifted = std::exchange(drift, {});
    const bool hadDrift = !drifted.empty();
    Step away;
    bool isDone = false;
    {
        const Passing lists(*this, {&drifted, &away.changes, &reversed->changes});
        mirror = &away;
        isDone = RevertAll(drifted);
        mirror = reversed.get();
        isDone = isDone && RevertAll(taken->changes);
    }
    const std::vector<Views> views = taken->views;
    const bool isGone = isDone && HasGone(*reversed, touched);
    if (isGone)
        saved = saved == reversed->id ? Position() : saved;
    else if (isDone)
    {
        if (!back)
            DriftAgain();
        else
            reversed->away = std::move(away.changes);
        reversed->views = views;
        Put(back ? redo : undo, std::move(reversed));
    }
    else
    {
        RollForward(*reversed, away);
        if (hadDrift)
            Drop(back ? redo : undo);
        EndSide(back, position);
    }
    mirror = nullptr;
    taken.reset();
    {
        const ScopedValue dropped(dropping, true);
        away.changes.clear();
    }
    Finish(isDone ? views : std::vector<Views>(), touched, back);
    if (isDone)
        TellChanged(touched);
    KeepLimits();
    return isDone && !isGone;
}

// The controls of a step have left while it was taken back, as RemoveFrom has it for all others.
bool UndoHistory::HasGone(const Step& reversed, const Held& touched) const
{
    return reversed.changes.empty() &&
           std::any_of(touched.begin(), touched.end(),
                       [this](const auto& recorder) { return Hold(recorder.get()) == nullptr; });
}

// What was shown at the position is shown again. What hooks have changed there they change again.
void UndoHistory::DriftAgain()
{
    const auto isView = [](const auto& change) { return change->IsView(); };
    if (!std::all_of(taken->away.begin(), taken->away.end(), isView))
        return;
    Step again;
    {
        const Passing list(*this, {&again.changes});
        mirror = &again;
        RevertAll(taken->away);
        mirror = nullptr;
    }
    for (auto& change : again.changes)
        Append(drift, std::move(change));
}

UndoHistory::Held UndoHistory::Touched()
{
    Held touched;
    for (Changes* changes : {&taken->changes, &taken->away, &drift})
        for (const auto& change : *changes)
        {
            const auto recorder = Hold(&change->GetRecorder());
            if (std::find(touched.begin(), touched.end(), recorder) == touched.end())
                touched.push_back(recorder);
        }
    return touched;
}

bool UndoHistory::RevertAll(Changes& changes) const
{
    while (!changes.empty())
    {
        changes.back()->GetRecorder().Settle();
        if (changes.empty())
            return false;
        const std::unique_ptr<UndoChange> change = std::move(changes.back());
        changes.pop_back();
        const bool isDone = !change->IsBroken() && change->Fits() && change->Revert();
        // A control that has left meanwhile has taken the rest of its changes along.
        if (!isDone && Hold(&change->GetRecorder()) != nullptr)
            return false;
    }
    return true;
}

// Makes again what has been taken back of a step that does not fit.
void UndoHistory::RollForward(Step& reversed, Step& away)
{
    Step again;
    mirror = &again;
    Changes made = std::exchange(reversed.changes, {});
    Changes drifted = std::exchange(away.changes, {});
    {
        const Passing lists(*this, {&made, &drifted, &again.changes});
        if (!RevertAll(made) || !RevertAll(drifted))
            End();
    }
    const ScopedValue guard(dropping, true);
    again.changes.clear();
}

// Hooks may make a control leave, or drop the steps.
void UndoHistory::Finish(const std::vector<Views>& views, const Held& touched, bool back)
{
    for (const auto& recorder : touched)
    {
        std::shared_ptr<UndoView> view;
        for (const Views& kept : views)
            if (kept.recorder == recorder.get())
                view = back ? kept.before : kept.after;
        recorder->EndRevert(view.get());
    }
}

void UndoHistory::TellChanged(const Held& touched)
{
    for (const auto& recorder : touched)
        if (Hold(recorder.get()) != nullptr)
            recorder->TellChanged();
    const bool isSaved = IsSaved();
    for (const auto& recorder : Held(isSaved ? recorders : touched))
        if (Hold(recorder.get()) != nullptr)
            recorder->MarkModified(!isSaved);
}

void UndoHistory::EndSide(bool back, unsigned position)
{
    Drop(back ? undo : redo);
    if (back)
        base = position;
    Drop(drift);
    listener.TellEnded();
    listener.TellHistory();
}

} // namespace QuorUiCtr
