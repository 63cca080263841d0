#pragma once

#include "common/Types.h"
#include "dialogs/TextBox.h"

namespace sw {

// The key filter of numeric text boxes: the key to let through, or 0 to
// drop it. Backspace and digits pass; the comma, minus sign and decimal
// point only where the options allow them, a minus only in front and once,
// a point only once and not before a minus, and no digit beyond `decimals`
// places behind the point. Every other key, control codes included, drops.
i16 NumericKeyFilter(const TextBox& box, i16 keyAscii, bool allowMinus, bool allowPoint,
                     bool allowComma, i16 decimals);

} // namespace sw
