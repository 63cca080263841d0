#pragma once

#include "ports/AboutWindow.h"
#include "ports/AppInfo.h"
#include "ports/Clipboard.h"
#include "ports/Controls.h"
#include "ports/ExportDialogs.h"
#include "ports/FileDialog.h"
#include "ports/FileSystem.h"
#include "ports/FormWindow.h"
#include "ports/MessageBoxes.h"
#include "ports/PictureBox.h"
#include "ports/PictureLoader.h"
#include "ports/QualityDialog.h"
#include "ports/Registry.h"
#include "ports/SettingsStore.h"
#include "ports/Shell.h"
#include "ports/SystemInfoProgram.h"
#include "ports/UserFolders.h"

namespace sw {

// Everything through which the logic reaches the window, the dialogs, the
// settings store and the file system. The window layer and the scripted
// test double each provide one set.
struct Ports {
    MessageBoxes& boxes;
    FileDialog& dlgPic;
    PictureBox& picActual;
    PictureLoader& loader;
    Controls& controls;
    FormWindow& form;
    SettingsStore& settings;
    FileSystem& files;
    ExportDialogs& exportDialogs;
    Clipboard& clipboard;
    AppInfo app;
    // The dialogs and what they reach beyond the program.
    QualityDialog& jpgCompDialog;
    AboutWindow& aboutWindow;
    Shell& shell;
    Registry& registry;
    SystemInfoProgram& sysInfo;
    // Where a first run starts its dialogs.
    UserFolders& userFolders;
};

} // namespace sw
