#include "gflTiffHandle.h"

#include "gflBitmapParts.h"

namespace gfl {
namespace {

int onMessage(TIFF *, void *, const char *, const char *, va_list)
{
    return 1; // handled: nothing is printed
}

int onClose(thandle_t)
{
    return 0;
}
int onNoMap(thandle_t, void **, toff_t *)
{
    return 0;
}
void onNoUnmap(thandle_t, void *, toff_t) {}

} // namespace

TiffOptions quietTiffOptions()
{
    TiffOptions options(TIFFOpenOptionsAlloc());
    if (!options)
        throw Failure{GFL_ERROR_NO_MEMORY};
    TIFFOpenOptionsSetErrorHandlerExtR(options.get(), onMessage, nullptr);
    TIFFOpenOptionsSetWarningHandlerExtR(options.get(), onMessage, nullptr);
    return options;
}

TiffPointer openTiff(const char *mode, thandle_t handle, TIFFReadWriteProc read, TIFFReadWriteProc write, TIFFSeekProc seek,
                     TIFFSizeProc size, const TiffOptions &options)
{
    return TiffPointer(TIFFClientOpenExt("", mode, handle, read, write, seek, onClose, size, onNoMap, onNoUnmap, options.get()));
}

} // namespace gfl
