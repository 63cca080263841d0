#pragma once

#include <QTemporaryDir>
#include <QTest>

namespace sw::test {

// A configuration folder of the test program's own ($XDG_CONFIG_HOME), so
// that no test reads or writes the user's settings.
class SettingsFolder {
public:
    // Points the settings here; called from the test's init().
    void Use() {
        QVERIFY2(folder_.isValid(), qPrintable(folder_.errorString()));
        qputenv("XDG_CONFIG_HOME", folder_.path().toUtf8());
    }

    QString FilePath(const QString& name) const { return folder_.filePath(name); }

private:
    QTemporaryDir folder_;
};

} // namespace sw::test
