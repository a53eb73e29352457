// An observer of the task allocator.
#include "tests/support/TaskMemory.h"

#include <windows.h>

#include <objbase.h>
#include <oleauto.h>

#include <atomic>

namespace quor::test
{

namespace
{

// The platform calls it for all threads, and says of a block whether it was taken under this.
class TaskSpy final : public IMallocSpy
{
public:
    int Count() const { return m_count; }

    STDMETHODIMP QueryInterface(REFIID id, void** object) override
    {
        const bool isKnown = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IMallocSpy);
        *object = isKnown ? this : nullptr;
        return isKnown ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }

    STDMETHODIMP_(SIZE_T) PreAlloc(SIZE_T size) override { return size; }
    STDMETHODIMP_(void*) PostAlloc(void* block) override
    {
        m_count += block != nullptr ? 1 : 0;
        return block;
    }
    STDMETHODIMP_(void*) PreFree(void* block, BOOL isCounted) override
    {
        m_count -= block != nullptr && isCounted ? 1 : 0;
        return block;
    }
    STDMETHODIMP_(void) PostFree(BOOL) override {}
    STDMETHODIMP_(SIZE_T) PreRealloc(void* block, SIZE_T size, void** moved, BOOL) override
    {
        *moved = block;
        return size;
    }
    STDMETHODIMP_(void*) PostRealloc(void* block, BOOL) override { return block; }
    STDMETHODIMP_(void*) PreGetSize(void* block, BOOL) override { return block; }
    STDMETHODIMP_(SIZE_T) PostGetSize(SIZE_T size, BOOL) override { return size; }
    STDMETHODIMP_(void*) PreDidAlloc(void* block, BOOL) override { return block; }
    STDMETHODIMP_(int) PostDidAlloc(void*, BOOL, int result) override { return result; }
    STDMETHODIMP_(void) PreHeapMinimize() override {}
    STDMETHODIMP_(void) PostHeapMinimize() override {}

private:
    std::atomic<int> m_count = 0;
};

TaskSpy spy;

// For good: the platform keeps it as long as blocks are alive that were taken under it.
bool Register()
{
    using Switch = void(WINAPI*)();
    const FARPROC set = ::GetProcAddress(::GetModuleHandleW(L"oleaut32.dll"), "SetOaNoCache");
    if (set != nullptr)
        reinterpret_cast<Switch>(reinterpret_cast<void*>(set))();
    return SUCCEEDED(::CoRegisterMallocSpy(&spy));
}

} // namespace

int CountTaskBlocks()
{
    static const bool isCounting = Register();
    return isCounting ? spy.Count() : 0;
}

} // namespace quor::test
