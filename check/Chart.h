// The paper of a diagram: an SVG picture of 800 by 500 with a title and two axes. What is drawn differs in grey, dashes
// and letters, not in colour.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "check/Sweep.h"

namespace tarnvik {

// What an input is called on an axis, with its unit.
std::string Axis_label(const std::string& name);

class Chart {
public:
    struct Axis {
        double low, high;
        std::vector<double> ticks;
        std::string label;
    };

    // The frame of the axes within the picture.
    static constexpr double left = 70.0, right = 600.0, top = 50.0, bottom = 430.0;

    // Values of a range with room for `margin` beyond the first and the last.
    static Axis Axis_of(const SweepRange& range, double margin);

    // From 0 to a value.
    static Axis Axis_to(double most, const std::string& label);

    Chart(const std::string& title, Axis x, Axis y);

    [[nodiscard]] double X(double value) const { return left + (value - x_.low) / (x_.high - x_.low) * (right - left); }
    [[nodiscard]] double Y(double value) const {
        return bottom - (value - y_.low) / (y_.high - y_.low) * (bottom - top);
    }

    // In the picture's own coordinates; the look is attributes of SVG, the text is not escaped yet.
    void Line(double x1, double y1, double x2, double y2, std::string_view look);
    void Text(double x, double y, std::string_view text, std::string_view look);
    void Rectangle(double x, double y, double width, double height, std::string_view look);
    void Dot(double x, double y);
    // Elements that have no procedure.
    void Add(std::string_view svg);

    // Numbers, with grid lines or without, and labels.
    void Axes(bool grid);

    // The whole picture.
    [[nodiscard]] std::string Svg() const { return svg_ + "</svg>\n"; }

    // A coordinate, whatever the locale.
    static std::string Coordinate(double value);

private:
    Axis x_, y_;
    std::string svg_;
};

} // namespace tarnvik
