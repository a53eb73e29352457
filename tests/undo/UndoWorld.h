// UndoWorld: controls that users change at random, each watched by the same undo stack.
#pragma once

#include "tests/fuzz/Random.h"
#include "undo/TGUndoStack.h"

#include <memory>
#include <string>
#include <vector>

namespace quor::test
{

// One control with what a user does to it.
class UndoSubject
{
public:
    virtual ~UndoSubject() = default;
    virtual void Watch(QuorUiCtr::TGUndoStack& stack) = 0;
    // One operation, as a user or a program does it; vetoed by hooks now and then.
    virtual void Step(fuzz::Random& random) = 0;
    // All that undoing brings back: texts, order, tree, widths, identifiers, host data, and which objects
    // they are where these come back.
    virtual std::string Snapshot() = 0;
    // Hooks and notifications that tell of a change change something themselves now and then.
    virtual void SetMutating(fuzz::Random* random) = 0;
};

// A stack that counts what it is told, and refuses now and then when it is told to.
class CountingStack : public QuorUiCtr::TGUndoStack
{
public:
    int ended = 0;
    fuzz::Random* refusing = nullptr;

protected:
    bool OnUndoing(const CString&) override { return refusing == nullptr || !refusing->OneIn(10); }
    bool OnRedoing(const CString&) override { return refusing == nullptr || !refusing->OneIn(10); }
    void OnHistoryEnded() override { ++ended; }
};

struct UndoWorld
{
    CountingStack stack;
    std::vector<std::unique_ptr<UndoSubject>> subjects;

    std::string Snapshot() const
    {
        std::string all;
        for (const auto& subject : subjects)
            all += subject->Snapshot() + "====\n";
        return all;
    }
    void SetMutating(fuzz::Random* random) const
    {
        for (const auto& subject : subjects)
            subject->SetMutating(random);
    }
};

// Adds subjects to a world that is to be watched; each kind of control has one.
void AddGrids(UndoWorld& world);
// The last one.
void AddTree(UndoWorld& world);

} // namespace quor::test
