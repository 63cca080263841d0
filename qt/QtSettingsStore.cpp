#include "qt/QtSettingsStore.h"

#include "qt/QtText.h"

#include <QSettings>
#include <cstdio>

namespace sw::qt {
namespace {

QString address(const std::string& section, const std::string& key) {
    return ToQ(section) + "/" + ToQ(key);
}

// Why the store's file cannot be used, if it cannot.
const char* fileProblem(const QSettings& store) {
    switch (store.status()) {
    case QSettings::AccessError:
        return "cannot be read";
    case QSettings::FormatError:
        return "is not a valid INI file";
    default:
        return nullptr;
    }
}

} // namespace

const char* QtSettingsStore::problemOf(const QSettings& store) {
    // Qt reads a file once for all its settings objects and tells only the
    // first of them what was wrong with it: the store remembers.
    const std::string file = store.fileName().toStdString();
    if (const char* problem = fileProblem(store)) {
        unusable_[file] = problem;
    }
    const auto known = unusable_.find(file);
    return known == unusable_.end() ? nullptr : known->second;
}

void QtSettingsStore::tellOnce(const QSettings& store, const char* problem) {
    // The settings are read and written on the way in and out, when no
    // window is there to tell; the terminal, or the session's log, is the
    // one place that can.
    if (told_.insert(store.fileName().toStdString() + problem).second) {
        std::fprintf(stderr, "slicewright: the settings file %s %s; %s\n",
                     qPrintable(store.fileName()), problem,
                     "it is left as it is, and the settings of this session are not saved in it");
    }
}

std::string QtSettingsStore::GetSetting(const std::string& application, const std::string& section,
                                        const std::string& key, const std::string& defaultValue) {
    const QSettings store(QSettings::IniFormat, QSettings::UserScope, ToQ(application));
    if (const char* problem = problemOf(store)) {
        tellOnce(store, problem);
        return defaultValue;
    }
    const QVariant value = store.value(address(section, key));
    return value.isValid() ? FromQ(value.toString()) : defaultValue;
}

void QtSettingsStore::SaveSetting(const std::string& application, const std::string& section,
                                  const std::string& key, const std::string& value) {
    QSettings store(QSettings::IniFormat, QSettings::UserScope, ToQ(application));
    // Qt would write a file it could not read over with what it understood
    // of it: the user's file is worth more than this session's settings.
    if (const char* problem = problemOf(store)) {
        tellOnce(store, problem);
        return;
    }
    store.setValue(address(section, key), ToQ(value));
    store.sync();
    if (store.status() != QSettings::NoError) {
        tellOnce(store, "could not be written");
    }
}

} // namespace sw::qt
