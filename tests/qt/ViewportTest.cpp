// The viewport of the main window on a real (offscreen or Xvfb) platform:
// the logic's scroll bars and moves carried out by Qt widgets.
#include "qt/MainWindow.h"
#include "qt/QtScrollBar.h"
#include "tests/qt/OpenPicture.h"
#include "tests/qt/PlainPictureLoader.h"
#include "tests/qt/SettingsFolder.h"
#include "window/PictureOpening.h"
#include "window/StoredLayout.h"

#include <QApplication>
#include <QMenuBar>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>

using namespace sw;

namespace {

void moveOver(QWidget& widget, QPoint at) {
    QMouseEvent move(QEvent::MouseMove, at, widget.mapToGlobal(QPointF(at)), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &move);
}

} // namespace

class ViewportTest : public QObject {
    Q_OBJECT

private slots:
    void init() { settings_.Use(); }

    // 6390 x 6060 twips outside: a client area of 418 x 358 pixels under the
    // menu bar, the picture at 8,48 and no bar.
    void aSmallPictureGetsAWindowOfItsSizeAndNoBars() {
        test::PlainPictureLoader loader(400, 300);
        qt::MainWindow window(loader, "/opt/slicewright");
        test::ShowWithPicture(window);
        QCOMPARE(window.ClientArea().size(), QSize(418, 358));
        QCOMPARE(window.ClientArea().y(), window.menuBar()->height());
        QCOMPARE(window.Picture().geometry(), QRect(8, 48, 400, 300));
        QVERIFY(!window.VScrollBar().isVisible());
        QVERIFY(!window.HScrollBar().isVisible());
    }

    // Taller than any test screen: the window is cut down to the screen and
    // both bars show along its edges, with the corner piece between them.
    void aLargePictureShowsBothBarsAtTheClientAreasEdges() {
        test::PlainPictureLoader loader(1200, 1000);
        qt::MainWindow window(loader, "/opt/slicewright");
        test::ShowWithPicture(window);
        const int screenHeight = window.screen()->geometry().height();
        QVERIFY(window.height() < screenHeight);
        QScrollBar& vbar = window.VScrollBar();
        QScrollBar& hbar = window.HScrollBar();
        QVERIFY(vbar.isVisible());
        QVERIFY(hbar.isVisible());
        const QWidget& area = window.ClientArea();
        QCOMPARE(vbar.y(), 0);
        QCOMPARE(vbar.geometry().bottom() + 1, hbar.y());
        QCOMPARE(hbar.geometry().bottom() + 1, area.height());
        QCOMPARE(hbar.x(), 0);
        QVERIFY(vbar.x() + vbar.width() >= area.width());
        QCOMPARE(vbar.singleStep(), 150);
        QCOMPARE(vbar.maximum(), 15000 + 720 + 795 - (area.height() * 15 + 690));
    }

    void movingABarMovesThePictureAndItsLabelOnly() {
        test::PlainPictureLoader loader(1200, 1000);
        qt::MainWindow window(loader, "/opt/slicewright");
        test::ShowWithPicture(window);
        QWidget& picture = window.Picture();
        const QPoint vbarAt = window.VScrollBar().pos();
        window.VScrollBar().triggerAction(QAbstractSlider::SliderSingleStepAdd);
        QCOMPARE(picture.pos(), QPoint(8, 38));
        window.HScrollBar().setValue(150);
        QCOMPARE(picture.pos(), QPoint(-2, 38));
        QCOMPARE(window.VScrollBar().pos(), vbarAt);
        // A step that is no whole pixel is kept, not rounded away.
        for (int value : {157, 164, 171}) {
            window.VScrollBar().setValue(value);
        }
        window.VScrollBar().setValue(0);
        QCOMPARE(picture.pos(), QPoint(-2, 48));
        QCOMPARE(window.CurrentSession().state.lastScrollY, 0);
    }

    void aResizeBringsTheViewBackToTheTopLeftCorner() {
        test::PlainPictureLoader loader(1200, 1000);
        qt::MainWindow window(loader, "/opt/slicewright");
        test::ShowWithPicture(window);
        window.VScrollBar().setValue(600);
        window.HScrollBar().setValue(150);
        window.resize(window.width() - 10, window.height() - 10);
        QCOMPARE(window.VScrollBar().value(), 0);
        QCOMPARE(window.HScrollBar().value(), 0);
        QCOMPARE(window.Picture().pos(), QPoint(8, 48));
    }

    void aClickAfterScrollingRecordsThePicturesOwnPixel() {
        test::PlainPictureLoader loader(1200, 1000);
        qt::MainWindow window(loader, "/opt/slicewright");
        test::ShowWithPicture(window);
        window.VScrollBar().setValue(900);
        window.HScrollBar().setValue(150);
        qt::PictureCanvas& canvas = window.Picture();
        moveOver(canvas, QPoint(57, 103));
        QTest::mouseClick(&canvas, Qt::LeftButton, Qt::NoModifier, QPoint(57, 103));
        const SessionState& state = window.CurrentSession().state;
        QCOMPARE(state.mouseX, static_cast<i16>(57));
        QCOMPARE(state.hLineCount, static_cast<i16>(1));
        QCOMPARE(state.hLines(1), static_cast<i16>(103));
        QCOMPARE(canvas.Image().pixelColor(500, 103), QColor(0, 0, 0));
    }

