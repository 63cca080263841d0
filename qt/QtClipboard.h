#pragma once

#include "ports/Clipboard.h"

namespace sw::qt {

// The system clipboard through Qt.
class QtClipboard : public Clipboard {
public:
    void Clear() override;
    void SetText(const std::string& text) override;
    bool SetPicture(const Picture& picture) override;
};

} // namespace sw::qt
