#pragma once

#include <utility>

#include "JpegIntervals.h"

namespace gfl {

/// Some rows of units of a JPEG file as a stream of a JPEG file that has these alone.
class JpegPart
{
public:
    /// From unit row `first`, a multiple of the step, up to the one before `last`, which is a multiple as well or the number of
    /// rows. `intervals` must outlive this.
    JpegPart(const JpegIntervals &intervals, int first, int last);
    /// The next bytes, which stay until the next call; none at the end, and if the file can't be read. Never throws.
    std::pair<const std::uint8_t *, std::size_t> block() noexcept;

private:
    const JpegIntervals &intervals;
    Bytes buffer; ///< First the header, then pieces of the data, then the end marker.
    std::uint64_t position;
    const std::uint64_t end;
    const int firstMarker;
    enum class Next { Header, Data, Nothing } next = Next::Header;
    bool afterFF = false;
};

} // namespace gfl
