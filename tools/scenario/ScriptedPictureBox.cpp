#include "tools/scenario/ScriptedPictureBox.h"

#include <cstdio>

namespace sw::scripted {

void ScriptedPictureBox::SetPicture(const Picture& picture) {
    width_ = static_cast<float>(picture.Width()) * kTwipsPerPixel;
    height_ = static_cast<float>(picture.Height()) * kTwipsPerPixel;
    hasPicture_ = true;
    transcript_.Line("picActual picture " + std::to_string(picture.Width()) + "x" +
                     std::to_string(picture.Height()));
}

bool ScriptedPictureBox::Line(int x1, int y1, int x2, int y2, Color color) {
    char line[96];
    std::snprintf(line, sizeof line, "stroke %d,%d -> %d,%d color=0x%06X", x1, y1, x2, y2,
                  static_cast<unsigned>(color));
    const bool ok = strokesUntilFailure_ <= 0 || --strokesUntilFailure_ > 0;
    transcript_.Line(std::string(line) + (ok ? "" : " -> failed"));
    return ok;
}

} // namespace sw::scripted
