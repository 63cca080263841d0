#pragma once

#include "dialogs/RichTextBox.h"

namespace sw {

class Clipboard;

// The HTML table on the screen, for copying. The caller fills rtxtHTML
// before the showing; the text goes when the form closes.
class frmHTML {
public:
    static constexpr const char* kTitle = "Exported HTML";

    explicit frmHTML(Clipboard& clipboard) : clipboard_(clipboard) {}

    RichTextBox rtxtHTML;

    void Form_Load() { loaded_ = true; }
    // Copy to Clipboard, also the Esc key: copies the whole text and stays open.
    void cmdClip_Click();
    // Close, also the close box.
    void cmdClose_Click();

    bool Loaded() const { return loaded_; }

private:
    Clipboard& clipboard_;
    bool loaded_ = false;
};

} // namespace sw
