#include "JpegPart.h"

#include <algorithm>
#include <cstring>

namespace gfl {
namespace {

constexpr std::size_t kPiece = 64 * 1024;

/// Numbers the restart markers such that `first` becomes 0. `afterFF` says whether the bytes before ended with 0xFF.
void renumber(std::uint8_t *bytes, std::size_t count, int first, bool &afterFF)
{
    for (std::size_t i = 0; i < count;) {
        if (afterFF) {
            if (bytes[i] >= JPEG_RST0 && bytes[i] < JPEG_RST0 + 8)
                bytes[i] = std::uint8_t(JPEG_RST0 + (bytes[i] + 8 - first) % 8);
            ++i;
            afterFF = false;
            continue;
        }
        const void *const next = std::memchr(bytes + i, 0xFF, count - i);
        if (!next)
            return;
        i = std::size_t(static_cast<std::uint8_t *>(const_cast<void *>(next)) - bytes) + 1;
        afterFF = true;
    }
}

} // namespace

JpegPart::JpegPart(const JpegIntervals &of, int first, int last)
    : intervals(of), buffer(of.headerFor(std::min(last * of.unitHeight(), of.pictureHeight()) - first * of.unitHeight())),
      position(of.startOf(first)), end(of.endBefore(last)), firstMarker(of.markerAfter(first))
{
    buffer.reserve(kPiece);
}

std::pair<const std::uint8_t *, std::size_t> JpegPart::block() noexcept
{
    switch (next) {
    case Next::Header:
        next = Next::Data;
        return {buffer.data(), buffer.size()};
    case Next::Data:
        if (position < end) {
            const auto wanted = std::size_t(std::min<std::uint64_t>(kPiece, end - position));
            buffer.resize(wanted);
            const std::size_t count = intervals.file().readAt(position, buffer.data(), wanted);
            if (firstMarker != 0)
                renumber(buffer.data(), count, firstMarker, afterFF);
            position += count;
            if (count < wanted)
                next = Next::Nothing;
            return {buffer.data(), count};
        }
        next = Next::Nothing;
        buffer.assign({0xFF, JPEG_EOI});
        return {buffer.data(), buffer.size()};
    default:
        return {};
    }
}

} // namespace gfl
