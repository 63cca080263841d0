#pragma once

#include "ports/FormWindow.h"

namespace sw {

// The main form as stored, in twips, before the first picture: the form
// itself (a client area of 3405 x 5325 under the menu bar) and the places of
// its controls. Both the real window and the scripted one are built from it.
struct StoredLayout {
    static constexpr TwipRect form{0, 0, 3525, 6015};
    static constexpr TwipRect picActual{120, 720, 0, 0};
    static constexpr TwipRect lblMousePos{120, 480, 0, 0};
    static constexpr TwipRect tlbrMain{0, 0, 0, 0};
    static constexpr TwipRect vscroll{3120, 480, 255, 975};
    static constexpr TwipRect hscroll{1920, 480, 1095, 255};
    // The corner piece between the bars, a square of this side.
    static constexpr TwipRect picResize{2640, 840, 255, 255};
};

} // namespace sw
