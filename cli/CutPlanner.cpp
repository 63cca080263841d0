#include "CutPlanner.h"

#include "common/Numbers.h"
#include "export/SectionGrid.h"
#include "session/EqualDivision.h"
#include "session/LineLimit.h"

#include <unordered_set>

namespace sw {
namespace {

float twips(i32 pixels) {
    return static_cast<float>(pixels) * kTwipsPerPixel;
}

// One direction of --grid: a count of 1 places no line, any other count is
// the window's equal division with its refusals.
std::variant<std::vector<i16>, PlanRefusal> divide(const std::string& count, Direction direction,
                                                   i32 size) {
    if (LeavesUndivided(count)) {
        return std::vector<i16>{};
    }
    const SectionCount sections = CountSections(count, direction, twips(size));
    if (sections.refusal) {
        return PlanRefusal{"--grid " + count + " " +
                           (direction == Direction::Horizontal ? "rows" : "columns") + ": " +
                           *sections.refusal};
    }
    return EqualPositions(twips(size), sections.sections);
}

std::variant<PlannedLines, PlanRefusal> grid(const CutOptions& options, i32 width, i32 height) {
    auto rows = divide(options.gridRows, Direction::Horizontal, height);
    if (auto* refusal = std::get_if<PlanRefusal>(&rows)) {
        return *refusal;
    }
    auto columns = divide(options.gridColumns, Direction::Vertical, width);
    if (auto* refusal = std::get_if<PlanRefusal>(&columns)) {
        return *refusal;
    }
    return PlannedLines{std::get<std::vector<i16>>(rows), std::get<std::vector<i16>>(columns)};
}

// Lines every `step` pixels; the last band takes what is left.
std::vector<i16> everyStep(i32 step, i32 size) {
    std::vector<i16> lines;
    for (i32 at = step; at < size; at += step) {
        lines.push_back(static_cast<i16>(at));
    }
    return lines;
}

PlannedLines fromLineFile(const ParsedLineFile& lineFile) {
    PlannedLines lines;
    for (const LineRecord& record : lineFile.records) {
        (record.direction == Direction::Horizontal ? lines.horizontal : lines.vertical)
            .push_back(record.position);
    }
    return lines;
}

OneBasedArray<i16> lineArray(const std::vector<i16>& positions) {
    OneBasedArray<i16> array;
    array.items() = positions;
    return array;
}

// Renames every section by the pattern; the name two sections would share,
// if any ({row}{col} without a separator can make 1 and 11 into 111).
std::optional<std::string> applyPattern(CutPlan& plan, const NamePattern& pattern) {
    const CutDestination& destination = plan.Destination;
    std::unordered_set<std::string> names;
    for (SectionRect& section : plan.Sections) {
        section.CellName = pattern.Name(destination.BaseName, section.Number, RowOf(plan, section),
                                        ColumnOf(plan, section)) +
                           destination.Extension;
        section.FileName = destination.Folder + section.CellName;
        if (!names.insert(section.CellName).second) {
            return section.CellName;
        }
    }
    return std::nullopt;
}

} // namespace

bool LeavesUndivided(const std::string& count) {
    const Converted<i16> n = TextToInteger(count);
    return n.ok() && IsNumericText(count) && n.value == 1;
}

std::variant<PlannedLines, PlanRefusal> PlanLines(const CutOptions& options, i32 width, i32 height,
                                                  const ParsedLineFile& lineFile) {
    switch (options.source) {
    case LineSource::Grid:
        return grid(options, width, height);
    case LineSource::Tile:
        return PlannedLines{everyStep(options.tileHeight, height),
                            everyStep(options.tileWidth, width)};
    case LineSource::LineFile:
        return fromLineFile(lineFile);
    case LineSource::Explicit:
        return PlannedLines{options.hLines, options.vLines};
    }
    return PlanRefusal{"no lines"};
}

std::variant<CutPlan, PlanRefusal> PlanPieces(const PlannedLines& lines, i32 width, i32 height,
                                              const CutDestination& destination,
                                              const std::optional<NamePattern>& pattern) {
    const std::int64_t sections =
        (std::int64_t(lines.horizontal.size()) + 1) * (std::int64_t(lines.vertical.size()) + 1);
    if (lines.horizontal.size() > kMostLinesOfAKind || lines.vertical.size() > kMostLinesOfAKind ||
        sections > kMostSections) {
        return PlanRefusal{"the lines make " + std::to_string(sections) + " sections; at most " +
                           std::to_string(kMostSections) + " can be cut at once"};
    }
    OneBasedArray<i16> horizontal = lineArray(lines.horizontal);
    OneBasedArray<i16> vertical = lineArray(lines.vertical);
    const auto hCount = static_cast<i16>(lines.horizontal.size());
    const auto vCount = static_cast<i16>(lines.vertical.size());
    SortLines(horizontal, hCount);
    SortLines(vertical, vCount);
    CutPlan plan = BuildSectionGrid({horizontal, hCount}, {vertical, vCount}, twips(width),
                                    twips(height), destination);
    if (pattern) {
        if (const auto shared = applyPattern(plan, *pattern)) {
            return PlanRefusal{"the name pattern gives two pieces the name " + *shared +
                               "; put a separator between its fields"};
        }
    }
    return plan;
}

i32 RowOf(const CutPlan& plan, const SectionRect& section) {
    return (section.Number - 1) / plan.Columns + 1;
}

i32 ColumnOf(const CutPlan& plan, const SectionRect& section) {
    return (section.Number - 1) % plan.Columns + 1;
}

} // namespace sw
