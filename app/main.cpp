// Slicewright: divides a picture into a grid of sections.
#include "qt/ApplicationIcon.h"
#include "qt/CommandLine.h"
#include "qt/DisplayCheck.h"
#include "qt/GuardedApplication.h"
#include "qt/MainWindow.h"
#include "qt/image/QtPictureLoader.h"

#include <QDir>
#include <QScreen>
#include <QTimer>
#include <cstdio>

namespace {

void nameTheProgram() {
    QCoreApplication::setApplicationName("Slicewright");
    QCoreApplication::setApplicationVersion(SLICEWRIGHT_VERSION);
}

// Read before the window layer starts, so that --help, --version and a
// mistake need no display.
sw::qt::CommandLine readCommandLine(int argc, char** argv) {
    QCoreApplication reader(argc, argv);
    nameTheProgram();
    return sw::qt::ReadCommandLine(QCoreApplication::arguments());
}

// The installed data folder, found from the program's own place so that the
// installation can be moved as a whole (a DESTDIR, another prefix).
std::string dataFolder() {
    const QDir bin(QCoreApplication::applicationDirPath());
    return QDir::cleanPath(bin.filePath(SLICEWRIGHT_DATA_FROM_BIN)).toStdString();
}

} // namespace

int main(int argc, char** argv) {
    const sw::qt::CommandLine commandLine = readCommandLine(argc, argv);
    if (commandLine.exitCode) {
        return *commandLine.exitCode;
    }
    if (!sw::qt::DisplayAvailable()) {
        std::fputs(sw::qt::kNoDisplayMessage, stderr);
        return 1;
    }
    sw::qt::GuardedApplication application(argc, argv);
    nameTheProgram();
    QGuiApplication::setDesktopFileName(SLICEWRIGHT_APP_ID);
    QApplication::setWindowIcon(sw::qt::ApplicationIcon());

    sw::QtPictureLoader loader;
    sw::qt::MainWindow window(loader, QCoreApplication::applicationDirPath().toStdString(),
                              dataFolder());
    // Placed at the centre of the screen when first shown.
    const QRect screen = window.screen()->availableGeometry();
    window.move(screen.center() - window.rect().center());
    window.show();
    if (!commandLine.picture.isEmpty()) {
        // Once the window is up, as if the user had chosen the picture in the Open dialog.
        QTimer::singleShot(0, &window, [&window, &commandLine] {
            window.OpenPictureFile(commandLine.picture.toStdString());
        });
    }
    return QApplication::exec();
}
