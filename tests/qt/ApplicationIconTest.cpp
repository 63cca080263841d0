// The icon compiled into the program: a static resource library is easily
// dropped by the linker, which would leave every window with no icon.
#include "qt/ApplicationIcon.h"

#include <QFile>
#include <QGuiApplication>
#include <QTest>

class ApplicationIconTest : public QObject {
    Q_OBJECT

private slots:
    void iconHasBothRenderedSizesAndTheDrawing() {
        const QIcon icon = sw::qt::ApplicationIcon();
        QVERIFY(!icon.isNull());
        const QList<QSize> sizes = icon.availableSizes();
        QVERIFY(sizes.contains(QSize(48, 48)));
        QVERIFY(sizes.contains(QSize(256, 256)));
        // The rendered picture is not blank: its centre is opaque.
        const QImage large = icon.pixmap(QSize(256, 256)).toImage();
        QCOMPARE(large.size(), QSize(256, 256));
        QCOMPARE(qAlpha(large.pixel(128, 128)), 255);
        QVERIFY(QFile::exists(":/icons/slicewright.svg"));
    }
};

QTEST_MAIN(ApplicationIconTest)
#include "ApplicationIconTest.moc"
