#include "tools/scenario/ScriptedRegistry.h"

#include "common/QuotedText.h"
#include "tools/scenario/QuotedControls.h"

#include <algorithm>
#include <cstdio>

namespace sw::scripted {
namespace {

std::string rootName(RegistryRoot root) {
    if (root == kLocalMachine) {
        return "HKLM";
    }
    char name[16];
    std::snprintf(name, sizeof name, "0x%08X", static_cast<unsigned>(root));
    return name;
}

std::string describe(const RegistryValue& value) {
    if (value.type == kRegistryText) {
        return "sz " + QuoteWithControls(value.bytes);
    }
    if (value.type == kRegistryDword && value.bytes.size() == 4) {
        unsigned number = 0;
        for (int i = 3; i >= 0; --i) {
            number =
                number << 8 | static_cast<unsigned char>(value.bytes[static_cast<std::size_t>(i)]);
        }
        char shown[24];
        std::snprintf(shown, sizeof shown, "dword 0x%08X", number);
        return shown;
    }
    return "type " + std::to_string(value.type) + " of " + std::to_string(value.bytes.size()) +
           " bytes";
}

} // namespace

void ScriptedRegistry::Preset(const std::string& key, const std::string& valueName,
                              RegistryValue value) {
    values_[{key, valueName}] = std::move(value);
}

bool ScriptedRegistry::QueryValue(RegistryRoot root, const std::string& keyName,
                                  const std::string& valueName, RegistryValue& value) {
    std::string key = rootName(root) + "/" + keyName;
    std::replace(key.begin(), key.end(), '\\', '/');
    const auto found = values_.find({key, valueName});
    const std::string where = "registry " + QuoteText(key) + " " + QuoteText(valueName);
    if (found == values_.end()) {
        transcript_.Line(where + " -> missing");
        return false;
    }
    value = found->second;
    transcript_.Line(where + " -> " + describe(value));
    return true;
}

} // namespace sw::scripted
