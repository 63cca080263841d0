#include "tools/scenario/ScenarioRunner.h"

#include "tools/scenario/DialogScriptCommands.h"
#include "tools/scenario/EventTable.h"
#include "tools/scenario/ExportCommands.h"
#include "tools/scenario/ScriptTokens.h"
#include "tools/scenario/SessionStateDump.h"
#include "tools/scenario/WindowScriptCommands.h"
#include "window/FormLifecycle.h"

#include <cstdlib>
#include <sstream>

namespace sw::scripted {
namespace {

void raiseEvent(ScenarioRunner& runner, const ScenarioRunner::Words& w) {
    if (w.size() < 2) {
        throw ScriptError("usage: event NAME ARGS...");
    }
    const EventEntry* event = FindEvent(w[1]);
    if (event == nullptr) {
        throw ScriptError("no event handler named " + w[1]);
    }
    const EventArgs args(w.begin() + 2, w.end());
    if (args.size() != event->argCount) {
        throw ScriptError(w[1] + " takes " + std::to_string(event->argCount) + " argument(s)");
    }
    std::string shown = "event " + w[1];
    for (const std::string& arg : args) {
        shown += " " + arg;
    }
    runner.Print(shown);
    event->raise(runner.CurrentSession(), args);
}

void dump(ScenarioRunner& runner, const ScenarioRunner::Words&) {
    std::istringstream fields(DumpSessionState(runner.CurrentSession().state));
    for (std::string line; std::getline(fields, line);) {
        runner.Print("  " + line);
    }
}

} // namespace

ScenarioRunner::ScenarioRunner(std::ostream& transcript, PictureLoader* realLoader)
    : ports_(transcript, realLoader), session_(ports_.ports) {
    ports_.form.onUnload = [this] { Form_Unload(session_); };
    addBuiltInCommands();
    AddDialogCommands(*this);
    AddExportCommands(*this);
    AddWindowCommands(*this);
}

void ScenarioRunner::addBuiltInCommands() {
    AddCommand("store", [](ScenarioRunner& r, const Words& w) {
        ExpectWords(w, 3, "store KEY \"value\"");
        r.Ports().settings.Preset(w[1], w[2]);
    });
    AddCommand("answer", [](ScenarioRunner& r, const Words& w) {
        if (w.size() < 3) {
            throw ScriptError("usage: answer KIND VALUE...");
        }
        r.Ports().answers.Add(w[1], Words(w.begin() + 2, w.end()));
    });
    AddCommand("picture", [](ScenarioRunner& r, const Words& w) {
        ExpectWords(w, 4, "picture \"name\" WIDTH HEIGHT");
        const int width = WholeNumber(w[2]);
        const int height = WholeNumber(w[3]);
        if (width < 1 || height < 1) {
            throw ScriptError("a picture is at least 1 x 1 pixels, not " + w[2] + " x " + w[3]);
        }
        r.Ports().loader.Declare(w[1], Picture::Filled(width, height, 0x00C0C0C0));
    });
    AddCommand("forget", [](ScenarioRunner& r, const Words& w) {
        ExpectWords(w, 2, "forget \"name\"");
        r.Ports().loader.Forget(w[1]);
    });
    AddCommand("fail", [](ScenarioRunner& r, const Words& w) {
        ExpectWords(w, 3, "fail stroke N");
        if (w[1] != "stroke") {
            throw ScriptError("only a stroke can be made to fail");
        }
        r.Ports().picActual.FailStroke(WholeNumber(w[2]));
    });
    AddCommand("apppath", [](ScenarioRunner& r, const Words& w) {
        ExpectWords(w, 2, "apppath \"folder\"");
        r.Ports().ports.app.Path = w[1];
        r.Ports().userFolders.SetPictures(w[1], false);
    });
    AddCommand("pictures", [](ScenarioRunner& r, const Words& w) {
        ExpectWords(w, 2, "pictures \"folder\"");
        r.Ports().userFolders.SetPictures(w[1], true);
    });
    AddCommand("vanished", [](ScenarioRunner& r, const Words& w) {
        ExpectWords(w, 2, "vanished \"folder\"");
        r.Ports().userFolders.Vanish(w[1]);
    });
    AddCommand("start", [](ScenarioRunner& r, const Words& w) {
        ExpectWords(w, 1, "start");
        r.Print("event Form_Load");
        Form_Load(r.CurrentSession());
    });
    AddCommand("event", raiseEvent);
    AddCommand("dump", dump);
}

void ScenarioRunner::RunLine(const std::string& line) {
    const Words words = SplitScriptLine(line);
    if (words.empty()) {
        return;
    }
    const auto command = commands_.find(words[0]);
    if (command == commands_.end()) {
        throw ScriptError("unknown command \"" + words[0] + "\"");
    }
    command->second(*this, words);
}

void ScenarioRunner::Run(std::istream& script) {
    int number = 0;
    for (std::string line; std::getline(script, line);) {
        ++number;
        try {
            RunLine(line);
        } catch (const ScriptError& error) {
            throw ScriptError("line " + std::to_string(number) + ": " + error.what());
        }
    }
    Finish();
}

void ScenarioRunner::Finish() {
    ports_.answers.CheckAllUsed();
}

} // namespace sw::scripted
