#include "qt/ApplicationIcon.h"

#include "qt/RenderedIcon.h"

namespace sw::qt {

QIcon ApplicationIcon() {
    return RenderedIcon("icons", "slicewright", {48, 256});
}

} // namespace sw::qt
