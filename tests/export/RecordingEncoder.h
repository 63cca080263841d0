#pragma once

#include "common/FileWriteError.h"
#include "export/SectionEncoder.h"
#include "imaging/Picture.h"

#include <string>
#include <vector>

namespace sw {

// Records every section handed to it, and can fail at the n-th (from 1): as
// the encoder on the JPG road, as a file that cannot be written on the BMP road.
class RecordingEncoder : public SectionEncoder {
public:
    struct Call {
        std::string road;
        std::string fileName;
        int width;
        int height;
        std::uint32_t topLeft;
    };
    std::vector<Call> calls;
    std::size_t failAt = 0;

    void SaveBmp(const Picture& clip, const std::string& fileName) override {
        record("bmp", clip, fileName);
    }
    bool SaveJpg(const Picture& clip, const std::string& fileName, i32 quality) override {
        return record("jpg" + std::to_string(quality), clip, fileName);
    }

private:
    bool record(const std::string& road, const Picture& clip, const std::string& fileName) {
        calls.push_back({road, fileName, clip.Width(), clip.Height(), clip.PixelAt(0, 0)});
        if (calls.size() != failAt) {
            return true;
        }
        if (road == "bmp") {
            throw FileWriteError(fileName, "the disk is full");
        }
        return false;
    }
};

} // namespace sw
