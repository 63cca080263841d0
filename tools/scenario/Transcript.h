#pragma once

#include <ostream>
#include <string>
#include <utility>

namespace sw::scripted {

// Where the scripted ports write one line for every call the logic makes.
//
// Window chatter is what the window's layout writes when the form changes
// size or place: the form's own sizes and places, Form_Resize with all it
// does, the bars and the corner piece. A script about something else leaves
// it out ("chatter off"), so that its transcript shows what it tests and a
// change of the layout touches only the scripts about the window. Chatter
// that is left out is still checked (FailAt), so the logic runs the same.
//
// A script about the window's size may want the calls on the form itself
// alone ("chatter form"): the sizes, places and states the logic gives the
// form and its refreshes, wherever they happen, without the bars and the
// corner that each resize lays out again.
class Transcript {
public:
    explicit Transcript(std::ostream& out) : out_(out) {}
    void Line(const std::string& text);
    // A call of a port that writes no line: it may fail all the same.
    void Check(const std::string& text);

    // One line of window chatter.
    void Chatter(const std::string& text);
    // One call on the form itself (its size, place, state or a refresh):
    // window chatter that "chatter form" still shows.
    void FormChatter(const std::string& text);
    // Every line written while one of these lives is window chatter,
    // whichever port writes it.
    class ChatterScope {
    public:
        explicit ChatterScope(Transcript& transcript) : transcript_(transcript) {
            ++transcript_.chatterDepth_;
        }
        ~ChatterScope() { --transcript_.chatterDepth_; }
        ChatterScope(const ChatterScope&) = delete;
        ChatterScope& operator=(const ChatterScope&) = delete;

    private:
        Transcript& transcript_;
    };
    // How much of the chatter is shown; all of it unless a script says otherwise.
    enum class Shown { None, FormOnly, All };
    void ShowChatter(Shown shown) { shown_ = shown; }

    // The next call of a port whose line begins with `prefix` throws, as a
    // port of the window layer may (out of memory, a broken invariant): for
    // the tests of what happens at the event boundary.
    void FailAt(std::string prefix) { failAt_ = std::move(prefix); }

private:
    std::ostream& out_;
    std::string failAt_;
    int chatterDepth_ = 0;
    Shown shown_ = Shown::All;
};

std::string FlagText(bool value);

} // namespace sw::scripted
