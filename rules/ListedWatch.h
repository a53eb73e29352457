// ListedWatch: the part that all watches have in common, tools that note what becomes of an object while code
// of the host runs.
#pragma once

namespace QuorUiCtr
{

// A watch stands in a list of its owner, whatever the order in which watches end. The owner keeps the newest
// one, null while there is none, and tells all of them what goes. `Watch` is the class that derives from this
// one.
template <class Watch> class ListedWatch
{
public:
    ListedWatch(const ListedWatch&) = delete;
    ListedWatch& operator=(const ListedWatch&) = delete;

protected:
    // `newestOfOwner` must exist until the watch ends or NoteOwnerGone is called.
    explicit ListedWatch(Watch*& newestOfOwner) : newest(&newestOfOwner), older(newestOfOwner)
    {
        if (older != nullptr)
            Part(older).newer = static_cast<Watch*>(this);
        newestOfOwner = static_cast<Watch*>(this);
    }
    ~ListedWatch()
    {
        if (newest == nullptr)
            return;
        (newer != nullptr ? Part(newer).older : *newest) = older;
        if (older != nullptr)
            Part(older).newer = newer;
    }

    bool IsOwnerGone() const { return newest == nullptr; }

    template <class Tell> static void TellAll(Watch* newestOfOwner, Tell tell)
    {
        for (Watch* watch = newestOfOwner; watch != nullptr; watch = Part(watch).older)
            tell(*watch);
    }
    static void NoteOwnerGone(Watch*& newestOfOwner)
    {
        TellAll(newestOfOwner, [](Watch& watch) { Part(&watch).newest = nullptr; });
        newestOfOwner = nullptr;
    }

private:
    static ListedWatch& Part(Watch* watch) { return *watch; }

    Watch** newest; // where the owner keeps its newest watch; null once the owner is gone
    Watch* older;
    Watch* newer = nullptr;
};

} // namespace QuorUiCtr
