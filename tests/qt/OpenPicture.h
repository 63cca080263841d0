#pragma once

#include "qt/MainWindow.h"
#include "window/PictureOpening.h"

#include <QApplication>
#include <QTest>
#include <string>

namespace sw::test {

// Opens a picture the way the remembered item does, with no dialog: the
// window's loader gives the pixels, whatever the path.
inline void OpenPicture(qt::MainWindow& window, const std::string& path = "/pictures/shown.bmp") {
    window.CurrentSession().state.LastPicture = path;
    mnuLastCut_Click(window.CurrentSession());
    QApplication::processEvents();
}

// Shows the window, waits until it is on the screen, then opens a picture.
inline void ShowWithPicture(qt::MainWindow& window) {
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    OpenPicture(window);
}

} // namespace sw::test
