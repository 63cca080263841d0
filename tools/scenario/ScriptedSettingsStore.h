#pragma once

#include "ports/SettingsStore.h"
#include "tools/scenario/Transcript.h"

#include <map>

namespace sw::scripted {

// A settings store in memory; keys not preset are missing.
class ScriptedSettingsStore : public SettingsStore {
public:
    explicit ScriptedSettingsStore(Transcript& transcript) : transcript_(transcript) {}

    void Preset(const std::string& key, const std::string& value) { values_[key] = value; }
    std::string GetSetting(const std::string& application, const std::string& section,
                           const std::string& key, const std::string& defaultValue) override;
    void SaveSetting(const std::string& application, const std::string& section,
                     const std::string& key, const std::string& value) override;

private:
    std::string address(const std::string& application, const std::string& section,
                        const std::string& key) const;
    Transcript& transcript_;
    std::map<std::string, std::string> values_;
};

} // namespace sw::scripted
