#pragma once

#include <cstdint>
#include <cstdio>
#include <optional>
#include <vector>

#include <jpeglib.h>

#include "gflFile.h"

namespace gfl {

/// Where the restart intervals of a JPEG file are. A unit is what the format calls an MCU: 8 x 8 pixels or a few times that.
class JpegIntervals
{
public:
    /// `info` has read the header of `file`, which must outlive the result. Nothing unless the file is a sequential one with a
    /// single Huffman-coded scan and its restart markers are all there, in order, and nothing else is between them and the end.
    static std::optional<JpegIntervals> find(const InputFile &file, const jpeg_decompress_struct &info);

    const InputFile &file() const { return *source; }
    int pictureHeight() const { return height; }
    /// Rows of pixels in a row of units, the last of which may be cut off by the picture's edge.
    int unitHeight() const { return rowsPerUnit; }
    int unitRows() const { return (height + rowsPerUnit - 1) / rowsPerUnit; }
    /// Every so many rows of units an interval begins at the left edge.
    int step() const { return stepRows; }

    /// File offset of the data of unit row `row`, a multiple of step().
    std::uint64_t startOf(int row) const;
    /// File offset behind the data of the row before, without the marker; `row` is a multiple as well, or unitRows().
    std::uint64_t endBefore(int row) const;
    /// Number of the first restart marker after it, 0 to 7.
    int markerAfter(int row) const { return int(std::uint64_t(row / stepRows) * intervalsPerStep % 8); }
    /// All that precedes the data, less metadata, for a picture that is `rows` pixels high.
    Bytes headerFor(int rows) const;

private:
    JpegIntervals() = default;
    bool readHeader(const jpeg_decompress_struct &info);
    bool readMarkers(std::uint64_t intervals);

    const InputFile *source = nullptr;
    int height = 0;
    int rowsPerUnit = 0;
    int stepRows = 0;
    std::uint64_t intervalsPerStep = 0;
    Bytes header;
    std::size_t heightPosition = 0;     ///< In the header.
    std::vector<std::uint64_t> offsets; ///< Of each step; the first one follows the header, and the last one is the end.
};

} // namespace gfl
