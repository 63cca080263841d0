// The event boundary of the program: exceptions that escape a handler, and
// the end of the program when its last window has gone.
#include "qt/AboutForm.h"
#include "qt/GuardedApplication.h"
#include "qt/MainWindow.h"
#include "qt/OperationFailed.h"
#include "qt/QtSettingsStore.h"
#include "tests/qt/FindWidgets.h"
#include "tests/qt/GuardedTestMain.h"
#include "tests/qt/OpenPicture.h"
#include "tests/qt/PlainPictureLoader.h"
#include "tests/qt/SettingsFolder.h"
#include "window/PointerFeedback.h"

#include <QAction>
#include <QMessageBox>
#include <QSettings>
#include <QTimer>
#include <functional>
#include <new>
#include <stdexcept>

using namespace sw;

namespace {

qt::GuardedApplication& guard() {
    return *static_cast<qt::GuardedApplication*>(QCoreApplication::instance());
}

// Triggers the action the way a click on it does: from an event that the
// event loop delivers, not from the test's own stack.
void triggerFromTheEventLoop(QAction* action) {
    QMetaObject::invokeMethod(action, &QAction::trigger, Qt::QueuedConnection);
    QCoreApplication::processEvents();
}

QWidget* aboutWindow() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (dynamic_cast<qt::AboutForm*>(widget) != nullptr && widget->isVisible()) {
            return widget;
        }
    }
    return nullptr;
}

void clickOk(QWidget* about) {
    QVERIFY(about != nullptr);
    test::FindButton(*about, "OK")->click();
}

// Runs `steps` one event-loop turn apart inside the application's event loop
// and answers how many ran before the loop ended, or -1 when it did not end
// by itself.
int stepsBeforeTheProgramEnds(const std::vector<std::function<void()>>& steps) {
    int done = 0;
    QTimer next;
    next.setInterval(50);
    QObject::connect(&next, &QTimer::timeout, [&] {
        if (done < static_cast<int>(steps.size())) {
            steps[static_cast<std::size_t>(done++)]();
        }
    });
    QTimer hang;
    hang.setSingleShot(true);
    QObject::connect(&hang, &QTimer::timeout, [] { QCoreApplication::exit(1); });
    next.start();
    hang.start(10000);
    return QApplication::exec() == 0 ? done : -1;
}

// Opens the about window over the main window, then runs the closing steps;
// the program must end after the last of them and not before.
using ClosingStep = std::function<void(QWidget& main, QWidget* about)>;
void endsOnlyAfterTheLastStep(const std::vector<ClosingStep>& closing) {
    test::PlainPictureLoader loader;
    qt::MainWindow window(loader, "/opt/slicewright");
    window.show();
    QWidget* about = nullptr;
    std::vector<std::function<void()>> steps{
        [&] { test::FindAction(window, "Program")->trigger(); },
        [&] { about = aboutWindow(); },
    };
    for (const ClosingStep& step : closing) {
        steps.emplace_back([&window, &about, step] { step(window, about); });
    }
    QCOMPARE(stepsBeforeTheProgramEnds(steps), static_cast<int>(steps.size()));
    QVERIFY(about != nullptr);
}

} // namespace

class EventBoundaryTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        settings_.Use();
        QGuiApplication::setQuitOnLastWindowClosed(true);
        guard().SetReport([this](const QString& text) { reports_.append(text); });
        reports_.clear();
    }

    void cleanup() {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            widget->hide();
        }
    }

    void theUserIsToldWhichOperationFailedAndWhy_data() {
        QTest::addColumn<std::exception_ptr>("failure");
        QTest::addColumn<QString>("text");
        const auto named = [](auto cause) {
            try {
                qt::RunOperation("Create Sections", [&] { throw cause; });
            } catch (...) {
                return std::current_exception();
            }
            return std::exception_ptr();
        };
        QTest::newRow("out of memory")
            << named(std::bad_alloc())
            << "Create Sections could not be finished: there is not enough memory.";
        QTest::newRow("broken invariant") << named(std::logic_error("no line at index 4"))
                                          << "Create Sections could not be finished: no line at "
                                             "index 4.";
        QTest::newRow("no exception class")
            << named(42) << "Create Sections could not be finished: an unknown error.";
        QTest::newRow("outside any operation")
            << std::make_exception_ptr(std::runtime_error("disk gone"))
            << "An action could not be finished: disk gone.";
    }

    void theUserIsToldWhichOperationFailedAndWhy() {
        QFETCH(std::exception_ptr, failure);
        QFETCH(QString, text);
        QCOMPARE(qt::GuardedApplication::DescribeFailure(failure),
                 text + "\n\nYour section lines and settings are kept.");
    }

    // The innermost operation names the failure, not the one around it.
    void aNestedOperationKeepsItsOwnName() {
        try {
            qt::RunOperation("Laying out the window",
                             [] { qt::RunOperation("Open", [] { throw std::bad_alloc(); }); });
        } catch (...) {
            QVERIFY(qt::GuardedApplication::DescribeFailure(std::current_exception())
                        .startsWith("Open could not be finished: there is not enough memory."));
            return;
        }
        QFAIL("the exception was lost");
    }

    void anExceptionFromAHandlerLeavesTheWindowItsLinesAndSettings() {
        qt::QtSettingsStore().SaveSetting("Corvane-Studio", "Slicewright", "LastPicture",
                                          "/pictures/shown.bmp");
        test::PlainPictureLoader loader;
        qt::MainWindow window(loader, "/opt/slicewright");
        window.show();
        Session& session = window.CurrentSession();
        test::OpenPicture(window);
        picActual_MouseMove(session, 5, 12);
        window.Picture().onClick();
        QCOMPARE(session.state.hLineCount, static_cast<i16>(1));

        loader.fail = [] { throw std::bad_alloc(); };
        QAction* lastPicture = test::FindAction(window, "/pictures/shown.bmp");
        QVERIFY(lastPicture != nullptr);
        triggerFromTheEventLoop(lastPicture);

        QCOMPARE(reports_.size(), 1);
        QVERIFY2(reports_[0].startsWith("Opening the last picture could not be finished: there "
                                        "is not enough memory."),
                 qPrintable(reports_[0]));
        QVERIFY(window.isVisible());
        QVERIFY(QApplication::overrideCursor() == nullptr);
        QCOMPARE(session.state.hLineCount, static_cast<i16>(1));
        QCOMPARE(session.state.hLines(1), static_cast<i16>(12));
        // The window goes on: the next command works, and the settings are
        // still written on the way out.
        triggerFromTheEventLoop(test::FindAction(window, "Red"));
        QCOMPARE(session.state.lineColor, 0x000000FFu);
        triggerFromTheEventLoop(test::FindAction(window, "Exit"));
        QSettings stored(settings_.FilePath("Corvane-Studio.ini"), QSettings::IniFormat);
        QCOMPARE(stored.value("Slicewright/LastPicture").toString(),
                 QString("/pictures/shown.bmp"));
    }

    // Without a recorder the user sees a message box over the window.
    void theFailureIsShownInAMessageBox() {
        qt::QtSettingsStore().SaveSetting("Corvane-Studio", "Slicewright", "LastPicture",
                                          "/pictures/huge.bmp");
        guard().SetReport({});
        test::PlainPictureLoader loader;
        qt::MainWindow window(loader, "/opt/slicewright");
        window.show();
        test::OpenPicture(window, "/pictures/huge.bmp");
        loader.fail = [] { throw std::runtime_error("picture too large to hold"); };
        QString shown;
        QTimer answer;
        QObject::connect(&answer, &QTimer::timeout, [&] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                shown = box->windowTitle() + ": " + box->text();
                box->accept();
            }
        });
        answer.start(20);
        triggerFromTheEventLoop(test::FindAction(window, "/pictures/huge.bmp"));
        QCOMPARE(shown, QString("Slicewright: Opening the last picture could not be finished: "
                                "picture too large to hold.\n\nYour section lines and settings "
                                "are kept."));
        QVERIFY(window.isVisible());
    }

    void theProgramEndsWhenTheMainWindowClosesLast() {
        endsOnlyAfterTheLastStep({
            [](QWidget&, QWidget* about) { clickOk(about); },
            [](QWidget& main, QWidget*) { QVERIFY(main.isVisible()); },
            [](QWidget& main, QWidget*) { main.close(); },
        });
    }

    void theProgramEndsWhenTheAboutWindowClosesLast() {
        endsOnlyAfterTheLastStep({
            [](QWidget& main, QWidget*) { main.close(); },
            [](QWidget&, QWidget*) { QVERIFY(aboutWindow() != nullptr); },
            [](QWidget&, QWidget* about) { clickOk(about); },
        });
    }

    // Exit closes the main window only; the about window stays until the
    // user closes it, and then the program ends.
    void afterExitTheAboutWindowStaysUntilClosed() {
        endsOnlyAfterTheLastStep({
            [](QWidget& main, QWidget*) { test::FindAction(main, "Exit")->trigger(); },
            [](QWidget& main, QWidget*) { QVERIFY(!main.isVisible() && aboutWindow()); },
            [](QWidget&, QWidget* about) { about->close(); },
        });
    }

private:
    test::SettingsFolder settings_;
    QStringList reports_;
};

SW_GUARDED_TEST_MAIN(EventBoundaryTest)
#include "EventBoundaryTest.moc"
