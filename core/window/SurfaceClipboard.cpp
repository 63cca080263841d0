#include "window/SurfaceClipboard.h"

#include "imaging/Picture.h"
#include "imaging/cDIBSection.h"
#include "ports/Clipboard.h"
#include "ports/MessageBoxes.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace sw {

bool CopyToClipboard(const cDIBSection& surface, Clipboard& clipboard, MessageBoxes& boxes,
                     const std::string& title, bool bAsDIB) {
    if (bAsDIB) {
        boxes.Show({title,
                    "I don't know how to put a DIB on the clipboard! Copy as bitmap instead!!!",
                    BoxIcon::None, BoxButtons::OK, BoxResult::OK});
        return false;
    }
    const std::uint8_t* bits = surface.DIBSectionBitsPtr();
    if (bits == nullptr) {
        return false;
    }
    // The clipboard keeps its own copy: the surface may change or go away.
    const auto size = static_cast<std::size_t>(surface.BitmapInfo().biSizeImage);
    std::vector<std::uint8_t> copy(bits, bits + size);
    clipboard.Clear();
    return clipboard.SetPicture(
        Picture::FromBottomUpBgr(surface.Width(), surface.Height(), std::move(copy)));
}

} // namespace sw
