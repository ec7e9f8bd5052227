#pragma once

#include <cstddef>

/// The one heap of the image record and the codec layer: what one of them allocates the other may free. The codec layer gets
/// these three at its start; the record calls them itself. `tag` is a note of the caller's and is ignored. Null when there is no
/// memory.
void *gflAllocCallback(std::size_t bytes, void *tag);
void *gflReallocCallback(void *block, std::size_t bytes, void *tag);
void gflFreeCallback(void *block, void *tag);
