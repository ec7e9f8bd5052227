#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

class LibRaw;
class RegularFile;

/// A camera raw file, opened by the raw library. Nothing here throws but std::bad_alloc; one thread at a time.
class RawPhoto
{
public:
    enum class Code { Ok, NoMemory, Failed };

    /// The developed picture as stored, not turned: rows of `width * components` samples of 16 bits, from top to bottom.
    struct Developed
    {
        int width = 0;
        int height = 0;
        int components = 0;          ///< 1 for grey, 3 for RGB.
        std::size_t strideBytes = 0; ///< A multiple of 4.
        std::unique_ptr<std::uint8_t[]> samples;
    };

    /// Reads the head; code() says whether the library knows the file. `file` must outlive this object and is not opened again.
    explicit RawPhoto(const RegularFile &file);
    ~RawPhoto();
    RawPhoto(const RawPhoto &) = delete;
    RawPhoto &operator=(const RawPhoto &) = delete;

    /// The result of the last operation, and the library's text for it, in English.
    Code code() const;
    std::string text() const;
    /// The library's text for a file that it can't read.
    static std::string unsupportedText();

    /// From the head: pixels of the picture as stored, before any orientation.
    int width() const;
    int height() const;
    /// EXIF's, of which the library knows 1, 3, 6 and 8.
    int orientation() const;

    /// Develops in sRGB with the camera's white balance. Once; on a failure, which code() reports, `samples` is null.
    Developed develop();

private:
    bool succeeds(int libraryCode);

    class Stream;
    std::unique_ptr<Stream> stream; ///< Outlives `raw`.
    std::unique_ptr<LibRaw> raw;
    int lastCode = 0;
};
