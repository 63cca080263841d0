#pragma once

#include <stdexcept>
#include <string>

namespace sw::qt {

// Names the user's operation that an escaping exception broke off; the
// cause travels nested inside it (std::throw_with_nested).
class OperationFailed : public std::runtime_error {
public:
    explicit OperationFailed(const std::string& operation) : std::runtime_error(operation) {}
};

// Runs `work`, naming `operation` on any exception that leaves it.
template <typename Work> void RunOperation(const std::string& operation, Work&& work) {
    try {
        work();
    } catch (const OperationFailed&) {
        throw; // already named by the operation that the user started
    } catch (...) {
        std::throw_with_nested(OperationFailed(operation));
    }
}

} // namespace sw::qt
