// HandleMap: which C++ object stands for which system handle, per thread.
#pragma once

#include <memory>
#include <unordered_map>

#include "fx/config.h"
#include "handlemap/TemporaryLevel.h"
#include "threadstate/PerThread.h"

// How a handle map makes and drops the temporary objects of a class. A class that is kept in a handle map
// specialises it beside its own functions:
//   static TObject* Wrap(THandle handle);       a new object that holds the handle
//   static void Unwrap(TObject& object);        takes the handle out, so that deleting the object leaves it
//   alive
template <typename TObject> struct HandleTraits;

// The objects of one kind in the calling thread. An attached object is permanent: its owner decides how long
// it lives. For a handle without one, FromHandle makes a temporary object, which the map owns until
// DeleteTemporaries, and which never destroys its handle. The same handle gives the same object until then.
template <typename THandle, typename TObject> class HandleMap
{
public:
    HandleMap() = default;
    HandleMap(const HandleMap&) = delete;
    HandleMap& operator=(const HandleMap&) = delete;
    ~HandleMap() = default;

    static HandleMap& OfThisThread() { return PerThread<HandleMap>::Get(); }

    // The attached object of the handle, or NULL.
    TObject* FindPermanent(THandle handle) const
    {
        const auto entry = m_permanent.find(handle);
        return entry == m_permanent.end() ? nullptr : entry->second;
    }

    // The attached object of the handle, else its temporary one, else a new temporary one. NULL for a NULL
    // handle.
    TObject* FromHandle(THandle handle)
    {
        if (handle == nullptr)
            return nullptr;
        if (TObject* const attached = FindPermanent(handle))
            return attached;
        const auto entry = m_temporary.find(handle);
        if (entry != m_temporary.end())
            return entry->second.object.get();
        Temporary made{Owner(HandleTraits<TObject>::Wrap(handle)), TemporaryLevel()};
        return m_temporary.emplace(handle, std::move(made)).first->second.object.get();
    }

    // Enters the object that stands for the handle from now on.
    void Attach(THandle handle, TObject* object) { m_permanent[handle] = object; }

    // Takes the object out, if it is what stands for the handle.
    void Detach(THandle handle, const TObject* object)
    {
        const auto entry = m_permanent.find(handle);
        if (entry != m_permanent.end() && entry->second == object)
            m_permanent.erase(entry);
    }

    // Deletes the temporary objects of the present level and the levels in it. Pointers to them become
    // invalid, so only the message loop calls this, between messages.
    void DeleteTemporaries()
    {
        const unsigned level = TemporaryLevel();
        std::erase_if(m_temporary, [level](const auto& entry) { return entry.second.level >= level; });
    }

    size_t TemporaryCount() const { return m_temporary.size(); }
    size_t PermanentCount() const { return m_permanent.size(); }

private:
    struct Discard
    {
        void operator()(TObject* object) const
        {
            HandleTraits<TObject>::Unwrap(*object);
            delete object;
        }
    };
    using Owner = std::unique_ptr<TObject, Discard>;
    struct Temporary
    {
        Owner object;
        unsigned level;
    };

    std::unordered_map<THandle, TObject*> m_permanent;
    std::unordered_map<THandle, Temporary> m_temporary;
};
