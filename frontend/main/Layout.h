// The layout of the main window: one row for each control, in the order in which the rules are applied.
//
// Units are twips, 1440 to the inch; a rule is a sum or a product of properties of controls that stand before it.
#pragma once

#include <map>
#include <span>
#include <string>
#include <string_view>

namespace tarnvik {

struct Box {
    double left{}, top{}, width{}, height{};
};

// Sizes and places by the name of the control, relative to the parent.
using Boxes = std::map<std::string, Box, std::less<>>;

struct LayoutRow {
    std::string_view control;
    std::string_view left, top, width, height; // empty: the built value stands
};

std::span<const LayoutRow> Layout_rows();

// The least height that a control can take, twips: a rule gives a size only where the toolkit allows it.
using LeastHeight = double (*)(std::string_view control, const void* context);

// Applies the rows to the built boxes. `window` gives Width and Height. `least_height` is asked for every height that a
// rule gives.
void Apply_layout(Boxes& boxes, const Box& window, LeastHeight least_height, const void* context);

// The value of one rule.
double Evaluate_rule(std::string_view rule, const Boxes& boxes, const Box& window);

} // namespace tarnvik
