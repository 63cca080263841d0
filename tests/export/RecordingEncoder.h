#pragma once

#include "common/FileWriteError.h"
#include "export/SectionEncoder.h"
#include "imaging/Picture.h"

#include <string>
#include <utility>
#include <vector>

namespace sw {

// Records every section whose file is written, in the order of writing, and
// can fail the section of one file name: as the encoder on the JPG road, as a
// file that cannot be written on the BMP road. Sections may be encoded on
// several threads at once.
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
    std::string failOn;
    // The folders put on the disk at the end of a run, with the number of
    // files written before each; `refuseSync` makes the disk refuse.
    std::vector<std::pair<std::string, std::size_t>> finishedRuns;
    bool refuseSync = false;

    std::optional<EncodedFile> Encode(const Picture& clip, const std::string& fileName,
                                      const std::string& saveFormat, i32 quality) override {
        const std::string road = saveFormat == "BMP" ? "bmp" : "jpg" + std::to_string(quality);
        if (fileName == failOn && road != "bmp") {
            return std::nullopt;
        }
        const std::string record = road + "|" + std::to_string(clip.Width()) + "|" +
                                   std::to_string(clip.Height()) + "|" +
                                   std::to_string(clip.PixelAt(0, 0));
        return EncodedFile{{record.begin(), record.end()}, false};
    }

    void Write(const EncodedFile& file, const std::string& fileName) override {
        if (fileName == failOn) {
            throw FileWriteError(fileName, "the disk is full");
        }
        const std::string record(file.bytes.begin(), file.bytes.end());
        std::vector<std::string> fields;
        for (std::size_t from = 0, bar = 0; bar != std::string::npos; from = bar + 1) {
            bar = record.find('|', from);
            fields.push_back(record.substr(from, bar - from));
        }
        calls.push_back({fields[0], fileName, std::stoi(fields[1]), std::stoi(fields[2]),
                         static_cast<std::uint32_t>(std::stoul(fields[3]))});
    }

    void FinishRun(const std::string& folder) override {
        finishedRuns.emplace_back(folder, calls.size());
        if (refuseSync) {
            throw FileWriteError(folder, "an input/output error");
        }
    }
};

} // namespace sw
