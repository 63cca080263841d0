#pragma once

namespace sw {

struct Session;

inline constexpr const char* kSettingsApplication = "Corvane-Studio";
inline constexpr const char* kSettingsSection = "Slicewright";
inline constexpr int kDefaultJpgQuality = 90;

// Reads the six remembered settings into the session, defaults for those missing.
void LoadSettings(Session& session);
// Writes all six, changed or not.
void SaveSettings(Session& session);

} // namespace sw
