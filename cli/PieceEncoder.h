#pragma once

#include "PieceFormat.h"
#include "export/ImagingSectionEncoder.h"

namespace sw {

// The section writers of one run in the chosen format. The core's run calls
// SaveBmp for BMP and SaveJpg for any other format (with the quality), so
// PNG and WebP come in through SaveJpg beside JPG.
class PieceEncoder : public SectionEncoder {
public:
    explicit PieceEncoder(PieceFormat format) : format_(format) {}

    // What the core's run is told the format is: "BMP" takes the BMP road.
    std::string SaveFormat() const { return format_ == PieceFormat::Bmp ? "BMP" : "JPG"; }

    void SaveBmp(const Picture& clip, const std::string& fileName) override;
    bool SaveJpg(const Picture& clip, const std::string& fileName, i32 quality) override;

private:
    PieceFormat format_;
    ImagingSectionEncoder imaging_;
};

// Reads a written piece back; throws std::runtime_error naming the cause.
Picture ReadPiece(const std::string& fileName, PieceFormat format);

} // namespace sw
