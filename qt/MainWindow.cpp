#include "qt/MainWindow.h"

#include "dialogs/DialogCommands.h"
#include "qt/QtText.h"
#include "window/DrawModeCommands.h"
#include "window/EditCommands.h"
#include "window/FormLifecycle.h"
#include "window/MenuTree.h"
#include "window/PointerFeedback.h"
#include "window/Toolbar.h"

#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QScrollArea>
#include <QStyle>
#include <QToolBar>
#include <algorithm>

namespace sw::qt {
namespace {

// The stored layout in pixels (15 twips each): the client area, the label
// and the picture's place within it.
constexpr QSize kClientSize(227, 355);
constexpr QPoint kLabelPlace(8, 32);
constexpr QPoint kPicturePlace(8, 48);

bool isCheckable(Item item) {
    if (item == Item::mnuHorizontalLine || item == Item::mnuVerticalLine) {
        return true;
    }
    return std::any_of(std::begin(kLineColors), std::end(kLineColors),
                       [item](const LineColorItem& entry) { return entry.item == item; });
}

} // namespace

MainWindow::MainWindow(PictureLoader& loader, const std::string& appPath)
    : picActual_(new PictureCanvas(nullptr)), ports_{boxes_,
                                                     dlgPic_,
                                                     *picActual_,
                                                     loader,
                                                     controls_,
                                                     form_,
                                                     settings_,
                                                     files_,
                                                     exportDialogs_,
                                                     clipboard_,
                                                     AppInfo{appPath, "Slicewright", "slicewright"},
                                                     jpgCompDialog_,
                                                     aboutWindow_,
                                                     shell_,
                                                     registry_,
                                                     sysInfo_} {
    aboutWindow_.raise = [this](void (frmAbout::*event)()) { RaiseAboutEvent(session_, event); };
    setWindowTitle("Slicewright");
    setupPictureArea();
    setupMenus();
    setupToolbar();
    connectPicture();
    resize(kClientSize.width(), kClientSize.height() + menuBar()->sizeHint().height());
    Form_Load(session_);
}

void MainWindow::run(void (*handler)(Session&)) {
    if (handler != nullptr) {
        handler(session_);
    }
}

void MainWindow::setupPictureArea() {
    scroll_ = new QScrollArea(this);
    scroll_->setFrameShape(QFrame::NoFrame);
    area_ = new QWidget;
    area_->setMouseTracking(true);
    area_->installEventFilter(this);
    lblMousePos_ = new QLabel("Position: ", area_);
    lblMousePos_->move(kLabelPlace);
    lblMousePos_->hide();
    picActual_->setParent(area_);
    picActual_->move(kPicturePlace);
    picActual_->hide();
    area_->resize(kClientSize);
    scroll_->setWidget(area_);
    setCentralWidget(scroll_);
    controls_.Register(Item::picActual, picActual_);
    controls_.Register(Item::lblMousePos, lblMousePos_);
}

QAction* MainWindow::addMenuEntry(QMenu* menu, const MenuEntry& entry) {
    QAction* action = menu->addAction(ToQ(entry.caption));
    action->setEnabled(entry.enabled);
    action->setCheckable(isCheckable(*entry.item));
    action->setChecked(entry.checked);
    const Command handler = entry.command;
    connect(action, &QAction::triggered, this, [this, handler] { run(handler); });
    return action;
}

QAction* MainWindow::addMenuBarCommand(const MenuEntry& entry) {
    QAction* action = menuBar()->addAction(ToQ(entry.caption));
    const Command handler = entry.command;
    connect(action, &QAction::triggered, this, [this, handler] { run(handler); });
    return action;
}

void MainWindow::setupMenus() {
    QMenu* top = nullptr;
    QMenu* sub = nullptr;
    for (const MenuEntry& entry : MenuTree()) {
        QMenu* parent = entry.depth == 2 ? sub : top;
        if (!entry.item) {
            parent->addSeparator();
        } else if (entry.depth == 0 && entry.command == nullptr) {
            top = menuBar()->addMenu(ToQ(entry.caption));
            top->setSeparatorsCollapsible(false);
            top->menuAction()->setEnabled(entry.enabled);
            controls_.Register(*entry.item, top->menuAction());
        } else if (entry.depth == 1 && entry.command == nullptr) {
            sub = top->addMenu(ToQ(entry.caption));
            controls_.Register(*entry.item, sub->menuAction());
        } else {
            QAction* action =
                entry.depth == 0 ? addMenuBarCommand(entry) : addMenuEntry(parent, entry);
            controls_.Register(*entry.item, action);
        }
    }
}

void MainWindow::setupToolbar() {
    tlbrMain_ = addToolBar("Toolbar");
    tlbrMain_->setMovable(false);
    int count = 0;
    const ToolbarEntry* entries = ToolbarEntries(count);
    for (int i = 0; i < count; ++i) {
        const ToolbarEntry& entry = entries[i];
        if (entry.command == nullptr) {
            tlbrMain_->addSeparator();
            continue;
        }
        QAction* button = tlbrMain_->addAction(ToQ(entry.toolTip));
        button->setToolTip(ToQ(entry.toolTip));
        const int index = entry.index;
        connect(button, &QAction::triggered, this,
                [this, index] { tlbrMain_ButtonClick(session_, index); });
        controls_.RegisterToolbarButton(index, button);
    }
    controls_.SetToolbarButtonEnabled(9, false);
    tlbrMain_->hide();
    controls_.Register(Item::tlbrMain, tlbrMain_);
}

void MainWindow::connectPicture() {
    picActual_->onMouseMove = [this](float x, float y) { picActual_MouseMove(session_, x, y); };
    picActual_->onClick = [this] { picActual_Click(session_); };
    picActual_->onSized = [this] {
        area_->resize(std::max(kClientSize.width(), picActual_->geometry().right() + 9),
                      std::max(kClientSize.height(), picActual_->geometry().bottom() + 9));
    };
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == area_ && event->type() == QEvent::MouseMove) {
        Form_MouseMove(session_);
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    Form_Unload(session_);
    event->accept();
}

} // namespace sw::qt
