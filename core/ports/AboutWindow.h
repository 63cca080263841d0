#pragma once

#include <memory>

namespace sw {

class frmAbout;

// The about window, shown beside the main window without waiting. The window
// layer keeps the form while it is on the screen and raises its events.
class AboutWindow {
public:
    virtual ~AboutWindow() = default;
    // The form on the screen now, or nullptr.
    virtual frmAbout* OpenForm() = 0;
    // Puts a freshly loaded form on the screen and returns at once.
    virtual void Show(std::unique_ptr<frmAbout> form) = 0;
    // Brings the form on the screen to the front.
    virtual void BringToFront() = 0;
    // Takes the form off the screen and lets it go.
    virtual void Close() = 0;
};

} // namespace sw
