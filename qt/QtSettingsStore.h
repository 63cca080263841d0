#pragma once

#include "ports/SettingsStore.h"

namespace sw::qt {

// The settings as an INI file in the user's configuration folder
// ($XDG_CONFIG_HOME, usually ~/.config): one file for each application,
// one group for each section.
class QtSettingsStore : public SettingsStore {
public:
    std::string GetSetting(const std::string& application, const std::string& section,
                           const std::string& key, const std::string& defaultValue) override;
    void SaveSetting(const std::string& application, const std::string& section,
                     const std::string& key, const std::string& value) override;
};

} // namespace sw::qt
