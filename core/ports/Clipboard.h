#pragma once

#include <string>

namespace sw {

class Picture;

// The system clipboard.
class Clipboard {
public:
    virtual ~Clipboard() = default;
    virtual void Clear() = 0;
    // Puts a text on the clipboard in the plain text format.
    virtual void SetText(const std::string& text) = 0;
    // Puts a bitmap on the clipboard; false when the clipboard refused it.
    virtual bool SetPicture(const Picture& picture) = 0;
};

} // namespace sw
