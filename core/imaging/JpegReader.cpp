#include "imaging/JpegReader.h"

#include <array>
#include <fstream>
#include <turbojpeg.h>

namespace sw {

struct JpegReader::Handle {
    tjhandle decoder = tjInitDecompress();
    ~Handle() {
        if (decoder != nullptr) {
            tjDestroy(decoder);
        }
    }
};

namespace {

std::vector<std::uint8_t> readFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    if (!file) {
        return {};
    }
    const std::streamoff size = file.tellg();
    if (size <= 0) {
        return {};
    }
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size));
    file.seekg(0);
    if (!file.read(reinterpret_cast<char*>(bytes.data()), size)) {
        return {};
    }
    return bytes;
}

} // namespace

bool JpegReader::IsJpeg(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::array<unsigned char, 3> start{};
    return file.read(reinterpret_cast<char*>(start.data()), start.size()) && start[0] == 0xFF &&
           start[1] == 0xD8 && start[2] == 0xFF;
}

JpegReader::JpegReader(const std::string& path)
    : handle_(std::make_unique<Handle>()), bytes_(readFile(path)) {
    int subsampling = 0;
    int colourSpace = 0;
    if (handle_->decoder == nullptr || bytes_.empty() ||
        tjDecompressHeader3(handle_->decoder, bytes_.data(), bytes_.size(), &width_, &height_,
                            &subsampling, &colourSpace) != 0 ||
        width_ <= 0 || height_ <= 0) {
        return;
    }
    headerRead_ = true;
    fourColour_ = colourSpace == TJCS_CMYK || colourSpace == TJCS_YCCK;
}

JpegReader::~JpegReader() = default;

std::optional<Picture> JpegReader::Decode(std::string& error) {
    if (!headerRead_ || fourColour_) {
        error = "the decoder cannot read this picture";
        return std::nullopt;
    }
    const std::size_t stride = Picture::Stride(width_);
    std::vector<std::uint8_t> pixels(stride * static_cast<std::size_t>(height_));
    const int status =
        tjDecompress2(handle_->decoder, bytes_.data(), bytes_.size(), pixels.data(), width_,
                      static_cast<int>(stride), height_, TJPF_BGR, TJFLAG_BOTTOMUP);
    // The file's bytes go before the picture is handed on: the peak of an
    // open is the picture and the file, never more.
    std::vector<std::uint8_t>().swap(bytes_);
    if (status != 0 && tjGetErrorCode(handle_->decoder) != TJERR_WARNING) {
        error = tjGetErrorStr2(handle_->decoder);
        return std::nullopt;
    }
    return Picture::FromBottomUpBgr(width_, height_, std::move(pixels));
}

} // namespace sw
