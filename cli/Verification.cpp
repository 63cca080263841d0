#include "Verification.h"

#include "PieceEncoder.h"
#include "export/SectionArea.h"
#include "imaging/Picture.h"

#include <cmath>
#include <limits>
#include <stdexcept>

namespace sw {
namespace {

// How a piece differs from the pixels it covers.
struct Difference {
    std::int64_t differingPixels = 0;
    double psnr = std::numeric_limits<double>::infinity();
};

Difference compare(const Picture& picture, const SectionRect& rect, const Picture& piece) {
    Difference difference;
    double squares = 0;
    for (int y = 0; y < rect.Height; ++y) {
        const std::uint8_t* expected = picture.Row(rect.Top + y) + 3 * rect.Left;
        const std::uint8_t* actual = piece.Row(y);
        for (int x = 0; x < rect.Width * 3; x += 3) {
            bool differs = false;
            for (int channel = 0; channel < 3; ++channel) {
                const int delta = int(expected[x + channel]) - int(actual[x + channel]);
                squares += delta * delta;
                differs = differs || delta != 0;
            }
            difference.differingPixels += differs ? 1 : 0;
        }
    }
    if (squares > 0) {
        const double samples = 3.0 * rect.Width * rect.Height;
        difference.psnr = 10.0 * std::log10(255.0 * 255.0 / (squares / samples));
    }
    return difference;
}

std::string sizeText(int width, int height) {
    return std::to_string(width) + " x " + std::to_string(height);
}

// The cover count of every pixel, for the check that the pieces tile the picture.
class Coverage {
public:
    // A picture's sides are never negative.
    Coverage(int width, int height)
        : width_(static_cast<std::size_t>(width)),
          counts_(width_ * static_cast<std::size_t>(height), 0) {}
    // The pieces are cut to the picture: every pixel of one lies inside it.
    void Add(const SectionRect& rect) {
        for (int y = rect.Top; y < rect.Top + rect.Height; ++y) {
            const std::size_t row = static_cast<std::size_t>(y) * width_;
            for (int x = rect.Left; x < rect.Left + rect.Width; ++x) {
                std::uint8_t& count = counts_[row + static_cast<std::size_t>(x)];
                count = static_cast<std::uint8_t>(std::min(count + 1, 2));
            }
        }
    }
    std::int64_t NotOnce() const {
        std::int64_t pixels = 0;
        for (const std::uint8_t count : counts_) {
            pixels += count != 1 ? 1 : 0;
        }
        return pixels;
    }

private:
    std::size_t width_;
    std::vector<std::uint8_t> counts_;
};

} // namespace

VerificationReport VerifyPieces(const Picture& picture, const PieceLayout& layout,
                                PieceFormat format, double psnrFloor) {
    VerificationReport report;
    report.worstPsnr = std::numeric_limits<double>::infinity();
    Coverage coverage(picture.Width(), picture.Height());
    for (const SectionRect& rect : layout.pieces) {
        if (!HasArea(rect)) {
            continue;
        }
        coverage.Add(rect);
        Picture piece;
        try {
            piece = ReadPiece(rect.FileName, format);
        } catch (const std::exception& error) {
            report.problems.push_back(rect.FileName + ": cannot be read back: " + error.what());
            continue;
        }
        if (piece.Width() != rect.Width || piece.Height() != rect.Height) {
            report.problems.push_back(rect.FileName + ": is " +
                                      sizeText(piece.Width(), piece.Height()) + ", its section " +
                                      sizeText(rect.Width, rect.Height));
            continue;
        }
        const Difference difference = compare(picture, rect, piece);
        report.worstPsnr = std::min(report.worstPsnr, difference.psnr);
        if (IsLossless(format) && difference.differingPixels > 0) {
            report.problems.push_back(rect.FileName + ": " +
                                      std::to_string(difference.differingPixels) +
                                      " pixels differ from the picture");
        } else if (!IsLossless(format) && difference.psnr < psnrFloor) {
            report.problems.push_back(
                rect.FileName + ": PSNR " + std::to_string(static_cast<int>(difference.psnr)) +
                " dB, below the floor of " + std::to_string(static_cast<int>(psnrFloor)) + " dB");
        }
    }
    if (const std::int64_t uncovered = coverage.NotOnce(); uncovered > 0) {
        report.problems.push_back(std::to_string(uncovered) +
                                  " pixels of the picture are not covered by exactly one piece");
    }
    return report;
}

} // namespace sw
