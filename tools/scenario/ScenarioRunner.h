#pragma once

#include "session/Session.h"
#include "tools/scenario/ScriptedPorts.h"

#include <functional>
#include <istream>
#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace sw::scripted {

// Runs a scenario script against the real logic through the scripted ports
// and writes the transcript.
class ScenarioRunner {
public:
    using Words = std::vector<std::string>;
    using Command = std::function<void(ScenarioRunner&, const Words&)>;

    ScenarioRunner(std::ostream& transcript, PictureLoader* realLoader);

    // Runs every line; a ScriptError names the line that failed.
    void Run(std::istream& script);
    void RunLine(const std::string& line);
    // Throws when answers were left unused.
    void Finish();

    ScriptedPorts& Ports() { return ports_; }
    Session& CurrentSession() { return session_; }
    void Print(const std::string& line) { ports_.transcript.Line(line); }

    // A further script command, for the commands that dialogs add.
    void AddCommand(const std::string& name, Command command) { commands_[name] = command; }

private:
    void addBuiltInCommands();
    ScriptedPorts ports_;
    Session session_;
    std::map<std::string, Command> commands_;
};

} // namespace sw::scripted
