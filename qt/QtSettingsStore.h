#pragma once

#include "ports/SettingsStore.h"

#include <map>
#include <set>
#include <string>

class QSettings;

namespace sw::qt {

// The settings as an INI file in the user's configuration folder
// ($XDG_CONFIG_HOME, usually ~/.config): one file for each application,
// one group for each section. A file that cannot be read, or is no INI
// file, gives the defaults and is never written over; the terminal is told.
class QtSettingsStore : public SettingsStore {
public:
    std::string GetSetting(const std::string& application, const std::string& section,
                           const std::string& key, const std::string& defaultValue) override;
    void SaveSetting(const std::string& application, const std::string& section,
                     const std::string& key, const std::string& value) override;

private:
    // Why the store's file cannot be used, as far as this run has learnt.
    const char* problemOf(const QSettings& store);
    // Names the file and its problem on the terminal, once a run.
    void tellOnce(const QSettings& store, const char* problem);
    std::map<std::string, const char*> unusable_;
    std::set<std::string> told_;
};

} // namespace sw::qt
