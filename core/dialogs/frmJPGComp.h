#pragma once

#include "common/Types.h"
#include "dialogs/TextBox.h"

namespace sw {

struct Session;

// The logic of the JPEG quality dialog: one text box that takes digits only,
// and three buttons. Only OK with a value of 1 to 100, and Reset, change the
// session's quality.
class frmJPGComp {
public:
    static constexpr const char* kCaption = "JPEG Compression";
    static constexpr const char* kPrompt = "Set JPG Compression/Quality";

    explicit frmJPGComp(Session& session) : session_(session) {}

    TextBox txtJPGComp;

    void Form_Load();
    // Replaces the key by what the box may take: 0 swallows it.
    void txtJPGComp_KeyPress(i16& KeyAscii);
    void cmdOK_Click();
    void cmdCancel_Click();
    void cmdReset_Click();

    // A key as the window delivers it: filtered, then typed into the box.
    void PressKey(i16 keyAscii);
    bool Closed() const { return closed_; }

private:
    Session& session_;
    bool closed_ = false;
};

} // namespace sw
