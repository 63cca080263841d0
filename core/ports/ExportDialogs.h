#pragma once

#include <string>

namespace sw {

class frmFinish;
class frmHTML;

// The dialogs of an export: its progress while the sections are written, and
// the two modal dialogs that close it. ShowFinish and ShowHtml show the form
// and return once it has closed; the window (or a script) feeds the user's
// clicks into the logic object meanwhile.
class ExportDialogs {
public:
    virtual ~ExportDialogs() = default;
    virtual void ShowFinish(frmFinish& form) = 0;
    virtual void ShowHtml(frmHTML& form) = 0;

    // The writing of `total` sections begins. A window shows its progress
    // only once the writing has taken about half a second; until then the
    // hourglass is all there is.
    virtual void BeginProgress(int total) = 0;
    // `done` of `total` sections are through, the last of them `fileName`.
    // False once the user has asked to stop.
    virtual bool AdvanceProgress(int done, int total, const std::string& fileName) = 0;
    // The writing is over, however it ended.
    virtual void EndProgress() = 0;
};

} // namespace sw
