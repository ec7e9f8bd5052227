#include "JpegIntervals.h"

#include <algorithm>
#include <cstring>
#include <numeric>

namespace gfl {
namespace {

constexpr int kFrame = 0xC0; ///< Baseline; the next one is sequential as well, with more tables.
constexpr int kScan = 0xDA;
constexpr int kComment = 0xFE;

/// Metadata: the decoder only heeds the two segments that tell it about colours.
bool isSkipped(int code)
{
    return code == kComment || (code > JPEG_APP0 && code <= JPEG_APP0 + 15 && code != JPEG_APP0 + 14);
}

} // namespace

std::optional<JpegIntervals> JpegIntervals::find(const InputFile &file, const jpeg_decompress_struct &info)
{
    if (info.restart_interval == 0 || info.progressive_mode || info.arith_code || info.comps_in_scan != info.num_components)
        return std::nullopt;
    // A scan of one component has units of one block, whatever its sampling factors.
    const bool single = info.num_components == 1;
    const std::uint64_t unitWidth = std::uint64_t(single ? 1 : info.max_h_samp_factor) * DCTSIZE;
    const std::uint64_t perRow = (info.image_width + unitWidth - 1) / unitWidth;

    JpegIntervals result;
    result.source = &file;
    result.height = int(info.image_height);
    result.rowsPerUnit = (single ? 1 : info.max_v_samp_factor) * DCTSIZE;
    const std::uint64_t common = std::gcd(perRow, std::uint64_t(info.restart_interval));
    result.stepRows = int(info.restart_interval / common);
    result.intervalsPerStep = perRow / common;
    const std::uint64_t units = perRow * std::uint64_t(result.unitRows());
    if (!result.readHeader(info) || !result.readMarkers((units + info.restart_interval - 1) / info.restart_interval))
        return std::nullopt;
    return result;
}

bool JpegIntervals::readHeader(const jpeg_decompress_struct &info)
{
    constexpr std::size_t kLongest = std::size_t(1) << 20;
    header = {0xFF, 0xD8};
    int code = 0;
    for (std::uint64_t offset = 2; code != kScan;) {
        std::uint8_t head[4];
        if (source->readAt(offset, head, sizeof head) != sizeof head || head[0] != 0xFF)
            return false;
        code = head[1];
        const std::size_t bytes = 2 + std::size_t(head[2]) * 256 + head[3];
        if (code < kFrame || (code >= JPEG_RST0 && code < kScan) || bytes < 4 || header.size() + bytes > kLongest)
            return false;
        if (!isSkipped(code)) {
            const std::size_t start = header.size();
            header.resize(start + bytes);
            if (source->readAt(offset, header.data() + start, bytes) != bytes)
                return false;
            if (code == kFrame || code == kFrame + 1)
                heightPosition = start + 5; // behind marker, length and depth
        }
        offset += bytes;
        if (code == kScan)
            offsets = {offset};
    }
    return heightPosition + 1 < header.size() && heightPosition > 0 &&
           header[heightPosition] * 256u + header[heightPosition + 1] == info.image_height;
}

bool JpegIntervals::readMarkers(std::uint64_t intervals)
{
    InputStream stream(*source, offsets[0]);
    bool afterFF = false;
    for (std::uint64_t found = 0;;) {
        const auto [bytes, count] = stream.block();
        if (count == 0)
            return false;
        for (std::size_t i = 0; i < count;) {
            if (!afterFF) {
                const void *const next = std::memchr(bytes + i, 0xFF, count - i);
                if (!next)
                    break;
                i = std::size_t(static_cast<const std::uint8_t *>(next) - bytes) + 1;
                afterFF = true;
                continue;
            }
            const int code = bytes[i++];
            afterFF = false;
            const std::uint64_t offset = stream.offset() - count + i;
            if (code == 0)
                continue;
            if (code == JPEG_EOI && found + 1 == intervals) {
                offsets.push_back(offset - 2);
                return true;
            }
            if (code != JPEG_RST0 + int(found % 8) || ++found == intervals)
                return false;
            if (found % intervalsPerStep == 0)
                offsets.push_back(offset);
        }
    }
}

std::uint64_t JpegIntervals::startOf(int row) const
{
    return offsets[std::size_t(row / stepRows)];
}

std::uint64_t JpegIntervals::endBefore(int row) const
{
    return row >= unitRows() ? offsets.back() : startOf(row) - 2;
}

Bytes JpegIntervals::headerFor(int rows) const
{
    Bytes result = header;
    result[heightPosition] = std::uint8_t(rows >> 8);
    result[heightPosition + 1] = std::uint8_t(rows);
    return result;
}

} // namespace gfl
