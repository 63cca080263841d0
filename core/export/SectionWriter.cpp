#include "export/SectionWriter.h"

#include "common/FileWriteError.h"
#include "common/RunInOrder.h"
#include "export/HtmlTable.h"
#include "export/SectionArea.h"
#include "export/SectionEncoder.h"
#include "imaging/ClipContainer.h"

#include <exception>

namespace sw {
namespace {

// One section made ready for its turn: encoded, refused, or without area.
struct EncodedSection {
    SectionRect inside;
    std::optional<EncodedFile> file;
    std::optional<SectionFailure> failure;
};

void setClip(ClipContainer& clip, const SectionRect& inside) {
    clip.ClipX = static_cast<i16>(inside.Left);
    clip.ClipY = static_cast<i16>(inside.Top);
    clip.ClipHeight = static_cast<i16>(inside.Height);
    clip.ClipWidth = static_cast<i16>(inside.Width);
}

// Cuts and encodes one section, on whichever thread: the clip is set on a
// container of its own, which shares the clean picture's pixels.
std::optional<SectionFailure> encodeInside(const SectionOutput& output, const SectionRect& section,
                                           EncodedSection& encoded) {
    try {
        ClipContainer container{output.clipContainer.picture};
        setClip(container, encoded.inside);
        encoded.file = output.encoder.Encode(container.Clip(), section.FileName, output.saveFormat,
                                             output.quality);
        if (!encoded.file) {
            return SectionFailure{SectionFailure::Kind::Encoder, section.FileName, {}};
        }
    } catch (const FileWriteError& error) {
        return SectionFailure{SectionFailure::Kind::File, error.Path(), error.Reason()};
    } catch (const std::exception& error) {
        return SectionFailure{SectionFailure::Kind::Clip, section.FileName, error.what()};
    }
    return std::nullopt;
}

EncodedSection encodeSection(const SectionOutput& output, const SectionRect& section) {
    const Picture& picture = output.clipContainer.picture;
    EncodedSection encoded;
    encoded.inside = PartInsidePicture(section, picture.Width(), picture.Height());
    if (HasArea(encoded.inside)) {
        encoded.failure = encodeInside(output, section, encoded);
    }
    return encoded;
}

void storeCell(SectionCells& cells, i32 number, std::string text) {
    if (cells.UBound() < number) {
        cells.ReDimPreserve(number);
    }
    cells(number) = std::move(text);
}

std::optional<SectionFailure> writeFile(SectionOutput& output, const SectionRect& section,
                                        const EncodedSection& encoded) {
    setClip(output.clipContainer, encoded.inside);
    try {
        output.encoder.Write(*encoded.file, section.FileName);
    } catch (const FileWriteError& error) {
        return SectionFailure{SectionFailure::Kind::File, error.Path(), error.Reason()};
    }
    return std::nullopt;
}

// A section's turn, in plan order: its file goes to disk and its cell is stored.
std::optional<SectionFailure> finishSection(SectionOutput& output, const SectionRect& section,
                                            const EncodedSection& encoded, SectionCells& cells) {
    if (encoded.failure) {
        return encoded.failure;
    }
    if (!encoded.file) {
        storeCell(cells, section.Number, EmptyCellText());
        return std::nullopt;
    }
    if (auto failure = writeFile(output, section, encoded)) {
        return failure;
    }
    storeCell(cells, section.Number, CellText(section.CellName));
    return std::nullopt;
}

} // namespace

std::optional<SectionFailure> WriteSections(SectionOutput& output, const CutPlan& plan,
                                            SectionCells& cells) {
    std::optional<SectionFailure> failure;
    const std::function<EncodedSection(std::size_t)> encode = [&](std::size_t i) {
        return encodeSection(output, plan.Sections[i]);
    };
    const std::function<bool(std::size_t, EncodedSection&)> finish = [&](std::size_t i,
                                                                         EncodedSection& encoded) {
        const SectionRect& section = plan.Sections[i];
        failure = finishSection(output, section, encoded, cells);
        const bool last = i + 1 == plan.Sections.size();
        // A stop asked for at the last section comes too late to stop anything.
        if (!failure && output.afterSection && !output.afterSection(section, i + 1) && !last) {
            failure = SectionFailure{SectionFailure::Kind::Cancelled, section.FileName, {}};
        }
        return !failure;
    };
    RunInOrder(plan.Sections.size(), output.threads, encode, finish);
    // The files already written are put on the disk even when the run
    // stopped early; a refusal then only tells when nothing else went wrong.
    try {
        output.encoder.FinishRun(plan.Destination.Folder);
    } catch (const FileWriteError& error) {
        if (!failure) {
            failure = SectionFailure{SectionFailure::Kind::File, error.Path(), error.Reason()};
        }
    }
    return failure;
}

} // namespace sw
