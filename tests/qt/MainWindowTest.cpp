// The window layer: the Qt implementations of the ports and the main form's
// wiring, on a real (offscreen or Xvfb) platform.
#include "qt/MainWindow.h"

#include "imaging/Picture.h"
#include "qt/QtSettingsStore.h"
#include "tests/qt/FindWidgets.h"
#include "tests/qt/PlainPictureLoader.h"
#include "tests/qt/SettingsFolder.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMenuBar>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>
#include <memory>

using namespace sw;

class MainWindowTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        settings_.Use();
        // A fresh home for every test, with no Pictures folder unless the test makes one.
        home_ = std::make_unique<QTemporaryDir>();
        QVERIFY(home_->isValid());
        qputenv("HOME", home_->path().toUtf8());
    }

    void commandsStartAsTheStoredLayoutHasThem() {
        test::PlainPictureLoader loader;
        qt::MainWindow window(loader, "/opt/slicewright");
        QVERIFY(!test::FindAction(window, "Edit")->isEnabled());
        QVERIFY(!test::FindAction(window, "Create Sections")->isEnabled());
        QVERIFY(!test::FindAction(window, "Undo Last")->isEnabled());
        QVERIFY(test::FindAction(window, "Horizontal Line")->isChecked());
        QVERIFY(test::FindAction(window, "Black")->isChecked());
        QVERIFY(!test::FindAction(window, "Red")->isChecked());
        QVERIFY(test::FindAction(window, "Open")->isEnabled());
        QVERIFY(!window.findChild<QToolBar*>()->isVisibleTo(&window));
        QCOMPARE(window.windowTitle(), QString("Slicewright"));
    }

    // The margins noted at start come from the picture box's stored size and
    // the frame around the client area: the window must give those of the
    // stored layout, as the scripted form does, or every fitted window is off.
    void theWindowNotesTheStoredLayoutsMarginsAndToolbar() {
        test::PlainPictureLoader loader;
        qt::MainWindow window(loader, "/opt/slicewright");
        const SessionState& state = window.CurrentSession().state;
        QCOMPARE(state.rightMargin, i16{270});
        QCOMPARE(state.bottomMargin, i16{840});
        QCOMPARE(state.minFormWidth, i16{3525});
        QVERIFY(!test::FindAction(window, "Undo")->isEnabled());
        QVERIFY(test::FindAction(window, "Open File")->isEnabled());
    }

    void exitWritesTheSixSettingsToTheUsersConfigFile() {
        QVERIFY(QDir(home_->path()).mkpath("Pictures"));
        test::PlainPictureLoader loader;
        qt::MainWindow window(loader, "/opt/slicewright");
        window.show();
        test::FindAction(window, "Exit")->trigger();
        QVERIFY(!window.isVisible());
        QSettings stored(settings_.FilePath("Corvane-Studio.ini"), QSettings::IniFormat);
        // A first run starts in the user's Pictures folder, not the program's.
        const QString pictures = home_->filePath("Pictures");
        QCOMPARE(stored.value("Slicewright/LastOpenDir").toString(), pictures);
        QCOMPARE(stored.value("Slicewright/LastSaveDir").toString(), pictures);
        QCOMPARE(stored.value("Slicewright/LastPicture").toString(), QString(" "));
        QCOMPARE(stored.value("Slicewright/SaveFormat").toString(), QString("BMP"));
        QCOMPARE(stored.value("Slicewright/HTMLOut").toString(), QString("N"));
        QCOMPARE(stored.value("Slicewright/JPGComp").toString(), QString("90"));
    }

    // Without a Pictures folder the home folder stands in, and so it does for
    // a stored folder that has gone; a stored folder that exists is kept.
    void firstRunFoldersFallBackToHome() {
        const QString kept = home_->filePath("kept");
        QVERIFY(QDir(home_->path()).mkpath("kept"));
        qt::QtSettingsStore store;
        store.SaveSetting("Corvane-Studio", "Slicewright", "LastOpenDir", kept.toStdString());
        store.SaveSetting("Corvane-Studio", "Slicewright", "LastSaveDir",
                          home_->filePath("gone/").toStdString());
        test::PlainPictureLoader loader;
        qt::MainWindow window(loader, "/opt/slicewright");
        const SessionState& state = window.CurrentSession().state;
        QCOMPARE(QString::fromStdString(state.LastOpenDir), kept);
        QCOMPARE(QString::fromStdString(state.LastSaveDir), home_->path());
    }

    // The desktop names the Pictures folder in its XDG user folders, in the
    // user's language; that folder is the one a first run starts in.
    void aFirstRunStartsInTheFolderTheDesktopNamesForPictures() {
        QVERIFY(QDir(home_->path()).mkpath("Pictures"));
        QVERIFY(QDir(home_->path()).mkpath("Bilder"));
        QFile userFolders(settings_.FilePath("user-dirs.dirs"));
        QVERIFY(userFolders.open(QIODevice::WriteOnly));
        userFolders.write("XDG_PICTURES_DIR=\"$HOME/Bilder\"\n");
        userFolders.close();
        QFile::remove(settings_.FilePath("Corvane-Studio.ini"));
        test::PlainPictureLoader loader;
        qt::MainWindow window(loader, "/opt/slicewright");
        userFolders.remove();
        const SessionState& state = window.CurrentSession().state;
        QCOMPARE(QString::fromStdString(state.LastOpenDir), home_->filePath("Bilder"));
        QCOMPARE(QString::fromStdString(state.LastSaveDir), home_->filePath("Bilder"));
    }

    void aStoredLastPictureBecomesTheRememberedItem() {
        qt::QtSettingsStore().SaveSetting("Corvane-Studio", "Slicewright", "LastPicture",
                                          "/home/ann/gone.jpg");
        test::PlainPictureLoader loader;
        qt::MainWindow window(loader, "/opt/slicewright");
        QAction* lastCut = test::FindAction(window, "/home/ann/gone.jpg");
        QVERIFY(lastCut != nullptr);
        QVERIFY(lastCut->isVisible());
    }

    void settingsStoreAnswersTheDefaultForAMissingKey() {
        qt::QtSettingsStore store;
        QCOMPARE(store.GetSetting("Corvane-Studio", "Slicewright", "Nothing", "dflt"),
                 std::string("dflt"));
        store.SaveSetting("Corvane-Studio", "Slicewright", "Key", "a value, with \"quotes\"");
        QCOMPARE(store.GetSetting("Corvane-Studio", "Slicewright", "Key", ""),
                 std::string("a value, with \"quotes\""));
    }

    void strokesSpanThePictureAndStayInItsImage() {
        test::PlainPictureLoader loader;
        qt::MainWindow window(loader, "/opt/slicewright");
        qt::PictureCanvas& canvas = window.Picture();
        canvas.SetPicture(Picture::Filled(40, 30, 0x00FFFFFF));
        QCOMPARE(canvas.Width(), 600.0f);
        QCOMPARE(canvas.Height(), 450.0f);
        // The far end is the size in twips, far past the edge: clipped there.
        QVERIFY(canvas.Line(0, 7, static_cast<int>(canvas.Width()), 7, 0x000000FF));
        const QImage& image = canvas.Image();
        QCOMPARE(image.pixelColor(0, 7), QColor(255, 0, 0));
        QCOMPARE(image.pixelColor(39, 7), QColor(255, 0, 0));
        QCOMPARE(image.pixelColor(39, 8), QColor(255, 255, 255));
        QCOMPARE(image.pixelColor(39, 6), QColor(255, 255, 255));
    }

    void aDoubleClickRecordsOneLineAtThePointer() {
        test::PlainPictureLoader loader;
        qt::MainWindow window(loader, "/opt/slicewright");
        window.show();
        Session& session = window.CurrentSession();
        session.state.pictureOpen = true;
        session.state.hLines.ResetToOneSlot();
        session.state.vLines.ResetToOneSlot();
        qt::PictureCanvas& canvas = window.Picture();
        canvas.SetPicture(Picture::Filled(40, 30, 0x00FFFFFF));
        canvas.show();
        QMouseEvent move(QEvent::MouseMove, QPointF(5.7, 12.2),
                         canvas.mapToGlobal(QPointF(5.7, 12.2)), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QApplication::sendEvent(&canvas, &move);
        QCOMPARE(session.state.mouseX, static_cast<i16>(5));
        QCOMPARE(session.state.mouseY, static_cast<i16>(12));
        // What the window system sends for a double click.
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                        QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
            const bool release = type == QEvent::MouseButtonRelease;
            QMouseEvent event(type, QPointF(5, 12), canvas.mapToGlobal(QPointF(5, 12)),
                              Qt::LeftButton, release ? Qt::NoButton : Qt::LeftButton,
                              Qt::NoModifier);
            QApplication::sendEvent(&canvas, &event);
        }
        QCOMPARE(session.state.hLineCount, static_cast<i16>(1));
        QCOMPARE(session.state.hLines(1), static_cast<i16>(12));
        QVERIFY(test::FindAction(window, "Undo Last")->isEnabled());
    }

    // A narrow picture leaves the window at its least width, where the five
    // menus and the toolbar's nine entries still stand in one row each,
    // with no overflow button.
    void atTheLeastWidthEveryMenuAndButtonIsInView() {
        qt::QtSettingsStore().SaveSetting("Corvane-Studio", "Slicewright", "LastPicture",
                                          "/pictures/narrow.bmp");
        test::PlainPictureLoader loader;
        qt::MainWindow window(loader, "/opt/slicewright");
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        test::FindAction(window, "/pictures/narrow.bmp")->trigger();
        QApplication::processEvents();
        QCOMPARE(window.width(), window.minimumWidth());
        QMenuBar* menus = window.menuBar();
        QCOMPARE(menus->actions().size(), 5);
        for (QAction* menu : menus->actions()) {
            QVERIFY2(menus->rect().contains(menus->actionGeometry(menu)), qPrintable(menu->text()));
        }
        auto* toolbar = window.findChild<QToolBar*>();
        QVERIFY(toolbar->isVisible());
        QCOMPARE(toolbar->actions().size(), 9);
        for (QAction* entry : toolbar->actions()) {
            QWidget* button = toolbar->widgetForAction(entry);
            QVERIFY(button != nullptr && button->isVisible());
            QVERIFY(toolbar->rect().contains(button->geometry()));
            QVERIFY(toolbar->rect().right() < window.VScrollBar().geometry().left() ||
                    !window.VScrollBar().isVisible());
        }
        for (const char* overflow : {"qt_menubar_ext_button", "qt_toolbar_ext_button"}) {
            auto* button = window.findChild<QWidget*>(overflow);
            QVERIFY(button == nullptr || !button->isVisible());
        }
    }

    // Each button shows its own image, sharp at scale 1 and 2, and no text.
    void toolbarButtonsShowImagesAndToolTips() {
        test::PlainPictureLoader loader;
        qt::MainWindow window(loader, "/opt/slicewright");
        auto* toolbar = window.findChild<QToolBar*>();
        QCOMPARE(toolbar->toolButtonStyle(), Qt::ToolButtonIconOnly);
        QStringList tips;
        QList<QImage> images;
        for (QAction* entry : toolbar->actions()) {
            if (entry->isSeparator()) {
                continue;
            }
            tips << entry->toolTip();
            const QList<QSize> sizes = entry->icon().availableSizes();
            QVERIFY2(sizes.contains(QSize(16, 16)) && sizes.contains(QSize(32, 32)),
                     qPrintable(entry->toolTip()));
            const QImage image = entry->icon().pixmap(QSize(32, 32)).toImage();
            QVERIFY2(!images.contains(image), qPrintable(entry->toolTip()));
            images << image;
        }
        QCOMPARE(tips, QStringList({"Open File", "Create Sections", "Draw Horizontal Lines",
                                    "Draw Vertical Lines", "Divide Horizontally Equal",
                                    "Divide Vertically Equal", "Clear Lines", "Undo"}));
    }

private:
    test::SettingsFolder settings_;
    std::unique_ptr<QTemporaryDir> home_;
};

QTEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"
