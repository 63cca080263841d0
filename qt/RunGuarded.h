#pragma once

#include "qt/GuardedApplication.h"
#include "qt/OperationFailed.h"

#include <exception>
#include <string>
#include <utility>

namespace sw::qt {

// Runs a handler the user started, as the outermost frame of our own code:
// an exception that leaves it is named after `operation` and reported here,
// so that it never unwinds through the Qt frames that called the handler.
template <typename Work> void RunGuarded(const std::string& operation, Work&& work) {
    try {
        RunOperation(operation, std::forward<Work>(work));
    } catch (...) {
        GuardedApplication::ReportCaught(std::current_exception());
    }
}

} // namespace sw::qt
