#include "session/Settings.h"

#include "common/Numbers.h"
#include "session/Session.h"

#include <string>

namespace sw {
namespace {

std::string read(Session& session, const char* key, const std::string& defaultValue) {
    return session.ports.settings.GetSetting(kSettingsApplication, kSettingsSection, key,
                                             defaultValue);
}

void write(Session& session, const char* key, const std::string& value) {
    session.ports.settings.SaveSetting(kSettingsApplication, kSettingsSection, key, value);
}

// A stored quality that is no number or does not fit 32 bits must not stop
// the start: the default stands in for it until the user sets a new one.
i32 qualityFromText(const std::string& text) {
    const Converted<i32> quality = TextToLong(text);
    return quality.ok() ? quality.value : kDefaultJpgQuality;
}

} // namespace

void LoadSettings(Session& session) {
    SessionState& s = session.state;
    const std::string& appPath = session.ports.app.Path;
    s.LastOpenDir = read(session, "LastOpenDir", appPath);
    s.LastSaveDir = read(session, "LastSaveDir", appPath);
    s.LastPicture = read(session, "LastPicture", " ");
    s.SaveFormat = read(session, "SaveFormat", "BMP");
    s.HTMLOut = read(session, "HTMLOut", "N");
    s.JPGComp = qualityFromText(read(session, "JPGComp", std::to_string(kDefaultJpgQuality)));
}

void SaveSettings(Session& session) {
    const SessionState& s = session.state;
    write(session, "LastOpenDir", s.LastOpenDir);
    write(session, "LastSaveDir", s.LastSaveDir);
    write(session, "LastPicture", s.LastPicture);
    write(session, "SaveFormat", s.SaveFormat);
    write(session, "HTMLOut", s.HTMLOut);
    write(session, "JPGComp", std::to_string(s.JPGComp));
}

} // namespace sw
