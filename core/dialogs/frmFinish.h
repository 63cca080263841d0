#pragma once

#include <string>

namespace sw {

// The dialog that closes a finished cut and asks about HTML: "N" none,
// "S" on the screen, "F" in a file. Its fields keep their values after it
// has closed, so that the caller reads the choice back.
class frmFinish {
public:
    static constexpr const char* kTitle = "Picture Dissection";

    std::string OutputType;
    std::string StatusCaption;

    // The controls as the window shows them; optNo is selected when the form is created.
    std::string lblStatus = "Status";
    bool optScreen = false;
    bool optFile = false;
    bool optNo = true;

    void Form_Load();
    void optScreen_Click();
    void optFile_Click();
    void optNo_Click();
    // Continue, the Enter key and the close box all end the dialog this way.
    void cmdContinue_Click();

    bool Loaded() const { return loaded_; }

private:
    void select(bool& option, const char* letter);
    bool loaded_ = false;
};

} // namespace sw
