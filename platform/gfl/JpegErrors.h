#pragma once

#include <csetjmp>
#include <cstdio>

#include <jpeglib.h>

#include "gflBitmapParts.h"

namespace gfl {

/// The JPEG library's error handler. Errors of the library end in a Failure, if the calls are made through guarded().
struct JpegErrors
{
    jpeg_error_mgr manager;
    std::jmp_buf jump;
    GflCode code = GFL_ERROR_FILE_READ; ///< What is thrown, except for want of memory.
    /// Every warning is an error. Otherwise only those are that stand for damage which the library would fill with grey.
    bool strict = false;

    /// The handler for a compressor or decompressor that lives no longer than this.
    jpeg_error_mgr *prepare();
};

/// Runs calls of the library, which may jump out of here: `call` must not create objects with destructors.
template<typename Call>
void guarded(JpegErrors &errors, Call call)
{
    if (setjmp(errors.jump))
        throw Failure{errors.code};
    call();
}

} // namespace gfl
