#include "tools/scenario/WindowScriptCommands.h"

#include "tools/scenario/ScenarioRunner.h"
#include "tools/scenario/ScriptTokens.h"
#include "window/Viewport.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

namespace sw::scripted {
namespace {

using Words = ScenarioRunner::Words;

float twips(const std::string& text) {
    return static_cast<float>(WholeNumber(text));
}

ScriptedScrollBar& barNamed(ScenarioRunner& r, const std::string& name) {
    if (name == "h") {
        return r.Ports().form.HScroll();
    }
    if (name == "v") {
        return r.Ports().form.VScroll();
    }
    throw ScriptError("a bar is h or v, not \"" + name + "\"");
}

std::string place(float left, float top) {
    return FormatSingle(left) + "," + FormatSingle(top);
}

std::string size(float width, float height) {
    return FormatSingle(width) + "x" + FormatSingle(height);
}

std::string barLine(const ScriptedScrollBar& bar) {
    return "  " + bar.Name() + " " + place(bar.Left(), bar.Top()) + " " +
           size(bar.Width(), bar.Height()) + " Visible=" + FlagText(bar.Visible()) +
           " Min=" + std::to_string(bar.Min()) + " Max=" + std::to_string(bar.Max()) +
           " SmallChange=" + std::to_string(bar.SmallChange()) +
           " LargeChange=" + std::to_string(bar.LargeChange()) +
           " Value=" + std::to_string(bar.Value());
}

// One line for each of the form and its placed controls, in this order.
std::vector<std::pair<std::string, std::string>> layoutLines(ScenarioRunner& r) {
    ScriptedForm& form = r.Ports().form;
    const TwipRect bounds = form.Bounds();
    const ScriptedPictureBox& pic = r.Ports().picActual;
    return {
        {"frmSlicewright", "  frmSlicewright " + place(bounds.Left, bounds.Top) + " " +
                               size(bounds.Width, bounds.Height) +
                               " WindowState=" + std::to_string(form.WindowState())},
        {"picActual",
         "  picActual " + place(pic.Left(), pic.Top()) + " " + size(pic.Width(), pic.Height())},
        {"lblMousePos", "  lblMousePos " + place(form.MousePos().Left(), form.MousePos().Top())},
        {"vscroll", barLine(form.VScroll())},
        {"hscroll", barLine(form.HScroll())},
        {"picResize", "  picResize " + place(form.Corner().Left(), form.Corner().Top()) +
                          " Visible=" + FlagText(form.Corner().Visible())}};
}

std::string layoutNames(const std::vector<std::pair<std::string, std::string>>& lines) {
    std::string names;
    for (const auto& line : lines) {
        names += (names.empty() ? "" : ", ") + line.first;
    }
    return names;
}

// "layout" prints every line; "layout vscroll hscroll" only those, in the
// order the script names them, so that a scenario shows the places it is about.
void printLayout(ScenarioRunner& r, const Words& w) {
    const auto lines = layoutLines(r);
    if (w.size() == 1) {
        for (const auto& line : lines) {
            r.Print(line.second);
        }
        return;
    }
    for (auto name = w.begin() + 1; name != w.end(); ++name) {
        const auto line = std::find_if(lines.begin(), lines.end(),
                                       [&name](const auto& named) { return named.first == *name; });
        if (line == lines.end()) {
            throw ScriptError("layout shows " + layoutNames(lines) + "; not \"" + *name + "\"");
        }
        r.Print(line->second);
    }
}

void showChatter(ScenarioRunner& r, const Words& w) {
    ExpectWords(w, 2, "chatter off|form|on");
    if (w[1] == "off") {
        r.Ports().transcript.ShowChatter(Transcript::Shown::None);
    } else if (w[1] == "form") {
        r.Ports().transcript.ShowChatter(Transcript::Shown::FormOnly);
    } else if (w[1] == "on") {
        r.Ports().transcript.ShowChatter(Transcript::Shown::All);
    } else {
        throw ScriptError("chatter is off, form or on, not \"" + w[1] + "\"");
    }
}

// What the scripted form and its bars raise goes to the real handlers.
void wireEvents(ScenarioRunner& runner) {
    Session& session = runner.CurrentSession();
    ScriptedForm& form = runner.Ports().form;
    form.onResize = [&session] { Form_Resize(session); };
    form.HScroll().onChange = [&session] { hscroll_Change(session); };
    form.HScroll().onScroll = [&session] { hscroll_Scroll(session); };
    form.VScroll().onChange = [&session] { vscroll_Change(session); };
    form.VScroll().onScroll = [&session] { vscroll_Scroll(session); };
}

} // namespace

void AddWindowCommands(ScenarioRunner& runner) {
    wireEvents(runner);
    runner.AddCommand("screen", [](ScenarioRunner& r, const Words& w) {
        ExpectWords(w, 3, "screen WIDTH HEIGHT");
        r.Ports().form.SetScreen(twips(w[1]), twips(w[2]));
    });
    runner.AddCommand("resize", [](ScenarioRunner& r, const Words& w) {
        ExpectWords(w, 3, "resize WIDTH HEIGHT");
        r.Ports().form.UserResize(twips(w[1]), twips(w[2]));
    });
    runner.AddCommand("move", [](ScenarioRunner& r, const Words& w) {
        ExpectWords(w, 3, "move LEFT TOP");
        r.Ports().form.UserMove(twips(w[1]), twips(w[2]));
    });
    runner.AddCommand("windowstate", [](ScenarioRunner& r, const Words& w) {
        ExpectWords(w, 2, "windowstate 0|1|2");
        r.Ports().form.UserWindowState(WholeNumber(w[1]));
    });
    runner.AddCommand("scroll", [](ScenarioRunner& r, const Words& w) {
        ExpectWords(w, 3, "scroll h|v VALUE");
        barNamed(r, w[1]).UserScroll(WholeNumber(w[2]));
    });
    runner.AddCommand("drag", [](ScenarioRunner& r, const Words& w) {
        if (w.size() < 3) {
            throw ScriptError("usage: drag h|v VALUE...");
        }
        std::vector<i32> values;
        for (auto word = w.begin() + 2; word != w.end(); ++word) {
            values.push_back(WholeNumber(*word));
        }
        barNamed(r, w[1]).UserDrag(values);
    });
    runner.AddCommand("layout", printLayout);
    runner.AddCommand("chatter", showChatter);
}

} // namespace sw::scripted
