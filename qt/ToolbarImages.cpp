#include "qt/ToolbarImages.h"

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
    const QString name = kImageNames[static_cast<std::size_t>(place - 1)];
    QIcon icon;
    icon.addFile(":/toolbar/" + name + "-16.png", QSize(16, 16));
    icon.addFile(":/toolbar/" + name + "-32.png", QSize(32, 32));
    return icon;
}

} // namespace sw::qt
