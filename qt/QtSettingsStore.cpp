#include "qt/QtSettingsStore.h"

#include "qt/QtText.h"

#include <QSettings>
#include <cstdio>

namespace sw::qt {
namespace {

QString address(const std::string& section, const std::string& key) {
    return ToQ(section) + "/" + ToQ(key);
}

} // namespace

std::string QtSettingsStore::GetSetting(const std::string& application, const std::string& section,
                                        const std::string& key, const std::string& defaultValue) {
    const QSettings store(QSettings::IniFormat, QSettings::UserScope, ToQ(application));
    const QVariant value = store.value(address(section, key));
    return value.isValid() ? FromQ(value.toString()) : defaultValue;
}

void QtSettingsStore::SaveSetting(const std::string& application, const std::string& section,
                                  const std::string& key, const std::string& value) {
    QSettings store(QSettings::IniFormat, QSettings::UserScope, ToQ(application));
    store.setValue(address(section, key), ToQ(value));
    store.sync();
    // The settings are written on the way out, when no window is left to
    // tell; the terminal, or the session's log, is the one place that can.
    if (store.status() != QSettings::NoError) {
        std::fprintf(stderr, "slicewright: the settings could not be saved to %s\n",
                     qPrintable(store.fileName()));
    }
}

} // namespace sw::qt
