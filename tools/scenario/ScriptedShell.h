#pragma once

#include "ports/Shell.h"
#include "tools/scenario/Transcript.h"

namespace sw::scripted {

// Opens nothing: logs what the desktop would open.
class ScriptedShell : public Shell {
public:
    explicit ScriptedShell(Transcript& transcript) : transcript_(transcript) {}
    void OpenDocument(const std::string& target) override;

private:
    Transcript& transcript_;
};

} // namespace sw::scripted
