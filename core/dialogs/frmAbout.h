#pragma once

#include <string>

namespace sw {

struct Ports;

// The maker's web presence, behind the logo and the forum link.
inline constexpr const char* kMakerHomePage = "https://corvane-studio.example/";
inline constexpr const char* kMakerForums = "https://corvane-studio.example/forums/";

// The logic of the about window: its texts, its links and the button that
// starts the desktop's system-information program.
class frmAbout {
public:
    static constexpr const char* kLogoToolTip = "Click to Visit The Corvane-Studio";
    static constexpr const char* kForumsCaption = "The Corvane-Studio Support Forums";
    static constexpr const char* kSysInfoCaption = "&System Info...";
    static constexpr const char* kDisclaimer =
        "Warning: It's been recommended that I put a disclaimer in my software... the stuff I "
        "write is by NO means harmful... but if something doesn't work right on your machine "
        "after installing this... It wasn't Me!  ;-)";

    explicit frmAbout(Ports& ports) : ports_(ports) {}

    // Set when the form loads.
    std::string Caption;
    std::string lblVersion;
    std::string lblDescription;

    void Form_Load();
    void cmdOK_Click();
    void cmdSysInfo_Click();
    void imgLogo_Click();
    void lblForums_Click();

    // Starts the system-information program, or says that there is none.
    void StartSysInfo();

    bool Unloaded() const { return unloaded_; }

private:
    std::string findSysInfoProgram();
    Ports& ports_;
    bool unloaded_ = false;
};

} // namespace sw
