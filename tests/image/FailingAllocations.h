#pragma once

#include <functional>

/// Lets one allocation fail: of the memory that this program's own objects ask for (new, malloc and its kin, address space), the
/// libraries of others left alone. The linker leads the calls here; see this folder's CMakeLists.txt.
class FailingAllocations
{
public:
    /// Counts from here on, on all threads, until the end of the scope; the call with this number fails, 0 for none.
    explicit FailingAllocations(long number);
    ~FailingAllocations();
    FailingAllocations(const FailingAllocations &) = delete;
    FailingAllocations &operator=(const FailingAllocations &) = delete;

    static long count();
};
