#pragma once

#include <string>

namespace sw {

// The per-user store of remembered settings, addressed by application,
// section and key; every value is text.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;
    virtual std::string GetSetting(const std::string& application, const std::string& section,
                                   const std::string& key, const std::string& defaultValue) = 0;
    virtual void SaveSetting(const std::string& application, const std::string& section,
                             const std::string& key, const std::string& value) = 0;
};

} // namespace sw
