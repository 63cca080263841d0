#pragma once

#include "common/OneBasedArray.h"
#include "common/Types.h"

#include <string>

namespace sw {

// All that the session keeps: window geometry, pointer, the line set, flags,
// the line colour and the six remembered settings. It holds no window object.
struct SessionState {
    // Window geometry in twips, noted at start.
    i16 picRight = 3255;
    i16 picBottom = 5175;
    i16 formRight = 0;
    i16 formBottom = 0;
    i16 rightMargin = 0;
    i16 bottomMargin = 0;
    // Viewport bookkeeping in twips. These sums hold the picture's size in
    // twips, which leaves 16 bits beyond about 2100 pixels; they are kept in
    // 32 bits so that a large picture opens and scrolls like any other.
    i32 formHeightNow = 0;
    i32 formWidthNow = 0;
    i32 neededHeight = 0;
    i32 neededWidth = 0;
    i32 picOriginX = 0;
    i32 picOriginY = 0;
    // Last pointer position over the picture, in pixels.
    i16 mouseX = 0;
    i16 mouseY = 0;
    // The line set: positions in picture pixels, and the undo log of "H"/"V".
    OneBasedArray<i16> hLines;
    OneBasedArray<i16> vLines;
    OneBasedArray<std::string> lineOrder;
    i16 hLineCount = 0;
    i16 vLineCount = 0;
    bool hDivided = false;
    bool vDivided = false;
    i16 minFormWidth = 0;
    bool linesDrawn = false;
    bool undoOffered = false;
    Color lineColor = 0;
    // The scroll bars' values at the last move of the controls, in twips.
    i32 lastScrollX = 0;
    i32 lastScrollY = 0;
    // The remembered settings.
    std::string LastOpenDir;
    std::string LastSaveDir;
    std::string LastPicture;
    std::string SaveFormat;
    std::string HTMLOut;
    i32 JPGComp = 0;
    bool pictureOpen = false;
};

} // namespace sw
