#include "session/EqualDivision.h"

#include "common/Numbers.h"
#include "session/LineLimit.h"
#include "session/PictureReload.h"
#include "session/SectionLines.h"
#include "session/Session.h"

#include <string>

namespace sw {
namespace {

struct DirectionTexts {
    const char* alreadyDivided;
    const char* inputTitle;
    const char* tooMany;
};

DirectionTexts textsFor(Direction direction) {
    if (direction == Direction::Horizontal) {
        return {"You have already divided the picture into horizontal sections.",
                "Divide Equal Horizontally",
                "Number of Sections exceed the actual height of the picture!"};
    }
    return {"You have already divided the picture into vertical sections.",
            "Divide Equal Vertically",
            "Number of Sections exceed the actual width of the picture!"};
}

void refuse(Session& session, const std::string& title, const std::string& text) {
    session.ports.boxes.Show({title, text, BoxIcon::Critical, BoxButtons::OK, BoxResult::OK});
}

float sectionSize(float sizeInTwips, i16 sections) {
    const float pixels = sizeInTwips / kTwipsPerPixel;
    return pixels / static_cast<float>(sections);
}

// Yes clears both kinds of line before the new division is asked for.
bool clearEarlierDivision(Session& session, const DirectionTexts& texts) {
    const std::string question = std::string(texts.alreadyDivided) +
                                 "\r\nAll lines will need to be cleared first!\r\n"
                                 "Do you want to clear them?";
    const BoxResult answer = session.ports.boxes.Show(
        {"Sectioning Error", question, BoxIcon::Exclamation, BoxButtons::YesNo, BoxResult::Yes});
    if (answer != BoxResult::Yes || !ReloadPicture(session)) {
        return false;
    }
    SessionState& s = session.state;
    const bool linesDrawn = s.linesDrawn;
    ResetLines(session);
    s.linesDrawn = linesDrawn;
    return true;
}

// Reads and validates the number of sections; nothing when refused or cancelled.
std::optional<i16> askSections(Session& session, Direction direction, const DirectionTexts& texts) {
    const std::string answer =
        session.ports.boxes.InputBox("Divide into how many sections?", texts.inputTitle, "2");
    if (answer.empty()) {
        return std::nullopt;
    }
    PictureBox& box = session.ports.picActual;
    const float size = direction == Direction::Horizontal ? box.Height() : box.Width();
    const SectionCount count = CountSections(answer, direction, size);
    if (count.refusal) {
        refuse(session, "Sectioning Error", *count.refusal);
        return std::nullopt;
    }
    return count.sections;
}

void reportNoMemory(Session& session) {
    refuse(session, "Resource problems!", "Not enough memory to split a picture this big!");
}

} // namespace

SectionCount CountSections(std::string_view answer, Direction direction, float sizeInTwips) {
    // The order of the tests matters: an overflow is named before the text is
    // asked whether it is a number at all.
    const Converted<i16> n = TextToInteger(answer);
    if (n.error == ConversionError::Overflow) {
        return {0, "With a number that large, I think you need something a little more high test "
                   "than this!"};
    }
    if (!IsNumericText(answer)) {
        return {0, "Number of sections must be numeric"};
    }
    if (n.value <= 1) {
        return {0, "Number of sections must be greater than 1"};
    }
    if (sectionSize(sizeInTwips, n.value) < 1.0f) {
        return {0, textsFor(direction).tooMany};
    }
    return {n.value, std::nullopt};
}

std::vector<i16> EqualPositions(float sizeInTwips, i16 sections) {
    std::vector<i16> positions;
    const float size = sectionSize(sizeInTwips, sections);
    float positionSum = 0.0f;
    for (int i = 1; i < sections; ++i) {
        positionSum += size;
        positions.push_back(static_cast<i16>(RoundHalfEven(positionSum)));
    }
    return positions;
}

void DivideEqually(Session& session, Direction direction) {
    SessionState& s = session.state;
    const DirectionTexts texts = textsFor(direction);
    if (KindOf(s, direction).divided && !clearEarlierDivision(session, texts)) {
        return;
    }
    const std::optional<i16> sections = askSections(session, direction, texts);
    if (!sections) {
        return;
    }
    PictureBox& box = session.ports.picActual;
    const float size = direction == Direction::Horizontal ? box.Height() : box.Width();
    for (const i16 position : EqualPositions(size, *sections)) {
        if (!RoomForLine(session, direction)) {
            return;
        }
        if (!PaintLine(box, direction, position, s.lineColor)) {
            reportNoMemory(session);
            return;
        }
        const LineKind kind = KindOf(s, direction);
        AddLine(kind, position);
        AppendLineOrder(session, kind.letter);
    }
    KindOf(s, direction).divided = true;
    s.linesDrawn = true;
}

} // namespace sw
