// The Qt forms of the dialogs, driven by real key and mouse events, over the
// dialogs' logic on a scripted session.
#include "dialogs/frmAbout.h"
#include "dialogs/frmJPGComp.h"
#include "qt/AboutForm.h"
#include "qt/JpgCompForm.h"
#include "session/Session.h"
#include "tests/qt/FindWidgets.h"
#include "tools/scenario/ScriptedPorts.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <sstream>

using namespace sw;

class DialogFormsTest : public QObject {
    Q_OBJECT

private slots:
    void qualityBoxTakesDigitsOnlyAndOkStoresTheValue() {
        std::ostringstream transcript;
        scripted::ScriptedPorts ports(transcript, nullptr);
        Session session(ports.ports);
        session.state.JPGComp = 90;
        frmJPGComp logic(session);
        qt::JpgCompForm form(logic, nullptr);
        auto* box = form.findChild<QLineEdit*>();
        QCOMPARE(box->text(), QString("90"));
        box->selectAll();
        QTest::keyClicks(box, "a7-.,5 ");
        QCOMPARE(box->text(), QString("75"));
        QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
        QTest::keyClick(box, Qt::Key_Backspace);
        QCOMPARE(box->text(), QString("7"));
        QTest::mouseClick(test::FindButton(form, "OK"), Qt::LeftButton);
        QVERIFY(logic.Closed());
        QCOMPARE(session.state.JPGComp, 7);
    }

    void cancelAndEscapeLeaveTheQualityAlone() {
        std::ostringstream transcript;
        scripted::ScriptedPorts ports(transcript, nullptr);
        Session session(ports.ports);
        session.state.JPGComp = 42;
        frmJPGComp logic(session);
        qt::JpgCompForm form(logic, nullptr);
        form.show();
        QTest::keyClicks(form.findChild<QLineEdit*>(), "9");
        QTest::keyClick(&form, Qt::Key_Escape);
        QVERIFY(logic.Closed());
        QCOMPARE(session.state.JPGComp, 42);
    }

    void aboutWindowShowsItsTextsAndItsOkUnloadsTheForm() {
        std::ostringstream transcript;
        scripted::ScriptedPorts ports(transcript, nullptr);
        frmAbout logic(ports.ports);
        logic.Form_Load();
        bool okRaised = false;
        qt::AboutForm form(logic, [&](void (frmAbout::*handler)()) {
            okRaised = handler == &frmAbout::cmdOK_Click;
        });
        QCOMPARE(form.windowTitle(), QString("About Slicewright"));
        bool versionShown = false;
        for (QLabel* label : form.findChildren<QLabel*>()) {
            versionShown = versionShown || label->text() == "Version 2.5.0";
        }
        QVERIFY(versionShown);
        QTest::mouseClick(test::FindButton(form, "OK"), Qt::LeftButton);
        QVERIFY(okRaised);
    }
};

QTEST_MAIN(DialogFormsTest)
#include "DialogFormsTest.moc"
