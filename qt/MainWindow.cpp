#include "qt/MainWindow.h"

#include "dialogs/DialogCommands.h"
#include "qt/ApplicationIcon.h"
#include "qt/MenuKeys.h"
#include "qt/QtText.h"
#include "qt/RunGuarded.h"
#include "qt/ToolbarImages.h"
#include "window/DrawModeCommands.h"
#include "window/EditCommands.h"
#include "window/FormLifecycle.h"
#include "window/MenuTree.h"
#include "window/PictureOpening.h"
#include "window/PointerFeedback.h"
#include "window/StoredLayout.h"
#include "window/Toolbar.h"
#include "window/Viewport.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QCursor>
#include <QLabel>
#include <QMenuBar>
#include <QResizeEvent>
#include <QScrollBar>
#include <QStyle>
#include <QToolBar>
#include <QWheelEvent>
#include <algorithm>

namespace sw::qt {
namespace {

bool isDrawMode(Item item) {
    return item == Item::mnuHorizontalLine || item == Item::mnuVerticalLine;
}

bool isLineColor(Item item) {
    return std::any_of(std::begin(kLineColors), std::end(kLineColors),
                       [item](const LineColorItem& entry) { return entry.item == item; });
}

} // namespace

MainWindow::MainWindow(PictureLoader& loader, const std::string& appPath,
                       const std::string& dataPath)
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
                                                     AppInfo{appPath, "Slicewright", "slicewright",
                                                             dataPath},
                                                     jpgCompDialog_,
                                                     aboutWindow_,
                                                     shell_,
                                                     registry_,
                                                     sysInfo_,
                                                     userFolders_} {
    aboutWindow_.raise = [this](void (frmAbout::*handler)()) {
        RunGuarded("The about window", [this, handler] { RaiseAboutEvent(session_, handler); });
    };
    setWindowTitle("Slicewright");
    setWindowIcon(ApplicationIcon());
    setupMenus();
    setupClientArea();
    connectPicture();
    placeStoredLayout();
    Form_Load(session_);
    keepMenuBarWhole();
}

// The five menus and the toolbar's nine entries must fit in a row at the
// least width, or some of them go behind an overflow button; with a wider
// font the window's least width rises to what they need. This is done after
// Form_Load so that the logic notes the stored layout's least width and
// margins, and a picture's window keeps its width wherever it is wider.
void MainWindow::keepMenuBarWhole() {
    setMinimumWidth(std::max(menuBar()->sizeHint().width(), tlbrMain_->sizeHint().width()));
}

void MainWindow::OpenPictureFile(const std::string& path) {
    RunGuarded("Open", [this, &path] { OpenChosenPicture(session_, path); });
}

// Every handler runs under the name the user knows it by, so that an
// exception escaping it tells the user which operation broke off.
void MainWindow::run(const std::string& operation, void (*handler)(Session&)) {
    if (handler != nullptr) {
        RunGuarded(operation, [this, handler] { handler(session_); });
    }
}

// The client area holds its controls at places in twips, as the logic moves
// them: no layout and no scrolling container. Made in this order, the later
// stand above the earlier: the picture, its label, the toolbar, the bars and
// the corner piece, so that the toolbar covers a picture scrolled up, and a
// bar's arrow stays usable where the bar reaches the toolbar.
void MainWindow::setupClientArea() {
    area_ = new QWidget(this);
    area_->setMouseTracking(true);
    area_->installEventFilter(this);
    setCentralWidget(area_);
    picActual_->setParent(area_);
    picActual_->hide();
    lblMousePos_ = new QLabel("Position: ", area_);
    lblMousePos_->hide();
    mousePos_ = std::make_unique<QtPlaced<FormControl>>(lblMousePos_, StoredLayout::lblMousePos);
    setupToolbar();
    setupScrollBars();
    // The controls the window has, in the stored layout's order.
    form_.Attach(*hscroll_, *vscroll_, *picResize_,
                 {vscroll_.get(), hscroll_.get(), picResize_.get(), toolbar_.get(), picActual_,
                  mousePos_.get()});
    controls_.Register(Item::picActual, picActual_);
    controls_.Register(Item::lblMousePos, lblMousePos_);
}

