// Boxes and dialogs as the user sees them: whole titles and texts, the save
// dialog's ending and kept type, and the box when no browser can start.
#include "qt/QtFileDialog.h"
#include "qt/QtMessageBoxes.h"
#include "qt/QtShell.h"

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <functional>

using namespace sw;

namespace {

// Runs `act` on the first modal dialog that shows while `show` runs.
void whileShown(const std::function<void()>& show, const std::function<void(QDialog&)>& act) {
    bool done = false;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!done && dialog != nullptr && dialog->isVisible()) {
            done = true;
            act(*dialog);
        }
    });
    poll.start(20);
    show();
    QVERIFY(done);
}

int captionWidth(const QWidget& dialog) {
    return dialog.fontMetrics().horizontalAdvance(dialog.windowTitle());
}

} // namespace

class BoxesAndDialogsTest : public QObject {
    Q_OBJECT

private slots:
    void aMessageBoxIsWideEnoughForItsTitleAndEndsWithItsText() {
        QWidget owner;
        qt::QtMessageBoxes boxes(&owner);
        QString text;
        int width = 0;
        int needed = 0;
        whileShown(
            [&] {
                boxes.Show({"Picture Facts of the picture now open",
                            "Width: 640\r\nHeight: 480\r\n", BoxIcon::Information, BoxButtons::OK,
                            BoxResult::OK});
            },
            [&](QDialog& box) {
                text = static_cast<QMessageBox&>(box).text();
                width = box.width();
                needed = captionWidth(box) + 100;
                box.accept();
            });
        QCOMPARE(text, QString("Width: 640\nHeight: 480"));
        QVERIFY2(width >= needed, qPrintable(QString("%1 < %2").arg(width).arg(needed)));
    }

    void anInputBoxIsWideEnoughForItsTitle() {
        QWidget owner;
        qt::QtMessageBoxes boxes(&owner);
        int width = 0;
        int needed = 0;
        const std::string answer = [&] {
            std::string given;
            whileShown([&] { given = boxes.InputBox("How many?", "Divide Horizontally", "2"); },
                       [&](QDialog& box) {
                           width = box.width();
                           needed = captionWidth(box) + 100;
                           static_cast<QInputDialog&>(box).setTextValue("3");
                           box.accept();
                       });
            return given;
        }();
        QCOMPARE(answer, std::string("3"));
        QVERIFY2(width >= needed, qPrintable(QString("%1 < %2").arg(width).arg(needed)));
    }

    // "tile" typed with JPEG chosen is saved as tile.jpg, and JPEG is still
    // the chosen type when the dialog comes back.
    void theSaveDialogAddsTheChosenEndingAndKeepsTheType() {
        QTemporaryDir folder;
        QWidget owner;
        qt::QtFileDialog dialog(&owner);
        dialog.InitDir = folder.path().toStdString();
        dialog.Filter = "Bitmap Files |*.bmp|JPEG Files |*.jpg";
        whileShown([&] { dialog.ShowSave(); },
                   [](QDialog& shown) {
                       auto* types = shown.findChild<QComboBox*>("fileTypeCombo");
                       QVERIFY(types != nullptr);
                       // As a user's choice in the list arrives.
                       types->setCurrentIndex(1);
                       emit types->activated(1);
                       shown.findChild<QLineEdit*>("fileNameEdit")->setText("tile");
                       shown.accept();
                   });
        QCOMPARE(QString::fromStdString(dialog.FileName), folder.filePath("tile.jpg"));
        QString typeAgain;
        whileShown([&] { dialog.ShowSave(); },
                   [&](QDialog& shown) {
                       typeAgain = static_cast<QFileDialog&>(shown).selectedNameFilter();
                       shown.reject();
                   });
        QCOMPARE(typeAgain, QString("JPEG Files (*.jpg)"));
        QVERIFY(dialog.FileName.empty());
    }

    void whenNoBrowserStartsTheUserIsToldWhichPage() {
        QWidget owner;
        qt::QtShell shell(&owner);
        QUrl asked;
        shell.open = [&](const QUrl& url) {
            asked = url;
            return false;
        };
        QString text;
        whileShown([&] { shell.OpenDocument("/opt/slicewright/Help/MainHelp.htm"); },
                   [&](QDialog& box) {
                       text = static_cast<QMessageBox&>(box).text();
                       box.accept();
                   });
        QCOMPARE(asked, QUrl::fromLocalFile("/opt/slicewright/Help/MainHelp.htm"));
        QVERIFY2(text.contains("/opt/slicewright/Help/MainHelp.htm"), qPrintable(text));
    }
};

QTEST_MAIN(BoxesAndDialogsTest)
#include "BoxesAndDialogsTest.moc"
