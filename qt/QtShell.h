#pragma once

#include "ports/Shell.h"

namespace sw::qt {

// Opens documents and web addresses with the desktop's own programs (xdg-open).
class QtShell : public Shell {
public:
    void OpenDocument(const std::string& target) override;
};

} // namespace sw::qt
