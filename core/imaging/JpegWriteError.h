#pragma once

#include <stdexcept>
#include <string>

namespace sw {

// A JPG file that the encoder could not produce. It carries the number, the
// source and the description by which the program reports such failures.
class JpegWriteError : public std::runtime_error {
public:
    static constexpr int kNumber = 26001;

    JpegWriteError(std::string source, std::string description)
        : std::runtime_error(description), source_(std::move(source)),
          description_(std::move(description)) {}

    int Number() const { return kNumber; }
    const std::string& Source() const { return source_; }
    const std::string& Description() const { return description_; }

private:
    std::string source_;
    std::string description_;
};

} // namespace sw
