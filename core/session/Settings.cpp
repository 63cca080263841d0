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

// The program's folder is no place for the user's pictures: a first run, and a
// stored folder that has since gone, start in the user's Pictures folder.
std::string readFolder(Session& session, const char* key) {
    UserFolders& folders = session.ports.userFolders;
    const std::string pictures = folders.PicturesFolder();
    const std::string stored = read(session, key, pictures);
    return folders.FolderExists(stored) ? stored : pictures;
}

} // namespace

void LoadSettings(Session& session) {
    SessionState& s = session.state;
    s.LastOpenDir = readFolder(session, "LastOpenDir");
    s.LastSaveDir = readFolder(session, "LastSaveDir");
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
