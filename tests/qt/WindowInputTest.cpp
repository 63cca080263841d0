// The main window under the keyboard, the wheel and the pointer: shortcuts
// and access keys, wheel scrolling, radio groups, and what the title shows
// after a new picture.
#include "qt/MainWindow.h"
#include "tests/qt/FindWidgets.h"
#include "tests/qt/OpenPicture.h"
#include "tests/qt/PlainPictureLoader.h"
#include "tests/qt/SettingsFolder.h"
#include "window/Toolbar.h"

#include <QActionGroup>
#include <QApplication>
#include <QMenuBar>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

using namespace sw;

namespace {

void turnWheel(QWidget& over, int delta, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    // Sent straight to the client area: an event sent by hand is not passed on
    // from the picture to its parent as one from the window system is.
    const QPointF at(5, 5);
    QWheelEvent wheel(at, over.mapToGlobal(at), QPoint(), QPoint(0, delta), Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&over, &wheel);
}

} // namespace

class WindowInputTest : public QObject {
    Q_OBJECT

private slots:
    void init() { settings_.Use(); }

    void shortcutsAreTheStandardKeysShownInTheMenus_data() {
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QKeySequence>("keys");
        QTest::newRow("Open") << "Open" << QKeySequence("Ctrl+O");
        QTest::newRow("Save") << "Save Section Lines" << QKeySequence("Ctrl+S");
        QTest::newRow("Load") << "Load Section Lines" << QKeySequence("Ctrl+L");
        QTest::newRow("Create") << "Create Sections" << QKeySequence("Ctrl+E");
        QTest::newRow("Undo") << "Undo Last" << QKeySequence("Ctrl+Z");
        QTest::newRow("Exit") << "Exit" << QKeySequence("Ctrl+Q");
        QTest::newRow("Help") << "Help" << QKeySequence("F1");
    }

    // A key triggers the very action of the menu item, and with it the
    // item's handler, only while the item is enabled.
    void shortcutsAreTheStandardKeysShownInTheMenus() {
        QFETCH(QString, caption);
        QFETCH(QKeySequence, keys);
        test::PlainPictureLoader loader(400, 300);
        qt::MainWindow window(loader, "/opt/slicewright");
        // With a picture open the Edit menu, and Undo with it, is reachable.
        test::ShowWithPicture(window);
        QApplication::setActiveWindow(&window);
        QAction* item = test::FindAction(window, caption);
        QVERIFY(item != nullptr);
        QCOMPARE(item->shortcut(), keys);
        // The handler itself would open dialogs or a browser: the test
        // counts the triggers that would run it.
        QObject::disconnect(item, &QAction::triggered, nullptr, nullptr);
        QSignalSpy triggered(item, &QAction::triggered);
        item->setEnabled(false);
        QTest::keySequence(&window, keys);
        QCOMPARE(triggered.count(), 0);
        item->setEnabled(true);
        QTest::keySequence(&window, keys);
        QCOMPARE(triggered.count(), 1);
    }

    void theFiveMenusHaveTheirFirstLetterAsAltKey() {
        test::PlainPictureLoader loader(400, 300);
        qt::MainWindow window(loader, "/opt/slicewright");
        QStringList titles;
        for (QAction* menu : window.menuBar()->actions()) {
            titles << menu->text();
        }
        QCOMPARE(titles, QStringList({"&File", "&Edit", "&Line Color", "&About", "&Help"}));
    }

