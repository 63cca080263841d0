#include "tools/scenario/ScriptedControls.h"

#include "common/QuotedText.h"
#include "window/MenuTree.h"

namespace sw::scripted {

std::string FlagText(bool value) {
    return value ? "True" : "False";
}

ScriptedControls::ScriptedControls(Transcript& transcript) : transcript_(transcript) {
    // The check marks of the stored layout, as the menu tree has them.
    for (const MenuEntry& entry : MenuTree()) {
        if (entry.item && entry.checked) {
            checked_[*entry.item] = true;
        }
    }
}

void ScriptedControls::log(const std::string& property, const std::string& value) {
    transcript_.Line("set " + property + "=" + value);
}

void ScriptedControls::SetEnabled(Item item, bool enabled) {
    log(std::string(ItemName(item)) + ".Enabled", FlagText(enabled));
}

void ScriptedControls::SetChecked(Item item, bool checked) {
    checked_[item] = checked;
    log(std::string(ItemName(item)) + ".Checked", FlagText(checked));
}

bool ScriptedControls::Checked(Item item) const {
    const auto found = checked_.find(item);
    const bool checked = found != checked_.end() && found->second;
    transcript_.Line("get " + std::string(ItemName(item)) + ".Checked -> " + FlagText(checked));
    return checked;
}

void ScriptedControls::SetVisible(Item item, bool visible) {
    log(std::string(ItemName(item)) + ".Visible", FlagText(visible));
}

void ScriptedControls::SetCaption(Item item, const std::string& caption) {
    log(std::string(ItemName(item)) + ".Caption", QuoteText(caption));
}

void ScriptedControls::SetToolbarButtonEnabled(int index, bool enabled) {
    log("tlbrMain.Buttons(" + std::to_string(index) + ").Enabled", FlagText(enabled));
}

} // namespace sw::scripted
