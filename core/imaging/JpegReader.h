#pragma once

#include "imaging/Picture.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace sw {

// A JPG file decoded by libjpeg-turbo straight into a picture's bottom-up
// rows, with no intermediate image and without the file's bytes in memory:
// the file is read as the rows are decoded. Its header is parsed first, so
// that the caller can check the size before the pixels take memory; the
// peak of an open is the picture and a few rows, whatever the file's size.
class JpegReader {
public:
    // Whether the file begins as every JPG file does (a start-of-image marker
    // followed by another marker).
    static bool IsJpeg(const std::string& path);

    // Opens the file and parses its header.
    explicit JpegReader(const std::string& path);
    ~JpegReader();
    JpegReader(const JpegReader&) = delete;
    JpegReader& operator=(const JpegReader&) = delete;

    // False when the file could not be read or its header makes no sense.
    bool HeaderRead() const { return headerRead_; }
    int Width() const { return width_; }
    int Height() const { return height_; }
    // CMYK and YCCK pictures: the decoder cannot turn their colours into
    // blue, green and red, so they are left to another decoder.
    bool FourColour() const { return fourColour_; }

    // Decodes the pixels as stored (an orientation tag is not applied) and
    // closes the file. Nothing, with the decoder's words in
    // `error`, when the data cannot be decoded; damage the decoder can pass
    // over (as it does for a stray byte) is no failure.
    std::optional<Picture> Decode(std::string& error);

private:
    struct Handle;
    std::unique_ptr<Handle> handle_;
    bool headerRead_ = false;
    int width_ = 0;
    int height_ = 0;
    bool fourColour_ = false;
};

} // namespace sw
