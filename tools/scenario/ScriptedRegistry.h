#pragma once

#include "ports/Registry.h"
#include "tools/scenario/Transcript.h"

#include <map>
#include <utility>

namespace sw::scripted {

// A registry holding only what the script put in it
// (`registry "HKLM/SOFTWARE/..." "NAME" sz "text"` or `... dword 0x12345678`).
// Keys are written with "/" between their parts, the root first.
class ScriptedRegistry : public Registry {
public:
    explicit ScriptedRegistry(Transcript& transcript) : transcript_(transcript) {}

    void Preset(const std::string& key, const std::string& valueName, RegistryValue value);
    bool QueryValue(RegistryRoot root, const std::string& keyName, const std::string& valueName,
                    RegistryValue& value) override;

private:
    Transcript& transcript_;
    std::map<std::pair<std::string, std::string>, RegistryValue> values_;
};

} // namespace sw::scripted
