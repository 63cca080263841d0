#include "tools/scenario/DialogScriptCommands.h"

#include "common/AtomicFile.h"
#include "common/QuotedText.h"
#include "tools/scenario/ScenarioRunner.h"
#include "tools/scenario/ScriptTokens.h"
#include "tools/scenario/SessionStateDump.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace sw::scripted {
namespace {

using Words = ScenarioRunner::Words;

std::string littleEndianBytes(const std::string& number) {
    char* end = nullptr;
    const unsigned long value = std::strtoul(number.c_str(), &end, 0);
    if (number.empty() || *end != '\0' || value > 0xFFFFFFFFul) {
        throw ScriptError("not a 32-bit number: \"" + number + "\"");
    }
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8) {
        bytes += static_cast<char>((value >> shift) & 0xFF);
    }
    return bytes;
}

// A text value is stored as the registry stores it: with its end mark.
RegistryValue registryValue(const std::string& type, const std::string& data) {
    if (type == "sz") {
        return {kRegistryText, data + '\0'};
    }
    if (type == "dword") {
        return {kRegistryDword, littleEndianBytes(data)};
    }
    throw ScriptError("unknown registry type \"" + type + "\" (sz or dword)");
}

void presetRegistry(ScenarioRunner& r, const Words& w) {
    ExpectWords(w, 5, "registry \"ROOT/KEY\" \"NAME\" sz|dword VALUE");
    r.Ports().registry.Preset(w[1], w[2], registryValue(w[3], w[4]));
}

void writeFile(ScenarioRunner&, const Words& w) {
    ExpectWords(w, 3, "file \"PATH\" \"BYTES\"");
    std::ofstream out(w[1], std::ios::binary | std::ios::trunc);
    out << w[2];
    if (!out) {
        throw ScriptError("cannot write " + w[1]);
    }
}

void printBytes(ScenarioRunner& r, const Words& w) {
    ExpectWords(w, 2, "bytes \"PATH\"");
    std::string contents;
    std::string reason;
    if (!ReadWholeFile(w[1], contents, reason)) {
        r.Print("bytes " + QuoteText(w[1]) + " -> missing");
        return;
    }
    std::string line = "bytes " + QuoteText(w[1]) + " (" + std::to_string(contents.size()) + ")";
    for (const char byte : contents) {
        char hex[4];
        std::snprintf(hex, sizeof hex, " %02X",
                      static_cast<unsigned>(static_cast<unsigned char>(byte)));
        line += hex;
    }
    r.Print(line);
}

// Only the named fields of the session state, in the order of the dump.
void printFields(ScenarioRunner& r, const Words& w) {
    if (w.size() < 2) {
        throw ScriptError("usage: fields NAME...");
    }
    std::istringstream dump(DumpSessionState(r.CurrentSession().state));
    for (std::string line; std::getline(dump, line);) {
        const std::string name = line.substr(0, line.find('='));
        if (std::find(w.begin() + 1, w.end(), name) != w.end()) {
            r.Print("  " + line);
        }
    }
}

} // namespace

void AddDialogCommands(ScenarioRunner& runner) {
    runner.AddCommand("registry", presetRegistry);
    runner.AddCommand("sysinfo", [](ScenarioRunner& r, const Words& w) {
        ExpectWords(w, 2, "sysinfo \"PATH\"");
        r.Ports().sysInfo.SetFound(w[1]);
    });
    runner.AddCommand("program", [](ScenarioRunner& r, const Words& w) {
        ExpectWords(w, 2, "program \"PATH\"");
        r.Ports().sysInfo.AddStartable(w[1]);
    });
    runner.AddCommand("folder", [](ScenarioRunner&, const Words& w) {
        ExpectWords(w, 2, "folder \"PATH\"");
        std::filesystem::create_directories(w[1]);
    });
    runner.AddCommand("file", writeFile);
    runner.AddCommand("bytes", printBytes);
    runner.AddCommand("fields", printFields);
}

} // namespace sw::scripted
