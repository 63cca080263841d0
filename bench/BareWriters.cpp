#include "bench/BareWriters.h"

#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <turbojpeg.h>
#include <vector>

namespace sw::bench {
namespace {

void writeFile(const std::string& name, const void* data, std::size_t size) {
    std::FILE* file = std::fopen(name.c_str(), "wb");
    if (file == nullptr || std::fwrite(data, 1, size, file) != size || std::fclose(file) != 0) {
        throw std::runtime_error("cannot write " + name);
    }
}

// The first byte, in memory order, of a rectangle: its bottom row at its left edge.
const unsigned char* bottomRowStart(const Picture& picture, const SectionRect& s) {
    return picture.Row(s.Top + s.Height - 1) + 3 * static_cast<std::size_t>(s.Left);
}

void putLittleEndian(std::vector<unsigned char>& out, std::uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) {
        out.push_back(static_cast<unsigned char>(value >> (8 * i)));
    }
}

std::vector<unsigned char> bmpHeaders(int width, int height) {
    const std::uint32_t imageSize = static_cast<std::uint32_t>(Picture::Stride(width) * height);
    std::vector<unsigned char> out{'B', 'M'};
    putLittleEndian(out, 54 + imageSize, 4);
    putLittleEndian(out, 0, 4);
    putLittleEndian(out, 54, 4);
    putLittleEndian(out, 40, 4);
    putLittleEndian(out, static_cast<std::uint32_t>(width), 4);
    putLittleEndian(out, static_cast<std::uint32_t>(height), 4);
    putLittleEndian(out, 1, 2);
    putLittleEndian(out, 24, 2);
    putLittleEndian(out, 0, 4);
    putLittleEndian(out, imageSize, 4);
    for (int i = 0; i < 4; ++i) {
        putLittleEndian(out, 0, 4);
    }
    return out;
}

} // namespace

int BareTurboJpeg(const Picture& picture, const CutPlan& plan, int quality) {
    tjhandle encoder = tjInitCompress();
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    for (const SectionRect& s : plan.Sections) {
        if (tjCompress2(encoder, bottomRowStart(picture, s), s.Width,
                        static_cast<int>(picture.RowPitch()), s.Height, TJPF_BGR, &bytes, &size,
                        TJSAMP_420, quality, TJFLAG_BOTTOMUP) != 0) {
            throw std::runtime_error(tjGetErrorStr2(encoder));
        }
        writeFile(s.FileName, bytes, size);
    }
    tjFree(bytes);
    tjDestroy(encoder);
    return static_cast<int>(plan.Sections.size());
}

int BareBmp(const Picture& picture, const CutPlan& plan) {
    for (const SectionRect& s : plan.Sections) {
        std::vector<unsigned char> file = bmpHeaders(s.Width, s.Height);
        const std::size_t stride = Picture::Stride(s.Width);
        const std::size_t headers = file.size();
        file.resize(headers + stride * static_cast<std::size_t>(s.Height), 0);
        for (int row = 0; row < s.Height; ++row) {
            std::memcpy(file.data() + headers + stride * static_cast<std::size_t>(row),
                        bottomRowStart(picture, s) +
                            picture.RowPitch() * static_cast<std::size_t>(row),
                        3 * s.Width);
        }
        writeFile(s.FileName, file.data(), file.size());
    }
    return static_cast<int>(plan.Sections.size());
}

} // namespace sw::bench
