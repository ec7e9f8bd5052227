#pragma once

#include <functional>

/// Makes one allocation fail among those of this program's own objects (new, the malloc family, address space); other libraries
/// are not affected. The linker redirects the calls; see this folder's CMakeLists.txt.
class FailingAllocations
{
public:
    /// Counts allocations on all threads until the end of the scope; the one with this number fails, or none for 0.
    explicit FailingAllocations(long number);
    ~FailingAllocations();
    FailingAllocations(const FailingAllocations &) = delete;
    FailingAllocations &operator=(const FailingAllocations &) = delete;

    static long count();
};
