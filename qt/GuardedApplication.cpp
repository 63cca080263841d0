#include "qt/GuardedApplication.h"

#include "qt/OperationFailed.h"

#include <QMessageBox>
#include <QWidget>
#include <cstdio>
#include <new>

namespace sw::qt {
namespace {

QString causeOf(const std::exception_ptr& failure) {
    try {
        std::rethrow_exception(failure);
    } catch (const std::bad_alloc&) {
        return "there is not enough memory";
    } catch (const std::exception& error) {
        return QString::fromLocal8Bit(error.what());
    } catch (...) {
        return "an unknown error";
    }
}

// The operation's name and the cause nested inside it, or the cause alone.
QString describe(const std::exception_ptr& failure) {
    try {
        std::rethrow_exception(failure);
    } catch (const OperationFailed& failed) {
        try {
            std::rethrow_if_nested(failed);
        } catch (...) {
            return QString("%1 could not be finished: %2.")
                .arg(QString::fromStdString(failed.what()), causeOf(std::current_exception()));
        }
        return QString("%1 could not be finished.").arg(QString::fromStdString(failed.what()));
    } catch (...) {
        return QString("An action could not be finished: %1.").arg(causeOf(failure));
    }
}

// A busy pointer left by the broken operation would stay for good.
void restorePointer() {
    while (QApplication::overrideCursor() != nullptr) {
        QApplication::restoreOverrideCursor();
    }
}

void showBox(const QString& text) {
    QMessageBox box(QMessageBox::Critical, "Slicewright", text, QMessageBox::Ok,
                    QApplication::activeWindow());
    box.exec();
}

} // namespace

GuardedApplication::GuardedApplication(int& argc, char** argv) : QApplication(argc, argv) {}

QString GuardedApplication::DescribeFailure(const std::exception_ptr& failure) {
    return describe(failure) + "\n\nYour section lines and settings are kept.";
}

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        reportFailure(std::current_exception());
    }
    return true;
}

void GuardedApplication::ReportCaught(const std::exception_ptr& failure) {
    auto* guard = dynamic_cast<GuardedApplication*>(QCoreApplication::instance());
    if (guard == nullptr) {
        std::rethrow_exception(failure);
    }
    guard->reportFailure(failure);
}

void GuardedApplication::reportFailure(const std::exception_ptr& failure) {
    restorePointer();
    const QString text = DescribeFailure(failure);
    try {
        if (report_) {
            report_(text);
        } else {
            showBox(text);
        }
    } catch (...) {
        // Telling the user failed as well (memory is that short): the
        // terminal is the last place left.
        std::fprintf(stderr, "slicewright: %s\n", text.toLocal8Bit().constData());
    }
}

} // namespace sw::qt
