#include "tools/scenario/ScriptedSettingsStore.h"

#include "common/QuotedText.h"
#include "session/Settings.h"

namespace sw::scripted {

// The application and section are shown only where they are not the usual ones.
std::string ScriptedSettingsStore::address(const std::string& application,
                                           const std::string& section,
                                           const std::string& key) const {
    if (application == kSettingsApplication && section == kSettingsSection) {
        return key;
    }
    return application + "/" + section + "/" + key;
}

std::string ScriptedSettingsStore::GetSetting(const std::string& application,
                                              const std::string& section, const std::string& key,
                                              const std::string& defaultValue) {
    const std::string where = address(application, section, key);
    const auto found = values_.find(where);
    const std::string value = found == values_.end() ? defaultValue : found->second;
    transcript_.Line("store read " + where + " default=" + QuoteText(defaultValue) + " -> " +
                     QuoteText(value));
    return value;
}

void ScriptedSettingsStore::SaveSetting(const std::string& application, const std::string& section,
                                        const std::string& key, const std::string& value) {
    const std::string where = address(application, section, key);
    values_[where] = value;
    transcript_.Line("store write " + where + "=" + QuoteText(value));
}

} // namespace sw::scripted
