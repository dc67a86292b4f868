#include "spacing/Pictures.h"

#include <algorithm>

namespace tarnvik {

namespace {

// A sketch lies in the form of its type and force, and both forms name it alike.
constexpr bool In_order() {
    for (std::size_t i = 0; i < sketch_keys.size(); ++i) {
        const SketchKeys& row = sketch_keys[i];
        const auto control = [](std::string_view key) { return key.substr(key.find('/')); };
        if (row.Case_code != case_table[i].Case_code || control(row.strekk) != control(row.trykk) ||
            control(row.strekk)[4] != row.Case_code[0] || control(row.strekk)[6] != row.Case_code[2]) {
            return false;
        }
    }
    return true;
}
static_assert(In_order());

} // namespace

std::string_view Sketch_key(int case_row, float P) {
    const SketchKeys& row = sketch_keys[static_cast<std::size_t>(case_row)];
    return P > 0.0F ? row.trykk : row.strekk;
}

std::string_view Connection_key(std::string_view Con_code) {
    const auto* const row = std::find_if(connection_keys.begin(), connection_keys.end(),
                                         [&](const ConnectionKey& key) { return key.Con_code == Con_code; });
    return row == connection_keys.end() ? std::string_view{} : row->key;
}

} // namespace tarnvik