void MainWindow::setupScrollBars() {
    vscrollBar_ = new QScrollBar(Qt::Vertical, area_);
    hscrollBar_ = new QScrollBar(Qt::Horizontal, area_);
    cornerWidget_ = new QWidget(area_);
    cornerWidget_->setAutoFillBackground(true);
    cornerWidget_->resize(PixelsOf(StoredLayout::picResize.place.Width),
                          PixelsOf(StoredLayout::picResize.place.Height));
    for (QWidget* widget :
         {static_cast<QWidget*>(vscrollBar_), static_cast<QWidget*>(hscrollBar_), cornerWidget_}) {
        widget->hide();
    }
    vscroll_ = std::make_unique<QtScrollBar>(vscrollBar_, StoredLayout::vscroll);
    hscroll_ = std::make_unique<QtScrollBar>(hscrollBar_, StoredLayout::hscroll);
    picResize_ = std::make_unique<QtCornerPiece>(cornerWidget_);
    connectBar(hscrollBar_, hscroll_Change, hscroll_Scroll);
    connectBar(vscrollBar_, vscroll_Change, vscroll_Scroll);
}

// A value moved by the thumb is a Scroll, any other move a Change; letting go
// of the thumb is a Change as well.
void MainWindow::connectBar(QScrollBar* bar, void (*change)(Session&), void (*scrolled)(Session&)) {
    connect(bar, &QScrollBar::valueChanged, this, [this, bar, change, scrolled] {
        run("Scrolling the picture", bar->isSliderDown() ? scrolled : change);
    });
    connect(bar, &QScrollBar::sliderReleased, this,
            [this, change] { run("Scrolling the picture", change); });
}

// The form and its controls where the stored layout puts them.
void MainWindow::placeStoredLayout() {
    using L = StoredLayout;
    form_.SetWidth(L::form.Width);
    form_.SetHeight(L::form.Height);
    const auto place = [](FormControl& control, const StoredControl& stored) {
        control.SetLeft(stored.place.Left);
        control.SetTop(stored.place.Top);
    };
    place(*picActual_, L::picActual);
    place(*mousePos_, L::lblMousePos);
    place(*vscroll_, L::vscroll);
    vscroll_->SetWidth(L::vscroll.place.Width);
    vscroll_->SetHeight(L::vscroll.place.Height);
    place(*hscroll_, L::hscroll);
    hscroll_->SetWidth(L::hscroll.place.Width);
    hscroll_->SetHeight(L::hscroll.place.Height);
    place(*picResize_, L::picResize);
    place(*toolbar_, L::tlbrMain);
    stretchToolbar();
}

QAction* MainWindow::addMenuEntry(QMenu* menu, const MenuEntry& entry) {
    QAction* action = menu->addAction(ToQ(entry.caption));
    action->setEnabled(entry.enabled);
    action->setShortcut(ShortcutOf(*entry.item));
    if (QActionGroup* group = choiceGroupOf(*entry.item)) {
        action->setCheckable(true);
        group->addAction(action);
    }
    action->setChecked(entry.checked);
    const Command handler = entry.command;
    // The remembered picture's item has the picture's path for its caption.
    const std::string operation =
        *entry.item == Item::mnuLastCut ? "Opening the last picture" : entry.caption;
    connect(action, &QAction::triggered, this,
            [this, operation, handler] { run(operation, handler); });
    return action;
}

QAction* MainWindow::addMenuBarCommand(const MenuEntry& entry) {
    QAction* action = menuBar()->addAction(WithAccessKey(ToQ(entry.caption), entry.depth));
    action->setShortcut(ShortcutOf(*entry.item));
    const Command handler = entry.command;
    const std::string operation = entry.caption;
    connect(action, &QAction::triggered, this,
            [this, operation, handler] { run(operation, handler); });
    return action;
}

// The draw mode and the line colour are exclusive choices, shown with radio
// marks; the logic still sets and reads every item's Checked.
QActionGroup* MainWindow::choiceGroupOf(Item item) {
    if (isDrawMode(item)) {
        return drawModes_;
    }
    return isLineColor(item) ? lineColors_ : nullptr;
}

