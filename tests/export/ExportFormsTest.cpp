// The Qt forms of the two dialogs that close an export, driven by real key
// and mouse events over their logic objects, and the export's progress.
#include "dialogs/frmFinish.h"
#include "dialogs/frmHTML.h"
#include "qt/FinishForm.h"
#include "qt/HtmlForm.h"
#include "qt/QtExportDialogs.h"
#include "tests/qt/FindWidgets.h"
#include "tools/scenario/ScriptedClipboard.h"

#include <QPlainTextEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <sstream>

using namespace sw;

class ExportFormsTest : public QObject {
    Q_OBJECT

private slots:
    void finishShowsTheStoredChoiceAndTakesAClickAtOnce() {
        frmFinish logic;
        logic.OutputType = "S";
        qt::FinishForm form(logic, nullptr);
        form.show();
        QVERIFY(form.optScreen()->isChecked());
        QTest::mouseClick(form.optFile(), Qt::LeftButton);
        QCOMPARE(QString::fromStdString(logic.OutputType), QString("F"));
        QTest::keyClick(&form, Qt::Key_Return);
        QCOMPARE(form.result(), int(QDialog::Accepted));
        QVERIFY(!logic.Loaded());
        QCOMPARE(QString::fromStdString(logic.OutputType), QString("F"));
    }

    void finishKeepsAnUnknownValueWhenClosedByItsBox() {
        frmFinish logic;
        logic.OutputType = "X";
        qt::FinishForm form(logic, nullptr);
        form.show();
        QVERIFY(form.optNo()->isChecked());
        form.close();
        QVERIFY(!logic.Loaded());
        QCOMPARE(QString::fromStdString(logic.OutputType), QString("X"));
    }

    void htmlEscapeCopiesTheTextAndStaysOpen() {
        std::ostringstream log;
        scripted::Transcript transcript(log);
        scripted::ScriptedClipboard clipboard(transcript);
        frmHTML logic(clipboard);
        logic.rtxtHTML.Text = "<TABLE>\r\n</TABLE>\r\n";
        qt::HtmlForm form(logic, nullptr);
        form.show();
        QTest::keyClick(form.rtxtHTML(), Qt::Key_Escape);
        QCOMPARE(QString::fromStdString(clipboard.Text()), QString("<TABLE>\r\n</TABLE>\r\n"));
        QVERIFY(form.isVisible());
        // Edited text is copied as it stands, with the table's line ends.
        QTest::keyClick(form.rtxtHTML(), Qt::Key_End, Qt::ControlModifier);
        QTest::keyClicks(form.rtxtHTML(), "x");
        QTest::mouseClick(test::FindButton(form, "Copy to Clipboard"), Qt::LeftButton);
        QCOMPARE(QString::fromStdString(clipboard.Text()), QString("<TABLE>\r\n</TABLE>\r\nx"));
        QTest::mouseClick(test::FindButton(form, "Close"), Qt::LeftButton);
        QVERIFY(!form.isVisible());
        QVERIFY(!logic.Loaded());
    }

    // A short export shows no dialog; a long one shows how far it has come
    // and stops at Cancel. The wait stands for a long export, it times nothing.
    void progressShowsForALongExportOnlyAndCancelStopsIt() {
        QWidget owner;
        owner.show();
        qt::QtExportDialogs dialogs(&owner);
        dialogs.BeginProgress(3);
        for (int done = 1; done <= 3; ++done) {
            QVERIFY(dialogs.AdvanceProgress(done, 3, "out/Short" + std::to_string(done) + ".jpg"));
        }
        QVERIFY(!shownProgress(owner));
        dialogs.EndProgress();

        dialogs.BeginProgress(50);
        QVERIFY(dialogs.AdvanceProgress(1, 50, "out/Tile1.jpg"));
        QTest::qWait(700);
        QVERIFY(dialogs.AdvanceProgress(2, 50, "out/Tile2.jpg"));
        QProgressDialog* progress = shownProgress(owner);
        QVERIFY(progress != nullptr);
        QVERIFY(progress->labelText().contains("Section 2 of 50"));
        QVERIFY(progress->labelText().contains("out/Tile2.jpg"));
        QCOMPARE(progress->value(), 2);
        QTest::mouseClick(test::FindButton(*progress, "Cancel"), Qt::LeftButton);
        QVERIFY(!dialogs.AdvanceProgress(3, 50, "out/Tile3.jpg"));
        dialogs.EndProgress();
        QVERIFY(owner.findChild<QProgressDialog*>() == nullptr);
    }

private:
    static QProgressDialog* shownProgress(QWidget& owner) {
        auto* progress = owner.findChild<QProgressDialog*>();
        return progress != nullptr && progress->isVisible() ? progress : nullptr;
    }
};

QTEST_MAIN(ExportFormsTest)
#include "ExportFormsTest.moc"
