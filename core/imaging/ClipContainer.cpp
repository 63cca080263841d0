#include "imaging/ClipContainer.h"

namespace sw {

Picture ClipContainer::Clip() const {
    return picture.Clip(ClipX, ClipY, ClipWidth, ClipHeight);
}

} // namespace sw
