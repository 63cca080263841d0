#pragma once

#include <string>

namespace sw {

enum class BoxIcon { None, Critical, Question, Exclamation, Information };
enum class BoxButtons { OK, OKCancel, YesNo, YesNoCancel };
enum class BoxResult { OK, Cancel, Yes, No };

struct BoxRequest {
    std::string title;
    std::string text;
    BoxIcon icon = BoxIcon::None;
    BoxButtons buttons = BoxButtons::OK;
    BoxResult defaultButton = BoxResult::OK;
};

// Modal message, question and input boxes.
class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;
    // Shows the box and waits; answers the button pressed.
    virtual BoxResult Show(const BoxRequest& request) = 0;
    // Shows an input box; answers the typed text, or the empty text on Cancel.
    virtual std::string InputBox(const std::string& prompt, const std::string& title,
                                 const std::string& defaultText) = 0;
};

const char* BoxResultName(BoxResult result);
const char* BoxIconName(BoxIcon icon);
const char* BoxButtonsName(BoxButtons buttons);

} // namespace sw
