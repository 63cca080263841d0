#pragma once

#include <QString>
#include <string>

namespace sw::qt {

// The logic keeps text as UTF-8.
inline QString ToQ(const std::string& text) {
    return QString::fromStdString(text);
}
inline std::string FromQ(const QString& text) {
    return text.toStdString();
}

} // namespace sw::qt
