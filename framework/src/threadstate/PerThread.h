// PerThread: one object of a type for each thread that asks for it.
#pragma once

#include "fx/config.h"

// The objects are deleted when their thread ends, or when the framework is unloaded. They do not live in
// thread_local storage: this tool chain frees that before it runs the destructors of what is in it. Only a
// pointer does, which spares the system's slot from being asked each time.
template <typename TObject> class PerThread
{
public:
    static TObject& Get()
    {
        TObject*& current = Current();
        if (current == nullptr)
        {
            current = new TObject;
            ::FlsSetValue(Slot(), current);
        }
        return *current;
    }

private:
    // A slot whose values the system hands to Delete.
    struct OwningSlot
    {
        OwningSlot() : index(::FlsAlloc(&PerThread::Delete)) {}
        ~OwningSlot() { ::FlsFree(index); }
        DWORD index;
    };

    static DWORD Slot()
    {
        static const OwningSlot slot;
        return slot.index;
    }

    static TObject*& Current()
    {
        static thread_local TObject* current = nullptr;
        return current;
    }

    static void WINAPI Delete(void* object)
    {
        if (Current() == object)
            Current() = nullptr;
        delete static_cast<TObject*>(object);
    }
};
