#pragma once

namespace sw {

class frmJPGComp;

// Shows the JPEG quality dialog modally: the window (or the script) types
// keys and presses buttons on the form's logic until the form has closed.
class QualityDialog {
public:
    virtual ~QualityDialog() = default;
    virtual void ShowJpgComp(frmJPGComp& form) = 0;
};

} // namespace sw
