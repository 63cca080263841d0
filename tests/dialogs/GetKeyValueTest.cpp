#include "dialogs/KeyValue.h"

#include <gtest/gtest.h>
#include <map>

namespace sw {
namespace {

// A registry of one key's values, answering exactly the bytes it holds.
class OneKeyRegistry : public Registry {
public:
    std::map<std::string, RegistryValue> values;

    bool QueryValue(RegistryRoot root, const std::string& keyName, const std::string& valueName,
                    RegistryValue& value) override {
        const auto found = values.find(valueName);
        if (root != kLocalMachine || keyName != "SOFTWARE\\Tool" || found == values.end()) {
            return false;
        }
        value = found->second;
        return true;
    }
};

struct KeyValueCase {
    const char* name;
    std::string keyValBefore;
    bool found;
    std::string keyValAfter;
};

TEST(GetKeyValue, DecodesTextAndNumbersAndKeepsOtherTypes) {
    OneKeyRegistry registry;
    registry.values["marked"] = {kRegistryText, std::string("abc\0", 4)};
    registry.values["unmarked"] = {kRegistryText, "abc"};
    registry.values["empty"] = {kRegistryText, std::string("\0", 1)};
    registry.values["dword"] = {kRegistryDword, "\x78\x56\x34\x12"};
    registry.values["small"] = {kRegistryDword, std::string("\x01\x00\x0A\x00", 4)};
    registry.values["binary"] = {3, "\x01\x02"};
    registry.values["long"] = {kRegistryText, std::string(1025, 'x')};
    const KeyValueCase cases[] = {
        {"marked", "old", true, "abc"},
        {"unmarked", "old", true, "abc"},
        {"empty", "old", true, ""},
        {"dword", "", true, "&h12345678"},
        // Leading zeros go; the last byte, a 0, is taken for an end mark.
        {"small", "", true, "&hA01"},
        {"dword", "9", true, "&h912345678"},
        {"binary", "kept", true, "kept"},
        {"missing", "old", false, ""},
        {"long", "old", false, ""},
    };
    for (const KeyValueCase& c : cases) {
        std::string keyVal = c.keyValBefore;
        EXPECT_EQ(GetKeyValue(registry, kLocalMachine, "SOFTWARE\\Tool", c.name, keyVal), c.found)
            << c.name;
        EXPECT_EQ(keyVal, c.keyValAfter) << c.name;
    }
    std::string keyVal = "old";
    EXPECT_FALSE(GetKeyValue(registry, kLocalMachine, "SOFTWARE\\Other", "marked", keyVal));
    EXPECT_EQ(keyVal, "");
}

} // namespace
} // namespace sw
