#pragma once

#include "ports/Ports.h"
#include "tools/scenario/Answers.h"
#include "tools/scenario/ScriptedAboutWindow.h"
#include "tools/scenario/ScriptedBoxes.h"
#include "tools/scenario/ScriptedClipboard.h"
#include "tools/scenario/ScriptedControls.h"
#include "tools/scenario/ScriptedExportDialogs.h"
#include "tools/scenario/ScriptedFileDialog.h"
#include "tools/scenario/ScriptedFileSystem.h"
#include "tools/scenario/ScriptedForm.h"
#include "tools/scenario/ScriptedPictureBox.h"
#include "tools/scenario/ScriptedPictureLoader.h"
#include "tools/scenario/ScriptedQualityDialog.h"
#include "tools/scenario/ScriptedRegistry.h"
#include "tools/scenario/ScriptedSettingsStore.h"
#include "tools/scenario/ScriptedShell.h"
#include "tools/scenario/ScriptedSystemInfoProgram.h"
#include "tools/scenario/ScriptedUserFolders.h"

namespace sw::scripted {

inline constexpr const char* kScriptedAppPath = "/opt/slicewright";

// One scripted implementation of every port, writing to one transcript and
// answering from one set of answers.
class ScriptedPorts {
public:
    ScriptedPorts(std::ostream& out, PictureLoader* realLoader);

    // These ports with another form in place of the scripted one, for tests
    // of forms that behave unlike the usual window.
    Ports WithForm(FormWindow& other) const;

    Transcript transcript;
    Answers answers;
    ScriptedBoxes boxes{transcript, answers};
    ScriptedFileDialog dlgPic{transcript, answers};
    ScriptedPictureBox picActual{transcript};
    ScriptedPictureLoader loader;
    ScriptedControls controls{transcript};
    ScriptedForm form{transcript, picActual};
    ScriptedSettingsStore settings{transcript};
    ScriptedFileSystem files{transcript};
    ScriptedQualityDialog jpgCompDialog{transcript, answers};
    ScriptedAboutWindow aboutWindow{transcript};
    ScriptedShell shell{transcript};
    ScriptedRegistry registry{transcript};
    ScriptedSystemInfoProgram sysInfo{transcript};
    ScriptedExportDialogs exportDialogs{transcript, answers};
    ScriptedClipboard clipboard{transcript};
    ScriptedUserFolders userFolders{transcript, kScriptedAppPath};
    Ports ports;
};

} // namespace sw::scripted
