#include "dialogs/frmAbout.h"

#include "dialogs/KeyValue.h"
#include "ports/Ports.h"

namespace sw {
namespace {

constexpr int kVersionMajor = 2;
constexpr int kVersionMinor = 5;
constexpr int kVersionRevision = 0;

constexpr const char* kDescriptionPieces[] = {
    "Slicewright is a small little utility that I created a while back ",
    "because I got so frustrated with the other programs I found out there ",
    "being either mass overkill for a simple problem or just flat out not ",
    "working.  Enjoy!",
};

constexpr const char* kSysInfoKey = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
constexpr const char* kSysInfoValue = "PATH";
constexpr const char* kSysInfoFolderKey = "SOFTWARE\\Microsoft\\Shared Tools Location";
constexpr const char* kSysInfoFolderValue = "MSINFO";
constexpr const char* kSysInfoFile = "/MSINFO32.EXE";

} // namespace

void frmAbout::Form_Load() {
    Caption = "About " + ports_.app.Title;
    lblVersion = "Version " + std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) +
                 "." + std::to_string(kVersionRevision);
    lblDescription.clear();
    for (const char* piece : kDescriptionPieces) {
        lblDescription += piece;
    }
}

void frmAbout::cmdOK_Click() {
    unloaded_ = true;
}
void frmAbout::cmdSysInfo_Click() {
    StartSysInfo();
}
void frmAbout::imgLogo_Click() {
    ports_.shell.OpenDocument(kMakerHomePage);
}
void frmAbout::lblForums_Click() {
    ports_.shell.OpenDocument(kMakerForums);
}

// The registry is looked at first: where it names the program, that one
// runs. The desktop's own search comes after it.
std::string frmAbout::findSysInfoProgram() {
    std::string program;
    if (GetKeyValue(ports_.registry, kLocalMachine, kSysInfoKey, kSysInfoValue, program)) {
        return program;
    }
    std::string folder;
    if (GetKeyValue(ports_.registry, kLocalMachine, kSysInfoFolderKey, kSysInfoFolderValue,
                    folder)) {
        program = folder + kSysInfoFile;
        return ports_.files.FileExists(program) ? program : std::string();
    }
    return ports_.sysInfo.Find();
}

void frmAbout::StartSysInfo() {
    const std::string program = findSysInfoProgram();
    if (!program.empty() && ports_.sysInfo.Start(program)) {
        return;
    }
    ports_.boxes.Show({ports_.app.Title, "System Information Is Unavailable At This Time",
                       BoxIcon::None, BoxButtons::OK, BoxResult::OK});
}

} // namespace sw
