#include "export/ClipContainer.h"

namespace sw {

bool ClipContainer::ClipInside() const {
    return ClipX >= 0 && ClipY >= 0 && ClipWidth > 0 && ClipHeight > 0 &&
           ClipX + ClipWidth <= picture.Width() && ClipY + ClipHeight <= picture.Height();
}

Picture ClipContainer::Clip() const {
    return picture.Clip(ClipX, ClipY, ClipWidth, ClipHeight);
}

} // namespace sw
