#pragma once

#include "ports/Ports.h"
#include "qt/PictureCanvas.h"
#include "qt/QtAboutWindow.h"
#include "qt/QtClipboard.h"
#include "qt/QtControls.h"
#include "qt/QtCornerPiece.h"
#include "qt/QtExportDialogs.h"
#include "qt/QtFileDialog.h"
#include "qt/QtFileSystem.h"
#include "qt/QtFormWindow.h"
#include "qt/QtMessageBoxes.h"
#include "qt/QtPlaced.h"
#include "qt/QtQualityDialog.h"
#include "qt/QtRegistry.h"
#include "qt/QtScrollBar.h"
#include "qt/QtSettingsStore.h"
#include "qt/QtShell.h"
#include "qt/QtSystemInfoProgram.h"
#include "qt/QtUserFolders.h"
#include "session/Session.h"
#include "window/MenuTree.h"

#include <QMainWindow>
#include <memory>

class QActionGroup;
class QLabel;
class QMenu;
class QScrollBar;
class QToolBar;
class QWheelEvent;

namespace sw::qt {

// frmSlicewright: the main window. It holds no logic: it turns Qt events into
// the handlers of the core and carries out what they ask through the ports.
class MainWindow : public QMainWindow {
public:
    // appPath is the program's folder; dataPath the installed data folder, or
    // empty when the program runs from its build folder.
    MainWindow(PictureLoader& loader, const std::string& appPath, const std::string& dataPath = {});

    // Opens a picture named on the command line as if the Open dialog had chosen it.
    void OpenPictureFile(const std::string& path);

    Session& CurrentSession() { return session_; }
    PictureCanvas& Picture() { return *picActual_; }
    QScrollBar& HScrollBar() { return *hscrollBar_; }
    QScrollBar& VScrollBar() { return *vscrollBar_; }
    QWidget& ClientArea() { return *area_; }

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void setupClientArea();
    void setupScrollBars();
    void placeStoredLayout();
    void setupMenus();
    void setupToolbar();
    void connectPicture();
    void followPointer();
    void scrollByWheel(const QWheelEvent& event);
    void connectBar(QScrollBar* bar, void (*change)(Session&), void (*scroll)(Session&));
    void stretchToolbar();
    void keepMenuBarWhole();
    QAction* addMenuEntry(QMenu* menu, const MenuEntry& entry);
    QActionGroup* choiceGroupOf(Item item);
    QAction* addMenuBarCommand(const MenuEntry& entry);
    void run(const std::string& operation, void (*handler)(Session&));

    PictureCanvas* picActual_;
    QtMessageBoxes boxes_{this};
    QtFileDialog dlgPic_{this};
    QtControls controls_{this};
    QtFormWindow form_{this};
    QtSettingsStore settings_;
    QtFileSystem files_;
    QtExportDialogs exportDialogs_{this};
    QtClipboard clipboard_;
    QtQualityDialog jpgCompDialog_{this};
    QtAboutWindow aboutWindow_{this};
    QtShell shell_{this};
    QtRegistry registry_;
    QtSystemInfoProgram sysInfo_;
    QtUserFolders userFolders_;
    Ports ports_;
    Session session_{ports_};
    QWidget* area_ = nullptr;
    QLabel* lblMousePos_ = nullptr;
    QToolBar* tlbrMain_ = nullptr;
    QActionGroup* drawModes_ = nullptr;
    QActionGroup* lineColors_ = nullptr;
    int wheelTurn_ = 0;
    QScrollBar* hscrollBar_ = nullptr;
    QScrollBar* vscrollBar_ = nullptr;
    QWidget* cornerWidget_ = nullptr;
    // The controls of the client area as the logic sees them.
    std::unique_ptr<QtPlaced<FormControl>> mousePos_;
    std::unique_ptr<QtPlaced<FormControl>> toolbar_;
    std::unique_ptr<QtScrollBar> hscroll_;
    std::unique_ptr<QtScrollBar> vscroll_;
    std::unique_ptr<QtCornerPiece> picResize_;
};

} // namespace sw::qt