void MainWindow::setupMenus() {
    drawModes_ = new QActionGroup(this);
    lineColors_ = new QActionGroup(this);
    QMenu* top = nullptr;
    QMenu* sub = nullptr;
    for (const MenuEntry& entry : MenuTree()) {
        QMenu* parent = entry.depth == 2 ? sub : top;
        if (!entry.item) {
            parent->addSeparator();
        } else if (entry.depth == 0 && entry.command == nullptr) {
            top = menuBar()->addMenu(WithAccessKey(ToQ(entry.caption), entry.depth));
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
    // Along the top of the client area, over it rather than beside it, so
    // that showing it moves nothing; it covers what is scrolled under it.
    tlbrMain_ = new QToolBar("Toolbar", area_);
    tlbrMain_->setMovable(false);
    tlbrMain_->setIconSize(QSize(kToolbarImageSize, kToolbarImageSize));
    tlbrMain_->setToolButtonStyle(Qt::ToolButtonIconOnly);
    tlbrMain_->setAutoFillBackground(true);
    int count = 0;
    const ToolbarEntry* entries = ToolbarEntries(count);
    for (int i = 0; i < count; ++i) {
        const ToolbarEntry& entry = entries[i];
        if (entry.command == nullptr) {
            tlbrMain_->addSeparator();
            continue;
        }
        // Image only; the text stays for screen readers.
        QAction* button = tlbrMain_->addAction(ToolbarImage(entry.image), ToQ(entry.toolTip));
        button->setToolTip(ToQ(entry.toolTip));
        const int index = entry.index;
        const std::string operation = entry.toolTip;
        connect(button, &QAction::triggered, this, [this, operation, index] {
            RunGuarded(operation, [this, index] { tlbrMain_ButtonClick(session_, index); });
        });
        button->setEnabled(entry.enabled);
        controls_.RegisterToolbarButton(index, button);
    }
    tlbrMain_->hide();
    controls_.Register(Item::tlbrMain, tlbrMain_);
    toolbar_ = std::make_unique<QtPlaced<FormControl>>(tlbrMain_, StoredLayout::tlbrMain);
}

void MainWindow::stretchToolbar() {
    tlbrMain_->resize(area_->width(), tlbrMain_->sizeHint().height());
}

void MainWindow::connectPicture() {
    picActual_->onMouseMove = [this](float x, float y) {
        RunGuarded("Following the pointer", [&] { picActual_MouseMove(session_, x, y); });
    };
    picActual_->onClick = [this] { run("Drawing a line", picActual_Click); };
    // Once the new picture is laid out, the title and label show where the
    // pointer stands on it, or nothing: never a place on the last picture.
    picActual_->onPictureShown = [this] {
        QMetaObject::invokeMethod(
            this, [this] { followPointer(); }, Qt::QueuedConnection);
    };
}

void MainWindow::followPointer() {
    const QPoint onArea = area_->mapFromGlobal(QCursor::pos());
    const QPoint onPicture = picActual_->mapFromGlobal(QCursor::pos());
    if (picActual_->isVisible() && area_->rect().contains(onArea) &&
        picActual_->rect().contains(onPicture) && picActual_->onMouseMove) {
        picActual_->onMouseMove(static_cast<float>(onPicture.x()),
                                static_cast<float>(onPicture.y()));
    } else {
        run("Following the pointer", Form_MouseMove);
    }
}

// The wheel moves the vertical bar, with Shift (or a sideways wheel) the
// horizontal one, by setting its Value as a click on its arrows would, so
// that its Change runs; a hidden bar does not move.
void MainWindow::scrollByWheel(const QWheelEvent& event) {
    const QPoint delta = event.angleDelta();
    const bool across =
        (event.modifiers() & Qt::ShiftModifier) || (delta.y() == 0 && delta.x() != 0);
    QScrollBar* bar = across ? hscrollBar_ : vscrollBar_;
    if (!bar->isVisible()) {
        return;
    }
    // A notch is 120; touch pads send less at a time, which adds up.
    wheelTurn_ += delta.y() != 0 ? delta.y() : delta.x();
    const int notches = wheelTurn_ / 120;
    wheelTurn_ -= notches * 120;
    if (notches != 0) {
        bar->setValue(bar->value() -
                      notches * QApplication::wheelScrollLines() * bar->singleStep());
    }
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == area_ && event->type() == QEvent::MouseMove) {
        run("Following the pointer", Form_MouseMove);
    }
    if (watched == area_ && event->type() == QEvent::Wheel) {
        scrollByWheel(*static_cast<QWheelEvent*>(event));
        return true;
    }
    return QMainWindow::eventFilter(watched, event);
}

// Any change of the window's size, from the logic or from the user, is the
// form's Resize. Qt sends it from inside resize() for a visible window.
void MainWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    stretchToolbar();
    if (event->size() != event->oldSize()) {
        run("Laying out the window", Form_Resize);
    }
}

// Minimising and restoring keep the window's size in Qt, so no resize event
// comes for them; the form still has its Resize.
void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange) {
        return;
    }
    const auto* change = static_cast<QWindowStateChangeEvent*>(event);
    const bool wasMinimised = change->oldState() & Qt::WindowMinimized;
    if (wasMinimised != isMinimized()) {
        run("Laying out the window", Form_Resize);
    }
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    run("Closing the window", Form_Unload);
}

} // namespace sw::qt
