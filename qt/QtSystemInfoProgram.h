#pragma once

#include "ports/SystemInfoProgram.h"

namespace sw::qt {

// Finds a desktop system-information program on the PATH and starts it.
class QtSystemInfoProgram : public SystemInfoProgram {
public:
    std::string Find() override;
    bool Start(const std::string& program) override;
};

} // namespace sw::qt
