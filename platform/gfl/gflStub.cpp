#include "gflCodec.h"
namespace gfl {
BitmapPointer readHdr(const ReadRequest &)
{
    throw Failure{GFL_ERROR_UNKNOWN_FORMAT};
}
BitmapPointer readExr(const ReadRequest &)
{
    throw Failure{GFL_ERROR_UNKNOWN_FORMAT};
}
BitmapPointer readPsd(const ReadRequest &)
{
    throw Failure{GFL_ERROR_UNKNOWN_FORMAT};
}
void writeHdr(const WriteRequest &)
{
    throw Failure{GFL_ERROR_BAD_FORMAT_INDEX};
}
void writeExr(const WriteRequest &)
{
    throw Failure{GFL_ERROR_BAD_FORMAT_INDEX};
}
void writePsd(const WriteRequest &)
{
    throw Failure{GFL_ERROR_BAD_FORMAT_INDEX};
}
} // namespace gfl
