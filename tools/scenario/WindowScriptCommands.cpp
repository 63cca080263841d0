#include "tools/scenario/WindowScriptCommands.h"

#include "tools/scenario/ScenarioRunner.h"
#include "tools/scenario/ScriptTokens.h"
#include "window/Viewport.h"

#include <cstdlib>

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

void printLayout(ScenarioRunner& r, const Words& w) {
    ExpectWords(w, 1, "layout");
    ScriptedForm& form = r.Ports().form;
    const TwipRect bounds = form.Bounds();
    const ScriptedPictureBox& pic = r.Ports().picActual;
    r.Print("  frmSlicewright " + place(bounds.Left, bounds.Top) + " " +
            size(bounds.Width, bounds.Height) +
            " WindowState=" + std::to_string(form.WindowState()));
    r.Print("  picActual " + place(pic.Left(), pic.Top()) + " " + size(pic.Width(), pic.Height()));
    r.Print("  lblMousePos " + place(form.MousePos().Left(), form.MousePos().Top()));
    r.Print(barLine(form.VScroll()));
    r.Print(barLine(form.HScroll()));
    r.Print("  picResize " + place(form.Corner().Left(), form.Corner().Top()) +
            " Visible=" + FlagText(form.Corner().Visible()));
}

void showChatter(ScenarioRunner& r, const Words& w) {
    ExpectWords(w, 2, "chatter off|on");
    if (w[1] != "off" && w[1] != "on") {
        throw ScriptError("chatter is off or on, not \"" + w[1] + "\"");
    }
    r.Ports().transcript.ShowChatter(w[1] == "on");
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
