// The pictures of the connections and of their types, without dimensions.
#pragma once

#include <optional>
#include <string_view>

#include "spacing/sketch/Drawing.h"

namespace tarnvik {

// What the members are called in the picture of a connection: as in the window, in its language, or by number alone.
enum class MemberNames : unsigned char { numbers, english, norwegian };

// The picture of a connection for a code "1.1" to "5.3": the elevation, and beside it a section through the joint that
// tells single from double members. Where the room does not allow names, the members have numbers. Nothing for another
// code. Width and height in pixels.
std::optional<Drawing> Draw_connection(std::string_view Con_code, double width, double height,
                                       MemberNames names = MemberNames::numbers);

// The picture of a connection type 1 to 5 for a button: the elevation alone. Empty for another type.
Drawing Draw_type(int Con_type, double width, double height);

} // namespace tarnvik
