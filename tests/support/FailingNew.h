// FailingNew: makes an allocation of the library fail, and counts the blocks that it holds.
#pragma once

namespace quor::test
{

// From the first use on, operator new and delete of QuorUiCtrl.dll, QuorFx.dll and the test program pass by
// here; not what the C++ runtime allocates for itself.
class FailingNew
{
public:
    // The n-th allocation from now on throws std::bad_alloc, once; 0 calls that off.
    static void FailAt(long n);
    // The allocation that was to fail has come and failed.
    static bool HasFailed();
    // The blocks that have been made and not deleted, since the first use.
    static long LiveBlocks();
};

} // namespace quor::test