    // A picture wider than the screen gets a window no wider than the
    // screen's work area, whole on the screen with both bars in reach.
    void aPictureWiderThanTheScreenGetsAWindowOnTheScreen() {
        test::PlainPictureLoader loader(3000, 2000);
        qt::MainWindow window(loader, "/opt/slicewright");
        // Placed before it is shown, as the program places it, so that a
        // window manager's own placement does not arrive late.
        window.move(300, 200);
        test::ShowWithPicture(window);
        // A window manager carries out the size and place a little later.
        const QRect work = window.screen()->availableGeometry();
        QTRY_VERIFY_WITH_TIMEOUT(work.contains(window.frameGeometry()), 5000);
        for (QScrollBar* bar : {&window.HScrollBar(), &window.VScrollBar()}) {
            QVERIFY(bar->isVisible());
            // A bar may reach one pixel under the frame, as in every window.
            QVERIFY(window.ClientArea().rect().adjusted(0, 0, 1, 1).contains(bar->geometry()));
            QVERIFY(bar->maximum() > 0);
        }
    }

    // The form's size goes out and comes back in twips, frame and menu bar
    // included, whatever the menu bar's real height.
    void theFormsSizeReadsBackAsWritten() {
        test::PlainPictureLoader loader(400, 300);
        qt::MainWindow window(loader, "/opt/slicewright");
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        FormWindow& form = window.CurrentSession().ports.form;
        // The stored layout's least width, or what the menu bar needs.
        QCOMPARE(form.Bounds().Width,
                 std::max(3525.0f, static_cast<float>(window.minimumWidth() * 15 + 120)));
        QCOMPARE(form.Bounds().Height, 6015.0f);
        form.SetWidth(7005);
        form.SetHeight(4560);
        QCOMPARE(form.Bounds().Width, 7005.0f);
        QCOMPARE(form.Bounds().Height, 4560.0f);
        const QSize screen = window.screen()->geometry().size();
        QCOMPARE(form.Screen().Height, static_cast<float>(screen.height() * 15));
    }

    // A picture that fits the screen takes a maximised window back to
    // normal at the picture's size; a window manager's late restore must
    // not undo that size.
    void openingInAMaximisedWindowKeepsThePicturesSize() {
        test::PlainPictureLoader loader(400, 300);
        qt::MainWindow window(loader, "/opt/slicewright");
        test::ShowWithPicture(window);
        // Maximised by the user, which the window manager carries out later.
        window.showMaximized();
        QTest::qWait(500);
        mnuLastCut_Click(window.CurrentSession());
        QTest::qWait(500);
        const TwipRect bounds = window.CurrentSession().ports.form.Bounds();
        QVERIFY(!window.isMaximized());
        QCOMPARE(bounds.Width, 120.0f + 6000 + 240 + 255);
        QCOMPARE(bounds.Height, 720.0f + 4500 + 240 + 300 + 255);
        QCOMPARE(window.CurrentSession().state.picOriginY, 720);
    }

    // Minimising keeps the size in Qt, so no resize event comes; the view
    // must still go back to the picture's corner.
    void minimisingBringsBothBarsToZero() {
        test::PlainPictureLoader loader(1200, 1000);
        qt::MainWindow window(loader, "/opt/slicewright");
        test::ShowWithPicture(window);
        window.VScrollBar().setValue(450);
        window.setWindowState(Qt::WindowMinimized);
        QApplication::processEvents();
        QCOMPARE(window.VScrollBar().value(), 0);
        QCOMPARE(window.Picture().pos(), QPoint(8, 48));
    }

    // Qt would pull Min down to a Max below it and move the value there,
    // sliding the picture the wrong way; the bar must stay at Min instead.
    void aBarWithMaxBelowMinStaysAtMin() {
        QScrollBar widget(Qt::Vertical);
        qt::QtScrollBar bar(&widget, StoredLayout::vscroll);
        bar.SetMin(0);
        bar.SetMax(-45);
        bar.SetValue(-30);
        QCOMPARE(bar.Value(), 0);
        QCOMPARE(bar.Min(), 0);
        QCOMPARE(bar.Max(), -45);
        bar.SetMax(300);
        bar.SetValue(150);
        QCOMPARE(bar.Value(), 150);
        bar.SetMax(100);
        QCOMPARE(bar.Value(), 100);
    }

private:
    test::SettingsFolder settings_;
};

QTEST_MAIN(ViewportTest)
#include "ViewportTest.moc"
