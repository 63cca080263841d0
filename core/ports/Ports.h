#pragma once

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
#include "ports/SettingsStore.h"

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
};

} // namespace sw
