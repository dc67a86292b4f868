#include "spacing/sketch/Drawing.h"

#include "calc/Text.h"

namespace tarnvik {

TextSize Size_of(std::string_view text, bool bold) {
    return {digit_width * static_cast<double>(Character_count(text)) + (bold ? 1.0 : 0.0), letter_height};
}

TextSize Size_of(const TextShape& text) {
    return Size_of(text.text, text.bold);
}

} // namespace tarnvik
