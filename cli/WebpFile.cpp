#include "WebpFile.h"

#include "PixelOrder.h"
#include "common/AtomicFile.h"
#include "common/FileWriteError.h"
#include "imaging/Picture.h"

#include <memory>
#include <stdexcept>
#include <vector>
#include <webp/decode.h>
#include <webp/encode.h>

namespace sw {
namespace {

struct WebpDeleter {
    void operator()(std::uint8_t* buffer) const { WebPFree(buffer); }
};
using WebpBuffer = std::unique_ptr<std::uint8_t, WebpDeleter>;

} // namespace

EncodedFile EncodeWebp(const Picture& picture, const std::string& fileName, i32 quality) {
    const int width = picture.Width();
    const int height = picture.Height();
    if (width > kMaxWebpSide || height > kMaxWebpSide) {
        throw FileWriteError(fileName, "WebP holds at most " + std::to_string(kMaxWebpSide) +
                                           " pixels a side, the section is " +
                                           std::to_string(width) + " x " + std::to_string(height));
    }
    const std::size_t stride = static_cast<std::size_t>(width) * 3;
    std::vector<std::uint8_t> rows(stride * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y) {
        CopyRowOut(picture, y, ChannelOrder::Bgr,
                   rows.data() + stride * static_cast<std::size_t>(y));
    }
    std::uint8_t* encoded = nullptr;
    const std::size_t size = WebPEncodeBGR(rows.data(), width, height, static_cast<int>(stride),
                                           static_cast<float>(quality), &encoded);
    WebpBuffer owner(encoded);
    if (size == 0) {
        throw FileWriteError(fileName, "the WebP encoder failed");
    }
    return EncodedFile{std::vector<std::uint8_t>(encoded, encoded + size), false};
}

void WriteWebpFile(const Picture& picture, const std::string& fileName, i32 quality) {
    WriteEncodedFile(EncodeWebp(picture, fileName, quality), fileName);
}

Picture ReadWebpFile(const std::string& fileName) {
    std::string bytes;
    std::string reason;
    if (!ReadWholeFile(fileName, bytes, reason)) {
        throw std::runtime_error(reason);
    }
    int width = 0;
    int height = 0;
    WebpBuffer bgr(WebPDecodeBGR(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size(),
                                 &width, &height));
    if (!bgr) {
        throw std::runtime_error("no readable WebP picture");
    }
    return PictureFromTopDown(width, height, bgr.get(), static_cast<std::size_t>(width) * 3,
                              ChannelOrder::Bgr);
}

} // namespace sw
