#pragma once

#include <string>

namespace sw {

class Clipboard;
class MessageBoxes;
class cDIBSection;

// Puts a surface on the clipboard as a bitmap. A DIB is not offered: asking
// for one shows a message (titled `title`) and answers false. It lives with
// the window, not the surface, because it reaches the clipboard and the
// message boxes, which the imaging code never does.
bool CopyToClipboard(const cDIBSection& surface, Clipboard& clipboard, MessageBoxes& boxes,
                     const std::string& title, bool bAsDIB = true);

} // namespace sw
