#pragma once

#include "ports/Controls.h"
#include "tools/scenario/Transcript.h"

#include <map>

namespace sw::scripted {

// Menu and control state kept in memory, every change logged.
class ScriptedControls : public Controls {
public:
    explicit ScriptedControls(Transcript& transcript);

    void SetEnabled(Item item, bool enabled) override;
    void SetChecked(Item item, bool checked) override;
    bool Checked(Item item) const override;
    void SetVisible(Item item, bool visible) override;
    void SetCaption(Item item, const std::string& caption) override;
    void SetToolbarButtonEnabled(int index, bool enabled) override;

private:
    void log(const std::string& property, const std::string& value);
    Transcript& transcript_;
    std::map<Item, bool> checked_;
};

} // namespace sw::scripted
