#include "JpegErrors.h"

#include <jerror.h>

namespace gfl {
namespace {

[[noreturn]] void onError(j_common_ptr info)
{
    auto *errors = reinterpret_cast<JpegErrors *>(info->err);
    if (info->err->msg_code == JERR_OUT_OF_MEMORY)
        errors->code = GFL_ERROR_NO_MEMORY;
    std::longjmp(errors->jump, 1);
}

// After a warning the library continues decoding and fills what is missing with grey. Here such a file counts as damaged.
void onMessage(j_common_ptr info, int level)
{
    if (level >= 0)
        return;
    if (reinterpret_cast<JpegErrors *>(info->err)->strict)
        onError(info);
    switch (info->err->msg_code) {
    case JWRN_JPEG_EOF:
    case JWRN_HIT_MARKER:
    case JWRN_HUFF_BAD_CODE:
    case JWRN_ARITH_BAD_CODE:
    case JWRN_MUST_RESYNC:
        onError(info);
    default:
        break;
    }
}

void onOutput(j_common_ptr) {}

} // namespace

jpeg_error_mgr *JpegErrors::prepare()
{
    jpeg_std_error(&manager);
    manager.error_exit = onError;
    manager.emit_message = onMessage;
    manager.output_message = onOutput;
    return &manager;
}

} // namespace gfl
