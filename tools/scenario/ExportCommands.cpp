#include "tools/scenario/ExportCommands.h"

#include "common/AtomicFile.h"
#include "common/QuotedText.h"
#include "common/Text.h"
#include "tools/scenario/ScenarioRunner.h"
#include "tools/scenario/ScriptTokens.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>

namespace sw::scripted {
namespace {

namespace fs = std::filesystem;

void makeFolder(ScenarioRunner&, const ScenarioRunner::Words& w) {
    ExpectWords(w, 2, "folder \"path\"");
    std::error_code error;
    fs::create_directories(w[1], error);
    if (error) {
        throw ScriptError("cannot make the folder " + w[1] + ": " + error.message());
    }
}

void makeFile(ScenarioRunner&, const ScenarioRunner::Words& w) {
    ExpectWords(w, 3, "file \"path\" \"text\"");
    std::ofstream out(w[1], std::ios::binary | std::ios::trunc);
    out << w[2];
    if (!out) {
        throw ScriptError("cannot make the file " + w[1]);
    }
}

// Stands a copy of a file where the script wants it, for a picture the
// script later removes or replaces while the program holds it open.
void copyFile(ScenarioRunner&, const ScenarioRunner::Words& w) {
    ExpectWords(w, 3, "copy \"from\" \"to\"");
    std::error_code error;
    fs::copy_file(w[1], w[2], fs::copy_options::overwrite_existing, error);
    if (error) {
        throw ScriptError("cannot copy " + w[1] + " to " + w[2] + ": " + error.message());
    }
}

void removeFile(ScenarioRunner&, const ScenarioRunner::Words& w) {
    ExpectWords(w, 2, "remove \"path\"");
    std::error_code error;
    if (!fs::remove(w[1], error)) {
        throw ScriptError("cannot remove " + w[1]);
    }
}

void vanishAfterTest(ScenarioRunner& runner, const ScenarioRunner::Words& w) {
    ExpectWords(w, 2, "vanish \"path\"");
    runner.Ports().files.VanishAfterTest(w[1]);
}

void showFile(ScenarioRunner& runner, const ScenarioRunner::Words& w) {
    ExpectWords(w, 2, "show \"path\"");
    std::string contents;
    std::string reason;
    if (!ReadWholeFile(w[1], contents, reason)) {
        runner.Print("file " + QuoteText(w[1]) + " cannot be read: " + reason);
        return;
    }
    runner.Print("file " + QuoteText(w[1]) + " = " + QuoteText(contents));
}

void listFiles(ScenarioRunner& runner, const ScenarioRunner::Words& w) {
    ExpectWords(w, 2, "files \"folder\"");
    std::error_code error;
    fs::directory_iterator folder(w[1], error);
    if (error) {
        throw ScriptError("cannot list the folder " + w[1] + ": " + error.message());
    }
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : folder) {
        if (entry.is_regular_file()) {
            names.push_back(entry.path().filename().string());
        }
    }
    std::sort(names.begin(), names.end());
    std::string line = "files " + QuoteText(w[1]) + ":";
    for (const std::string& name : names) {
        line += " " + name;
    }
    runner.Print(line);
}

// Decodes a written file through the picture loader (which logs its size).
// A lossless file also shows its top-left pixel; a JPG's pixels depend on
// the codec's build, so a transcript does not hold them.
void showImage(ScenarioRunner& runner, const ScenarioRunner::Words& w) {
    ExpectWords(w, 2, "image \"path\"");
    const LoadedPicture loaded = runner.Ports().loader.LoadPicture(w[1]);
    if (loaded.ok() && !EndsWith(UpperCase(w[1]), ".JPG")) {
        char pixel[16];
        std::snprintf(pixel, sizeof pixel, "0x%06X", loaded.picture.PixelAt(0, 0));
        runner.Print("  top-left pixel " + std::string(pixel));
    }
}

// "progress show" prints a line for each section of every later export;
// "progress cancel N" presses Cancel in the next export once N sections are through.
void progress(ScenarioRunner& runner, const ScenarioRunner::Words& w) {
    ScriptedExportDialogs& dialogs = runner.Ports().exportDialogs;
    if (w.size() == 2 && w[1] == "show") {
        dialogs.showProgress = true;
        return;
    }
    if (w.size() == 3 && w[1] == "cancel" && WholeNumber(w[2]) > 0) {
        dialogs.cancelAt = WholeNumber(w[2]);
        return;
    }
    throw ScriptError("usage: progress show | progress cancel N");
}

} // namespace

void AddExportCommands(ScenarioRunner& runner) {
    runner.AddCommand("folder", makeFolder);
    runner.AddCommand("file", makeFile);
    runner.AddCommand("copy", copyFile);
    runner.AddCommand("remove", removeFile);
    runner.AddCommand("vanish", vanishAfterTest);
    runner.AddCommand("show", showFile);
    runner.AddCommand("files", listFiles);
    runner.AddCommand("image", showImage);
    runner.AddCommand("progress", progress);
}

} // namespace sw::scripted
