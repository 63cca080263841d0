#include "qt/QtClipboard.h"

#include "imaging/Picture.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <cstring>

namespace sw::qt {

void QtClipboard::Clear() {
    QGuiApplication::clipboard()->clear();
}

void QtClipboard::SetText(const std::string& text) {
    QGuiApplication::clipboard()->setText(QString::fromStdString(text));
}

bool QtClipboard::SetPicture(const Picture& picture) {
    if (picture.IsEmpty()) {
        return false;
    }
    QImage image(picture.Width(), picture.Height(), QImage::Format_BGR888);
    if (image.isNull()) {
        return false;
    }
    for (int y = 0; y < picture.Height(); ++y) {
        std::memcpy(image.scanLine(y), picture.Row(y),
                    3 * static_cast<std::size_t>(picture.Width()));
    }
    QGuiApplication::clipboard()->setImage(image);
    return true;
}

} // namespace sw::qt
