#pragma once

#include "PieceFormat.h"
#include "PieceLayout.h"

#include <string>
#include <vector>

namespace sw {

class Picture;

// What reading the pieces back found.
struct VerificationReport {
    // One line for every piece that is missing, has the wrong size or
    // differs from its rectangle, and for pixels no piece covers.
    std::vector<std::string> problems;
    // The lowest PSNR of a lossy piece in dB (infinity when all are exact).
    double worstPsnr = 0;
    bool Passed() const { return problems.empty(); }
};

// Reads every written piece back from disk and puts it at its place on the
// picture: a lossless piece must equal the pixels it covers exactly, a lossy
// one reach `psnrFloor`, and together the pieces must cover every pixel of
// the picture exactly once.
VerificationReport VerifyPieces(const Picture& picture, const PieceLayout& layout,
                                PieceFormat format, double psnrFloor);

} // namespace sw
