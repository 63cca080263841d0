#pragma once

#include "common/Types.h"

#include <cstdint>

namespace sw {

struct Session;

// Room kept around the picture when sizing the window and testing for bars,
// in twips: on the sides, and in addition below it.
inline constexpr float kPictureAllowance = 240;
inline constexpr float kExtraHeightAllowance = 300;

enum class ScrollAxis : std::uint8_t { Vertical = 0, Horizontal = 1 };

// The form changed its size: the view goes back to the picture's top left
// corner, and with a picture the viewport is laid out again.
void Form_Resize(Session& session);
// Keeps the window within its size limits, shows the scroll bars the picture
// needs with their ranges, and places the corner piece.
void LayoutViewport(Session& session);
// Moves every scrolled control by the step from the last value to this one.
void ScrollControls(Session& session, ScrollAxis axis, i32 value);

void hscroll_Change(Session& session);
void hscroll_Scroll(Session& session);
void vscroll_Change(Session& session);
void vscroll_Scroll(Session& session);

// A float in twips as the session keeps it: the nearest whole twip, a tie to
// the even one.
i32 WholeTwips(float twips);

} // namespace sw
