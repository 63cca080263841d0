#pragma once

#include <QApplication>
#include <QString>
#include <exception>
#include <functional>

namespace sw::qt {

// The application object. It is the event boundary of the program: an
// exception that escapes any handler (out of memory on a huge picture, a
// broken invariant) stops there, the user is told what failed, and the
// event loop goes on with the session's lines and settings as they stand.
class GuardedApplication : public QApplication {
public:
    // What failed and why, in words for the user.
    using Report = std::function<void(const QString& text)>;

    GuardedApplication(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;

    // Replaces the message box that tells the user (a test records instead);
    // an empty report brings the box back.
    void SetReport(Report report) { report_ = std::move(report); }

    // The user's text for an exception caught at the boundary.
    static QString DescribeFailure(const std::exception_ptr& failure);

    // Tells the user of a failure caught in one of our own handlers, before
    // it could unwind through Qt's event delivery (whose frames do not clean
    // up behind an exception). Without a guarded application it rethrows.
    static void ReportCaught(const std::exception_ptr& failure);

private:
    void reportFailure(const std::exception_ptr& failure);

    Report report_;
};

} // namespace sw::qt
