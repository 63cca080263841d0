#pragma once

#include <string>

namespace sw {

// The desktop's own way of opening a web address or a document with the
// program it has for it. The window layer tells the user when no program
// could be started; the logic goes on either way.
class Shell {
public:
    virtual ~Shell() = default;
    virtual void OpenDocument(const std::string& target) = 0;
};

} // namespace sw
