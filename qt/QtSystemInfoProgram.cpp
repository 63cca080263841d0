#include "qt/QtSystemInfoProgram.h"

#include "qt/QtText.h"

#include <QProcess>
#include <QStandardPaths>

namespace sw::qt {

std::string QtSystemInfoProgram::Find() {
    for (const char* candidate : kSystemInfoCandidates) {
        const QString found = QStandardPaths::findExecutable(candidate);
        if (!found.isEmpty()) {
            return FromQ(found);
        }
    }
    return {};
}

bool QtSystemInfoProgram::Start(const std::string& program) {
    return QProcess::startDetached(ToQ(program), {});
}

} // namespace sw::qt