    void theWheelMovesTheBarsSoThatTheirChangeRuns() {
        test::PlainPictureLoader loader(3000, 2000);
        qt::MainWindow window(loader, "/opt/slicewright");
        test::ShowWithPicture(window);
        QScrollBar& vbar = window.VScrollBar();
        QScrollBar& hbar = window.HScrollBar();
        QVERIFY(vbar.isVisible() && hbar.isVisible());
        const int step = QApplication::wheelScrollLines() * vbar.singleStep();
        // Down one notch over the picture: the bar moves, and its Change
        // moves the picture up by as many twips.
        const int pictureTop = window.Picture().y();
        turnWheel(window.ClientArea(), -120);
        QCOMPARE(vbar.value(), step);
        QCOMPARE(window.Picture().y(), pictureTop - step / 15);
        QCOMPARE(window.CurrentSession().state.lastScrollY, static_cast<i32>(step));
        turnWheel(window.ClientArea(), 120);
        QCOMPARE(vbar.value(), 0);
        // Shift turns the horizontal bar; half notches add up.
        const int pictureLeft = window.Picture().x();
        turnWheel(window.ClientArea(), -60, Qt::ShiftModifier);
        QCOMPARE(hbar.value(), 0);
        turnWheel(window.ClientArea(), -60, Qt::ShiftModifier);
        QCOMPARE(hbar.value(), step);
        QCOMPARE(window.Picture().x(), pictureLeft - step / 15);
    }

    void theWheelDoesNothingWhereTheBarIsHidden() {
        test::PlainPictureLoader loader(400, 300);
        qt::MainWindow window(loader, "/opt/slicewright");
        test::ShowWithPicture(window);
        QVERIFY(!window.VScrollBar().isVisible());
        const QPoint place = window.Picture().pos();
        turnWheel(window.ClientArea(), -360);
        turnWheel(window.ClientArea(), -360, Qt::ShiftModifier);
        QCOMPARE(window.VScrollBar().value(), 0);
        QCOMPARE(window.HScrollBar().value(), 0);
        QCOMPARE(window.Picture().pos(), place);
    }

    // The draw modes and the colours are radio groups, still set by the
    // logic: the toolbar's draw button moves the mark in the menu.
    void exclusiveChoicesAreRadioGroupsDrivenByTheLogic() {
        test::PlainPictureLoader loader(400, 300);
        qt::MainWindow window(loader, "/opt/slicewright");
        QAction* horizontal = test::FindAction(window, "Horizontal Line");
        QAction* vertical = test::FindAction(window, "Vertical Line");
        QVERIFY(horizontal->actionGroup() != nullptr);
        QCOMPARE(horizontal->actionGroup(), vertical->actionGroup());
        QVERIFY(horizontal->actionGroup()->isExclusive());
        QActionGroup* colours = test::FindAction(window, "Black")->actionGroup();
        QVERIFY(colours != nullptr && colours != horizontal->actionGroup());
        QCOMPARE(colours->actions().size(), 6);

        tlbrMain_ButtonClick(window.CurrentSession(), 5);
        QVERIFY(vertical->isChecked() && !horizontal->isChecked());
        test::FindAction(window, "Blue")->trigger();
        QCOMPARE(window.CurrentSession().state.lineColor, 0x00FF0000u);
        QCOMPARE(colours->checkedAction()->text(), QString("Blue"));
        // Choosing the checked colour again keeps it.
        test::FindAction(window, "Blue")->trigger();
        QCOMPARE(colours->checkedAction()->text(), QString("Blue"));
    }

    // After a new picture the title shows no place from the one before.
    void aNewPictureLeavesNoPointerPlaceOfTheLastOne() {
        test::PlainPictureLoader loader(1600, 700);
        qt::MainWindow window(loader, "/opt/slicewright");
        test::ShowWithPicture(window);
        QMouseEvent move(QEvent::MouseMove, QPointF(1500, 600), QPointF(1500, 600), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&window.Picture(), &move);
        QCOMPARE(window.windowTitle(), QString("Slicewright - Current Position: 1500,600"));
        QCursor::setPos(window.mapToGlobal(QPoint(-50, -50)));
        loader.width = 640;
        loader.height = 480;
        test::OpenPicture(window);
        QApplication::processEvents();
        QCOMPARE(window.windowTitle(), QString("Slicewright"));
    }

    void theWindowCarriesTheProjectsIcon() {
        test::PlainPictureLoader loader(400, 300);
        qt::MainWindow window(loader, "/opt/slicewright");
        QVERIFY(!window.windowIcon().isNull());
    }

private:
    test::SettingsFolder settings_;
};

QTEST_MAIN(WindowInputTest)
#include "WindowInputTest.moc"
