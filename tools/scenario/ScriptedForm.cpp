#include "tools/scenario/ScriptedForm.h"

namespace sw::scripted {

void ScriptedForm::SetMousePointer(MousePointer pointer) {
    transcript_.Line(pointer == MousePointer::Hourglass ? "form pointer=Hourglass"
                                                        : "form pointer=Default");
}

void ScriptedForm::Unload() {
    transcript_.Line("form unload");
    unloaded_ = true;
    if (onUnload) {
        onUnload();
    }
}

} // namespace sw::scripted
