#include "ports/MessageBoxes.h"

namespace sw {

const char* BoxResultName(BoxResult result) {
    switch (result) {
    case BoxResult::OK:
        return "OK";
    case BoxResult::Cancel:
        return "Cancel";
    case BoxResult::Yes:
        return "Yes";
    case BoxResult::No:
        return "No";
    }
    return "?";
}

const char* BoxIconName(BoxIcon icon) {
    switch (icon) {
    case BoxIcon::None:
        return "none";
    case BoxIcon::Critical:
        return "stop";
    case BoxIcon::Question:
        return "question";
    case BoxIcon::Exclamation:
        return "exclamation";
    case BoxIcon::Information:
        return "information";
    }
    return "?";
}

const char* BoxButtonsName(BoxButtons buttons) {
    switch (buttons) {
    case BoxButtons::OK:
        return "OK";
    case BoxButtons::OKCancel:
        return "OKCancel";
    case BoxButtons::YesNo:
        return "YesNo";
    case BoxButtons::YesNoCancel:
        return "YesNoCancel";
    }
    return "?";
}

} // namespace sw
