#include "export/SectionWriter.h"

#include "common/FileWriteError.h"
#include "export/ClipContainer.h"
#include "export/HtmlTable.h"
#include "export/SectionArea.h"
#include "export/SectionEncoder.h"

#include <exception>

namespace sw {
namespace {

void setClip(ClipContainer& clip, const SectionRect& inside) {
    clip.ClipX = static_cast<i16>(inside.Left);
    clip.ClipY = static_cast<i16>(inside.Top);
    clip.ClipHeight = static_cast<i16>(inside.Height);
    clip.ClipWidth = static_cast<i16>(inside.Width);
}

bool encode(SectionOutput& output, const std::string& fileName) {
    const Picture clip = output.clipContainer.Clip();
    if (output.saveFormat == "BMP") {
        output.encoder.SaveBmp(clip, fileName);
        return true;
    }
    return output.encoder.SaveJpg(clip, fileName, output.quality);
}

std::optional<SectionFailure> encodeSection(SectionOutput& output, const std::string& fileName) {
    try {
        if (!encode(output, fileName)) {
            return SectionFailure{SectionFailure::Kind::Encoder, fileName, {}};
        }
    } catch (const FileWriteError& error) {
        return SectionFailure{SectionFailure::Kind::File, error.Path(), error.Reason()};
    } catch (const std::exception& error) {
        return SectionFailure{SectionFailure::Kind::Clip, fileName, error.what()};
    }
    return std::nullopt;
}

void storeCell(SectionCells& cells, i32 number, std::string text) {
    if (cells.UBound() < number) {
        cells.ReDimPreserve(number);
    }
    cells(number) = std::move(text);
}

} // namespace

std::optional<SectionFailure> WriteSection(SectionOutput& output, const SectionRect& section,
                                           SectionCells& cells) {
    const Picture& picture = output.clipContainer.picture;
    const SectionRect inside = PartInsidePicture(section, picture.Width(), picture.Height());
    if (!HasArea(inside)) {
        storeCell(cells, section.Number, EmptyCellText());
        return std::nullopt;
    }
    setClip(output.clipContainer, inside);
    if (auto failure = encodeSection(output, section.FileName)) {
        return failure;
    }
    storeCell(cells, section.Number, CellText(section.CellName));
    return std::nullopt;
}

std::optional<SectionFailure> WriteSections(SectionOutput& output, const CutPlan& plan,
                                            SectionCells& cells) {
    for (const SectionRect& section : plan.Sections) {
        if (auto failure = WriteSection(output, section, cells)) {
            return failure;
        }
    }
    return std::nullopt;
}

} // namespace sw
