// The steps of an undo stack: recorded, kept within limits, dropped.
#include "undo/UndoHistory.h"

#include "grid/model/ScopedValue.h"

#include <algorithm>
#include <utility>

namespace QuorUiCtr
{

bool UndoChange::Merge(UndoChange&)
{
    return false;
}

CString UndoName::Get() const
{
    if (!words.IsEmpty())
        return words;
    if (number <= 1)
        return QuorTexts::Get(one);
    CString text;
    text.Format(L"%d", static_cast<int>(number));
    CString name = QuorTexts::Get(many);
    name.Replace(L"%d", text);
    return name;
}

// ---- Steps

bool UndoHistory::Step::IsBroken() const
{
    return std::any_of(changes.begin(), changes.end(), [](const auto& change) { return change->IsBroken(); });
}

bool UndoHistory::Step::IsView() const
{
    return std::all_of(changes.begin(), changes.end(), [](const auto& change) { return change->IsView(); });
}

void UndoHistory::Step::Weigh()
{
    bytes = sizeof(Step) + BytesOf(changes) + BytesOf(away);
}

UndoHistory::Views& UndoHistory::Step::ViewsOf(UndoRecorder& recorder)
{
    const auto found = std::find_if(views.begin(), views.end(),
                                    [&](const Views& kept) { return kept.recorder == &recorder; });
    if (found != views.end())
        return *found;
    views.push_back({&recorder, nullptr, nullptr});
    return views.back();
}

void UndoHistory::Append(Changes& changes, std::unique_ptr<UndoChange> change)
{
    if (changes.empty() || &changes.back()->GetRecorder() != &change->GetRecorder() ||
        !changes.back()->Merge(*change))
        changes.push_back(std::move(change));
}

std::size_t UndoHistory::BytesOf(const Changes& changes)
{
    std::size_t bytes = 0;
    for (const auto& change : changes)
        bytes += change->GetBytes() + sizeof(change);
    return bytes;
}

// ---- Controls

UndoHistory::~UndoHistory()
{
    while (!recorders.empty())
        Leave(*recorders.back()->GetControl());
}

bool UndoHistory::Leave(const CWnd& control)
{
    const std::shared_ptr<UndoRecorder> recorder = Hold(Find(control));
    if (recorder == nullptr)
        return false;
    recorder->Leave();
    Remove(*recorder);
    listener.TellHistory();
    return true;
}

void UndoHistory::Add(std::shared_ptr<UndoRecorder> recorder)
{
    if (recorder->IsModified())
        saved = NoPosition;
    recorders.push_back(std::move(recorder));
}

UndoRecorder* UndoHistory::Find(const CWnd& control) const
{
    for (const auto& recorder : recorders)
        if (recorder->GetControl() == &control)
            return recorder.get();
    return nullptr;
}

std::shared_ptr<UndoRecorder> UndoHistory::Hold(const UndoRecorder* wanted) const
{
    for (const auto& recorder : recorders)
        if (recorder.get() == wanted)
            return recorder;
    return nullptr;
}

void UndoHistory::Remove(UndoRecorder& recorder)
{
    const std::shared_ptr<UndoRecorder> held = Hold(&recorder);
    const auto isIts = [&](const auto& change) { return &change->GetRecorder() == &recorder; };
    std::erase_if(drift, isIts);
    for (Changes* changes : passing)
        std::erase_if(*changes, isIts);
    for (Step* step : {open.get(), mirror, taken.get()})
        if (step != nullptr)
        {
            std::erase_if(step->changes, isIts);
            std::erase_if(step->away, isIts);
            std::erase_if(step->views, [&](const Views& kept) { return kept.recorder == &recorder; });
        }
    RemoveFrom(undo, recorder, base);
    RemoveFrom(redo, recorder, Position());
    std::erase_if(recorders, [&](const auto& kept) { return kept.get() == &recorder; });
}

// A step that has nothing left goes; the position behind it is the one before it then. `before` is the
// position below all of them: those that are undone stand in the list from the last one to the first.
void UndoHistory::RemoveFrom(Steps& steps, const UndoRecorder& recorder, unsigned before)
{
    const bool backwards = &steps == &redo;
    const std::size_t number = steps.size();
    for (std::size_t i = 0; i < number; ++i)
    {
        std::unique_ptr<Step>& step = steps[backwards ? number - 1 - i : i];
        for (Changes* changes : {&step->changes, &step->away})
            std::erase_if(*changes, [&](const auto& change) { return &change->GetRecorder() == &recorder; });
        std::erase_if(step->views, [&](const Views& kept) { return kept.recorder == &recorder; });
        bytes -= step->bytes;
        step->Weigh();
        bytes += step->bytes;
        if (!step->changes.empty())
        {
            before = step->id;
            continue;
        }
        if (saved == step->id)
            saved = before;
        bytes -= step->bytes;
        step.reset();
    }
    std::erase(steps, nullptr);
}

// ---- Recording

void UndoHistory::BeginStep(UndoRecorder* recorder, const UndoName& name)
{
    if (depth == 0 && !settling)
    {
        auto step = std::make_unique<Step>();
        step->name = name;
        step->isHosts = !name.words.IsEmpty();
        if (recorder != nullptr)
            step->ViewsOf(*recorder).before = recorder->KeepView();
        open = std::move(step);
    }
    ++depth;
}

bool UndoHistory::ContinueStep(unsigned position)
{
    if (depth > 0 || settling || undo.empty() || !redo.empty() || !drift.empty() || IsSaved() ||
        Position() != position)
        return false;
    open = TakeLast(undo);
    ++depth;
    return true;
}

void UndoHistory::EndStep(bool joins)
{
    if (depth == 0 || --depth > 0)
        return;
    std::unique_ptr<Step> step = std::move(open);
    if (step != nullptr && !step->changes.empty())
        Push(std::move(step), joins);
}

void UndoHistory::Record(std::unique_ptr<UndoChange> change)
{
    if (!IsRecording())
        return;
    if (settling)
        Append(drift, std::move(change));
    else if (open != nullptr)
        Append(open->changes, std::move(change));
    else if (!change->IsView())
    {
        // Without memory nothing has begun.
        auto step = std::make_unique<Step>();
        step->changes.push_back(std::move(change));
        Push(std::move(step), false);
    }
    else if (!undo.empty() || !redo.empty())
        Append(drift, std::move(change));
}

void UndoHistory::RecordBack(std::unique_ptr<UndoChange> change)
{
    // Its control may have left while the change was taken back.
    if (Hold(&change->GetRecorder()) != nullptr)
        Append(mirror->changes, std::move(change));
}

UndoChange* UndoHistory::GetLast(bool back) const
{
    const Changes* changes = nullptr;
    if (back)
        changes = &mirror->changes;
    else if (settling)
        changes = &drift;
    else
        changes = open != nullptr ? &open->changes : nullptr;
    return changes != nullptr && !changes->empty() ? changes->back().get() : nullptr;
}

void UndoHistory::Push(std::unique_ptr<Step> step, bool joins)
{
    if (!step->isHosts && step->IsView())
    {
        if (!undo.empty() || !redo.empty())
            for (auto& change : step->changes)
                Append(drift, std::move(change));
        return;
    }
    for (const auto& change : step->changes)
        step->ViewsOf(change->GetRecorder());
    for (Views& views : step->views)
        views.after = views.recorder->KeepView();
    Drop(redo);
    if (joins && JoinsLast(*step))
        return;
    step->name.number = 0;
    for (const auto& change : step->changes)
        step->name.number += change->GetNumber();
    step->changes.insert(step->changes.begin(), std::make_move_iterator(drift.begin()),
                         std::make_move_iterator(drift.end()));
    drift.clear();
    step->id = ++lastId;
    Put(undo, std::move(step));
    KeepLimits();
    listener.TellHistory();
}

bool UndoHistory::JoinsLast(Step& step)
{
    if (undo.empty() || !drift.empty() || IsSaved() || step.changes.size() != 1)
        return false;
    Step& last = *undo.back();
    if (&last.changes.back()->GetRecorder() != &step.changes.front()->GetRecorder() ||
        !last.changes.back()->Merge(*step.changes.front()))
        return false;
    for (Views& views : step.views)
        last.ViewsOf(*views.recorder).after = std::move(views.after);
    bytes -= last.bytes;
    last.Weigh();
    bytes += last.bytes;
    return true;
}

// ---- The lists

void UndoHistory::Put(Steps& steps, std::unique_ptr<Step> step)
{
    step->Weigh();
    bytes += step->bytes;
    steps.push_back(std::move(step));
}

std::unique_ptr<UndoHistory::Step> UndoHistory::TakeLast(Steps& steps)
{
    std::unique_ptr<Step> last = std::move(steps.back());
    steps.pop_back();
    bytes -= last->bytes;
    return last;
}

// What steps own goes when the lists are in order again.
void UndoHistory::Drop(Steps& steps)
{
    const unsigned position = Position();
    Steps dropped = std::exchange(steps, {});
    for (const auto& step : dropped)
        bytes -= step->bytes;
    if (&steps == &undo)
        base = position;
    const ScopedValue guard(dropping, true);
    dropped.clear();
}

// Changes that go look for others that need their rows.
void UndoHistory::Drop(Changes& changes)
{
    const Changes gone = std::exchange(changes, {});
}

void UndoHistory::DropFirst(Steps& steps)
{
    std::unique_ptr<Step> first = std::move(steps.front());
    steps.pop_front();
    bytes -= first->bytes;
    if (&steps == &undo)
        base = first->id;
    const ScopedValue guard(dropping, true);
    first.reset();
}

// A step that has become too large as it was undone goes with those that followed it, not with those before.
void UndoHistory::KeepLimits()
{
    while (maxSteps > 0 && static_cast<long>(undo.size()) > maxSteps)
        DropFirst(undo);
    if (maxBytes == 0 || bytes <= maxBytes)
        return;
    std::size_t undone = 0;
    for (const auto& step : redo)
        undone += step->bytes;
    while (bytes > maxBytes && (!undo.empty() || !redo.empty()))
    {
        const bool fromRedo = undo.empty() || undone > maxBytes;
        if (fromRedo)
            undone -= redo.front()->bytes;
        DropFirst(fromRedo ? redo : undo);
    }
}

void UndoHistory::SetLimits(long steps, std::size_t limit)
{
    maxSteps = steps;
    maxBytes = limit;
    KeepLimits();
    listener.TellHistory();
}

std::size_t UndoHistory::GetBytes() const
{
    return bytes + BytesOf(drift);
}

void UndoHistory::Clear()
{
    Drop(redo);
    Drop(undo);
    Drop(drift);
    listener.TellHistory();
}

void UndoHistory::End()
{
    for (Step* step : {open.get(), taken.get()})
        if (step != nullptr)
            Drop(step->changes);
    saved = NoPosition;
    Clear();
    listener.TellEnded();
}

void UndoHistory::SetSaved()
{
    saved = Position();
    for (const auto& recorder : std::vector(recorders))
        recorder->MarkModified(false);
}

} // namespace QuorUiCtr
