#include "tools/scenario/ScriptedSystemInfoProgram.h"

#include "common/QuotedText.h"

namespace sw::scripted {

std::string ScriptedSystemInfoProgram::Find() {
    transcript_.Line("sysinfo find -> " + (found_.empty() ? "none" : QuoteText(found_)));
    return found_;
}

bool ScriptedSystemInfoProgram::Start(const std::string& program) {
    const bool started = startable_.count(program) != 0;
    transcript_.Line("start " + QuoteText(program) + " -> " + (started ? "started" : "failed"));
    return started;
}

} // namespace sw::scripted
