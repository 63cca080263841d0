// An exception thrown by any port of the window layer, in the middle of the
// handler that called it, stops at the event boundary: the user is told,
// and the program goes on taking events. Each port is made to throw by the
// scripted ports, which the logic cannot tell from the window's.
#include "tests/qt/GuardedTestMain.h"
#include "tools/scenario/ScenarioRunner.h"

#include <QDir>
#include <QTemporaryDir>
#include <sstream>

using namespace sw;

namespace {

using Lines = QStringList;

// A picture open with one line across it.
const Lines kLineDrawn = {"picture \"p.bmp\" 40 30",         "start",
                          "answer open \"p.bmp\"",           "event mnuOPen_Click",
                          "event picActual_MouseMove 10 12", "event picActual_Click"};

Lines withLineDrawn(const Lines& more) {
    return kLineDrawn + more;
}

qt::GuardedApplication& guard() {
    return *static_cast<qt::GuardedApplication*>(QCoreApplication::instance());
}

} // namespace

class PortFailureTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        guard().SetReport([this](const QString& text) { reports_.append(text); });
        reports_.clear();
    }

    void aFailingPortStopsAtTheBoundary_data() {
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<Lines>("script");
        const Lines exportRun = withLineDrawn({"answer save \"" + folder_.path() + "/Tile.bmp\""});
        QTest::newRow("MessageBoxes") << "box title=\"Clear Verification\""
                                      << withLineDrawn({"answer box Yes", "event mnuClear_Click"});
        QTest::newRow("FileDialog") << "dialog open" << kLineDrawn.mid(0, 4);
        QTest::newRow("PictureLoader") << "load " << kLineDrawn.mid(0, 4);
        QTest::newRow("PictureBox") << "stroke" << kLineDrawn;
        QTest::newRow("Controls") << "set mnuRed" << Lines{"start", "event mnuRed_Click"};
        QTest::newRow("FormWindow") << "form pointer" << exportRun + Lines{"event mnuCreate_Click"};
        QTest::newRow("SettingsStore") << "store write" << Lines{"start", "event mnuExit_Click"};
        QTest::newRow("FileSystem") << "exists " << exportRun + Lines{"event mnuCreate_Click"};
        QTest::newRow("ExportDialogs")
            << "finish show" << exportRun + Lines{"answer finish keep", "event mnuCreate_Click"};
        QTest::newRow("Clipboard") << "clipboard"
                                   << exportRun + Lines{"answer finish S", "answer html copy close",
                                                        "event mnuCreate_Click"};
        QTest::newRow("QualityDialog")
            << "jpgcomp" << Lines{"start", "answer jpgcomp \"50\" OK", "event mnuJPGComp_Click"};
        QTest::newRow("AboutWindow") << "about show" << Lines{"start", "event mnuProgram_Click"};
        QTest::newRow("Shell") << "shell open" << Lines{"start", "event mnuHelp_Click"};
        QTest::newRow("Registry") << "registry"
                                  << Lines{"start", "event mnuProgram_Click",
                                           "event frmAbout.cmdSysInfo_Click"};
        QTest::newRow("SystemInfoProgram")
            << "sysinfo"
            << Lines{"start", "event mnuProgram_Click", "event frmAbout.cmdSysInfo_Click"};
        QTest::newRow("UserFolders") << "user pictures" << Lines{"start"};
    }

    // The last line of the script raises the event whose handler reaches the port.
    void aFailingPortStopsAtTheBoundary() {
        QFETCH(QString, prefix);
        QFETCH(Lines, script);
        QDir(folder_.path()).removeRecursively(); // no sections of an earlier row
        QDir().mkpath(folder_.path());
        std::ostringstream transcript;
        scripted::ScenarioRunner runner(transcript, nullptr);
        for (const QString& line : script.mid(0, script.size() - 1)) {
            runner.RunLine(line.toStdString());
        }
        runner.Ports().transcript.FailAt(prefix.toStdString());
        const std::string event = script.last().toStdString();
        QMetaObject::invokeMethod(
            this, [&runner, &event] { runner.RunLine(event); }, Qt::QueuedConnection);
        QCoreApplication::processEvents();

        QCOMPARE(reports_.size(), 1);
        QVERIFY2(reports_[0].startsWith("An action could not be finished: the port failed at \"" +
                                        prefix),
                 qPrintable(reports_[0] + "\n" + QString::fromStdString(transcript.str())));
        // The program takes the next event as ever.
        runner.RunLine("event mnuBlue_Click");
        QCOMPARE(runner.CurrentSession().state.lineColor, 0x00FF0000u);
    }

private:
    QTemporaryDir folder_;
    QStringList reports_;
};

SW_GUARDED_TEST_MAIN(PortFailureTest)
#include "PortFailureTest.moc"
