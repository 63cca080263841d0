#include "qt/AboutForm.h"

#include "dialogs/frmAbout.h"
#include "qt/ApplicationIcon.h"
#include "qt/QtText.h"
#include "qt/RenderedIcon.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace sw::qt {
namespace {

constexpr int kReadableWidth = 380;
constexpr int kLogoSize = 96;

QLabel* centred(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    return label;
}

} // namespace

// A window of its own rather than a child of the main window: it stays open
// after the main window has closed.
AboutForm::AboutForm(const frmAbout& form, Raise raise) : raise_(std::move(raise)) {
    setWindowTitle(ToQ(form.Caption));
    setWindowIcon(ApplicationIcon());
    // Wide enough that the description and disclaimer read as paragraphs.
    setMinimumWidth(kReadableWidth);
    new QVBoxLayout(this);
    setupTexts(form);
    setupButtons();
}

void AboutForm::setupTexts(const frmAbout& form) {
    layout()->addWidget(makeLogo());
    QLabel* version = centred(ToQ(form.lblVersion), this);
    version->setStyleSheet("font-weight: bold");
    layout()->addWidget(version);
    layout()->addWidget(centred(ToQ(form.lblDescription), this));
    QLabel* forums =
        centred(QString("<a href=\"forums\">%1</a>").arg(frmAbout::kForumsCaption), this);
    forums->setCursor(Qt::PointingHandCursor);
    connect(forums, &QLabel::linkActivated, this, [this] { raise_(&frmAbout::lblForums_Click); });
    layout()->addWidget(forums);
    auto* disclaimer = new QLabel(frmAbout::kDisclaimer, this);
    disclaimer->setWordWrap(true);
    layout()->addWidget(disclaimer);
}

// imgLogo: the project's logo, a flat button that leads to the maker's page.
QWidget* AboutForm::makeLogo() {
    auto* logo = new QToolButton(this);
    logo->setIcon(RenderedIcon("about", "logo", {kLogoSize, 2 * kLogoSize}));
    logo->setIconSize(QSize(kLogoSize, kLogoSize));
    logo->setAutoRaise(true);
    logo->setFocusPolicy(Qt::NoFocus);
    logo->setToolTip(frmAbout::kLogoToolTip);
    logo->setCursor(Qt::PointingHandCursor);
    connect(logo, &QToolButton::clicked, this, [this] { raise_(&frmAbout::imgLogo_Click); });
    auto* row = new QWidget(this);
    auto* centre = new QHBoxLayout(row);
    centre->setContentsMargins(0, 0, 0, 0);
    centre->addStretch();
    centre->addWidget(logo);
    centre->addStretch();
    return row;
}

void AboutForm::setupButtons() {
    auto* row = new QHBoxLayout;
    auto* sysInfo = new QPushButton(frmAbout::kSysInfoCaption, this);
    auto* ok = new QPushButton("OK", this);
    ok->setDefault(true);
    row->addWidget(sysInfo);
    row->addStretch();
    row->addWidget(ok);
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
    connect(sysInfo, &QPushButton::clicked, this, [this] { raise_(&frmAbout::cmdSysInfo_Click); });
    connect(ok, &QPushButton::clicked, this, [this] { raise_(&frmAbout::cmdOK_Click); });
}

// OK is also the cancel button: Esc and the close box close the window.
void AboutForm::reject() {
    raise_(&frmAbout::cmdOK_Click);
}

} // namespace sw::qt
