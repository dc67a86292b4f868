#include "spacing/sketch/Drawing.h"

#include "calc/Text.h"

namespace tarnvik {

double Width_of(Pen pen) {
    switch (pen) {
    case Pen::outline:
    case Pen::hidden_loaded:
    case Pen::bolt:
        return medium;
    case Pen::loaded:
    case Pen::force:
        return thick;
    case Pen::none:
        return 0.0;
    default:
        return thin;
    }
}

bool Is_dashed(Pen pen) {
    return pen == Pen::hidden || pen == Pen::hidden_loaded;
}

unsigned Colour_of(Pen pen) {
    constexpr unsigned black = 0x000000;
    constexpr unsigned wood_edge = 0x5a3c14;
    constexpr unsigned grey = 0x505050;
    switch (pen) {
    case Pen::dimension:
    case Pen::bolt:
    case Pen::force:
        return black;
    case Pen::extension:
        return grey;
    default:
        return wood_edge;
    }
}

unsigned Colour_of(Tone tone) {
    switch (tone) {
    case Tone::wood_1:
        return 0xf6e3c0;
    case Tone::wood_2:
        return 0xddba80;
    case Tone::black:
        return 0x000000;
    default:
        return 0xffffff;
    }
}

TextSize Size_of(std::string_view text, bool bold) {
    return {digit_width * static_cast<double>(Character_count(text)) + (bold ? 1.0 : 0.0), letter_height};
}

TextSize Size_of(const TextShape& text) {
    return Size_of(text.text, text.bold);
}

} // namespace tarnvik
