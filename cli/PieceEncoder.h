#pragma once

#include "PieceFormat.h"
#include "export/ImagingSectionEncoder.h"

namespace sw {

// The section encoders of one run in the chosen format: the window's BMP and
// JPG roads, and PNG and WebP beside them.
class PieceEncoder : public SectionEncoder {
public:
    explicit PieceEncoder(PieceFormat format) : format_(format) {}

    // What the core's run is told the format is: "BMP" takes the BMP road.
    std::string SaveFormat() const { return format_ == PieceFormat::Bmp ? "BMP" : "JPG"; }

    std::optional<EncodedFile> Encode(const Picture& clip, const std::string& fileName,
                                      const std::string& saveFormat, i32 quality) override;
    void Write(const EncodedFile& file, const std::string& fileName) override;

private:
    PieceFormat format_;
    ImagingSectionEncoder imaging_;
};

// Reads a written piece back; throws std::runtime_error naming the cause.
Picture ReadPiece(const std::string& fileName, PieceFormat format);

} // namespace sw
