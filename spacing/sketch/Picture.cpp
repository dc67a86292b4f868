#include "spacing/sketch/Picture.h"

#include "spacing/Pictures.h"
#include "spacing/sketch/Sketch.h"
#include "spacing/sketch/Splitting_picture.h"

namespace tarnvik {

namespace {

constexpr int type_count = 5;

// Pictures of the five Cmd_type buttons.
std::string Type_key(int type) {
    return "frmMain/Cmd_type(" + std::to_string(type - 1) + ")";
}

} // namespace

std::vector<std::string> Drawing_keys() {
    std::vector<std::string> keys;
    for (const SketchKeys& row : sketch_keys) {
        keys.emplace_back(row.strekk);
        keys.emplace_back(row.trykk);
    }
    for (const auto& row : connection_keys) {
        keys.emplace_back(row.key);
    }
    for (int type = 1; type <= type_count; ++type) {
        keys.push_back(Type_key(type));
    }
    keys.emplace_back(splitting_figure);
    return keys;
}

std::optional<Drawing> Draw_picture(std::string_view key, double width, double height, MemberNames names) {
    for (std::size_t i = 0; i < sketch_keys.size(); ++i) {
        if (key == sketch_keys[i].strekk || key == sketch_keys[i].trykk) {
            return Draw_sketch(static_cast<int>(i), key == sketch_keys[i].trykk, width, height).drawing;
        }
    }
    for (const auto& row : connection_keys) {
        if (key == row.key) {
            return Draw_connection(row.Con_code, width, height, names);
        }
    }
    for (int type = 1; type <= type_count; ++type) {
        if (key == Type_key(type)) {
            return Draw_type(type, width, height);
        }
    }
    if (key == splitting_figure) {
        return Draw_splitting(width, height);
    }
    return std::nullopt;
}

} // namespace tarnvik
