// Slicewright: divides a picture into a grid of sections.
#include "qt/ApplicationIcon.h"
#include "qt/GuardedApplication.h"
#include "qt/MainWindow.h"
#include "qt/image/QtPictureLoader.h"

#include <QScreen>

int main(int argc, char** argv) {
    sw::qt::GuardedApplication application(argc, argv);
    QApplication::setApplicationName("Slicewright");
    QApplication::setApplicationVersion("2.5.0");
    QApplication::setWindowIcon(sw::qt::ApplicationIcon());

    sw::QtPictureLoader loader;
    sw::qt::MainWindow window(loader, QCoreApplication::applicationDirPath().toStdString());
    // Placed at the centre of the screen when first shown.
    const QRect screen = window.screen()->availableGeometry();
    window.move(screen.center() - window.rect().center());
    window.show();
    return QApplication::exec();
}
