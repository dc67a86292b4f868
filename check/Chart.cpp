#include "check/Chart.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

namespace tarnvik {

namespace {

constexpr std::size_t most_values = 11; // that each have a tick of their own

// clang-format off
struct Unit {
    std::string_view name;
    std::string_view label;
};
constexpr std::array units{
    Unit{"P",           "design force P, kN (compression above 0)"},
    Unit{"tension",     "tension, kN"},
    Unit{"compression", "compression, kN"},
    Unit{"alp",         "angle between the members, degrees"},
    Unit{"angle",       "angle between the members, degrees"},
    Unit{"bolts",       "number of bolts"},
    Unit{"spacing",     "spacing along the grain, bolt diameters"},
    Unit{"service",     "service class"},
    Unit{"Klima",       "service class"},
    Unit{"Lastvar",     "load-duration class"},
    Unit{"Txt_b1",      "width of member 1, mm"},
    Unit{"Txt_h1",      "height of member 1, mm"},
    Unit{"Txt_b2",      "width of member 2, mm"},
    Unit{"Txt_h2",      "height of member 2, mm"},
    Unit{"man_he",      "he, mm"},
    Unit{"dc",          "connector diameter, mm"},
};
// clang-format on

std::string Number_text(double value, std::chars_format format, int digits) {
    std::array<char, 64> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), value, format, digits);
    return {text.data(), result.ptr};
}

std::string Tick_text(double value) {
    constexpr int digits = 6;
    return Number_text(value, std::chars_format::general, digits);
}

std::string Escaped(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        escaped += c == '&' ? "&amp;" : c == '<' ? "&lt;" : c == '>' ? "&gt;" : std::string(1, c);
    }
    return escaped;
}

// 1, 2 or 5 times a power of ten, so that there are four to ten ticks.
std::vector<double> Round_ticks(double low, double high) {
    const double power = std::pow(10.0, std::floor(std::log10(high - low)));
    const double first = (high - low) / power;
    const double step = power * (first < 2.0 ? 0.2 : first < 5.0 ? 0.5 : 1.0);
    std::vector<double> ticks;
    for (double i = std::ceil(low / step - 1e-9); i * step <= high + step * 1e-9; i += 1.0) {
        ticks.push_back(i == 0.0 ? 0.0 : i * step);
    }
    return ticks;
}

} // namespace

std::string Axis_label(const std::string& name) {
    const auto* const unit =
        std::find_if(units.begin(), units.end(), [&](const Unit& one) { return one.name == name; });
    return unit == units.end() ? name : std::string{unit->label};
}

Chart::Axis Chart::Axis_of(const SweepRange& range, double margin) {
    const double first = range.Value(0);
    const double last = range.Value(range.Count() - 1);
    Axis axis{std::min(first, last), std::max(first, last), {}, Axis_label(range.name)};
    if (range.Count() > most_values) {
        axis.ticks = Round_ticks(axis.low, axis.high);
    } else {
        for (std::size_t i = 0; i < range.Count(); ++i) {
            axis.ticks.push_back(range.Value(i));
        }
    }
    if (axis.low == axis.high && margin == 0.0) {
        margin = 1.0;
    }
    axis.low -= margin;
    axis.high += margin;
    return axis;
}

Chart::Axis Chart::Axis_to(double most, const std::string& label) {
    return {0.0, most, Round_ticks(0.0, most), label};
}

Chart::Chart(const std::string& title, Axis x, Axis y) : x_(std::move(x)), y_(std::move(y)) {
    svg_ = R"(<svg xmlns="http://www.w3.org/2000/svg" width="800" height="500" viewBox="0 0 800 500" )"
           R"(font-family="Liberation Sans, Arial, sans-serif" font-size="13" fill="#000">)"
           "\n"
           R"(<rect width="800" height="500" fill="#fff"/>)"
           "\n";
    Text(left, 28.0, title, R"(font-size="15")");
}

void Chart::Line(double x1, double y1, double x2, double y2, std::string_view look) {
    svg_ += "<line x1=\"" + Coordinate(x1) + "\" y1=\"" + Coordinate(y1) + "\" x2=\"" + Coordinate(x2) + "\" y2=\"" +
            Coordinate(y2) + "\" ";
    svg_ += look;
    svg_ += "/>\n";
}

void Chart::Text(double x, double y, std::string_view text, std::string_view look) {
    svg_ += "<text x=\"" + Coordinate(x) + "\" y=\"" + Coordinate(y) + "\" ";
    svg_ += look;
    svg_ += ">" + Escaped(text) + "</text>\n";
}

void Chart::Rectangle(double x, double y, double width, double height, std::string_view look) {
    svg_ += "<rect x=\"" + Coordinate(x) + "\" y=\"" + Coordinate(y) + "\" width=\"" + Coordinate(width) +
            "\" height=\"" + Coordinate(height) + "\" ";
    svg_ += look;
    svg_ += "/>\n";
}

void Chart::Dot(double x, double y) {
    svg_ += "<circle cx=\"" + Coordinate(x) + "\" cy=\"" + Coordinate(y) + "\" r=\"3.5\"/>\n";
}

void Chart::Add(std::string_view svg) {
    svg_ += svg;
}

void Chart::Axes(bool grid) {
    constexpr std::string_view thin = R"(stroke="#ddd" stroke-width="1")";
    constexpr std::string_view axis = R"(stroke="#000" stroke-width="1")";
    constexpr double tick = 5.0;
    for (const double value : x_.ticks) {
        Line(X(value), grid ? top : bottom + tick, X(value), bottom, grid ? thin : axis);
        Text(X(value), bottom + 18.0, Tick_text(value), R"(text-anchor="middle")");
    }
    for (const double value : y_.ticks) {
        Line(grid ? left : left - tick, Y(value), grid ? right : left, Y(value), grid ? thin : axis);
        Text(left - 8.0, Y(value) + 4.0, Tick_text(value), R"(text-anchor="end")");
    }
    Line(left, bottom, right, bottom, axis);
    Line(left, top, left, bottom, axis);
    Text((left + right) / 2.0, bottom + 44.0, x_.label, R"(text-anchor="middle")");
    Text(0.0, 0.0, y_.label, R"svg(text-anchor="middle" transform="translate(24 240) rotate(-90)")svg");
}

std::string Chart::Coordinate(double value) {
    return Number_text(value, std::chars_format::fixed, 1);
}

} // namespace tarnvik
