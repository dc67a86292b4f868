#include "detail/Painting.h"

namespace tarnvik {

std::string_view Font_name(TextFont font) {
    return font == TextFont::symbol ? "Symbol" : "Tahoma";
}

} // namespace tarnvik
