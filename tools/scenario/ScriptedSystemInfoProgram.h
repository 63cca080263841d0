#pragma once

#include "ports/SystemInfoProgram.h"
#include "tools/scenario/Transcript.h"

#include <set>

namespace sw::scripted {

// The desktop's system-information program as the script describes it:
// `sysinfo "PATH"` is what the search finds (nothing by default), and
// `program "PATH"` a program file that starts; every other one fails to.
class ScriptedSystemInfoProgram : public SystemInfoProgram {
public:
    explicit ScriptedSystemInfoProgram(Transcript& transcript) : transcript_(transcript) {}

    void SetFound(std::string program) { found_ = std::move(program); }
    void AddStartable(const std::string& program) { startable_.insert(program); }

    std::string Find() override;
    bool Start(const std::string& program) override;

private:
    Transcript& transcript_;
    std::string found_;
    std::set<std::string> startable_;
};

} // namespace sw::scripted
