#pragma once

#include <optional>
#include <string>

namespace sw {

// A picture file opened once for the whole of a load. Every later read goes
// through Path(), which names this open file rather than the name it was
// found under: a file that another program removes or replaces meanwhile is
// read whole as it was when the load began, never its header from one file
// and its pixels from another (or from none).
class HeldFile {
public:
    explicit HeldFile(const std::string& path);
    ~HeldFile();
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;

    // Why the file cannot be handed to a decoder at all; nothing when it can.
    const std::optional<std::string>& Problem() const { return problem_; }
    // A name that opens this same file again, as long as it is held.
    const std::string& Path() const { return path_; }

private:
    int fd_ = -1;
    std::string path_;
    std::optional<std::string> problem_;
};

} // namespace sw
