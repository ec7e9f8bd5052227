#pragma once

#include <cstddef>

/// The heap shared by the image record and the codec layer: what one of them allocates, the other may free. The codec layer
/// receives these callbacks at its start; the record calls them directly. `tag` is ignored. The results are null if there is no
/// memory.
void *gflAllocCallback(std::size_t bytes, void *tag);
void *gflReallocCallback(void *block, std::size_t bytes, void *tag);
void gflFreeCallback(void *block, void *tag);
