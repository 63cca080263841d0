#include "qt/ToolbarImages.h"

#include "qt/RenderedIcon.h"

#include <array>

namespace sw::qt {
namespace {

// In the order of the image list (see resources/toolbar/README.md).
constexpr std::array<const char*, 9> kImageNames{"open",
                                                 "undo",
                                                 "grid",
                                                 "horizontal-line",
                                                 "scissors",
                                                 "clear",
                                                 "vertical-line",
                                                 "divide-horizontally",
                                                 "divide-vertically"};

} // namespace

QIcon ToolbarImage(int place) {
    if (place < 1 || place > static_cast<int>(kImageNames.size())) {
        return {};
    }
    return RenderedIcon("toolbar", kImageNames[static_cast<std::size_t>(place - 1)],
                        {kToolbarImageSize, 2 * kToolbarImageSize});
}

} // namespace sw::qt
