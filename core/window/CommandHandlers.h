#pragma once

// Every command handler of the main form, for the toolbar and the event table.
#include "dialogs/DialogCommands.h"
#include "export/ExportRun.h"
#include "linefile/LineFile.h"
#include "window/DrawModeCommands.h"
#include "window/EditCommands.h"
#include "window/FormLifecycle.h"
#include "window/PictureOpening.h"
#include "window/PointerFeedback.h"
#include "window/Viewport.h"
