#pragma once

#include "ports/Registry.h"

namespace sw::qt {

// A Linux desktop keeps no such registry: every key is missing, so the
// search for a system-information program goes on to the desktop's own.
class QtRegistry : public Registry {
public:
    bool QueryValue(RegistryRoot, const std::string&, const std::string&, RegistryValue&) override {
        return false;
    }
};

} // namespace sw::qt
