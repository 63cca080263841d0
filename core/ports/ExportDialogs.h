#pragma once

namespace sw {

class frmFinish;
class frmHTML;

// The two modal dialogs that close an export. Each call shows the form and
// returns once it has closed; the window (or a script) feeds the user's
// clicks into the logic object meanwhile.
class ExportDialogs {
public:
    virtual ~ExportDialogs() = default;
    virtual void ShowFinish(frmFinish& form) = 0;
    virtual void ShowHtml(frmHTML& form) = 0;
};

} // namespace sw
