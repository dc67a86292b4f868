#include "check/Plot.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>

namespace tarnvik {

namespace {

// The frame of the axes within the picture.
constexpr double left = 70.0;
constexpr double right = 600.0;
constexpr double top = 50.0;
constexpr double bottom = 430.0;
constexpr double highest_shown = 3.0; // a line above it leaves the picture

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
    Unit{"Txt_b1",      "width of member 1, mm"},
    Unit{"Txt_h1",      "height of member 1, mm"},
    Unit{"Txt_b2",      "width of member 2, mm"},
    Unit{"Txt_h2",      "height of member 2, mm"},
    Unit{"man_he",      "he, mm"},
    Unit{"dc",          "connector diameter, mm"},
};
// clang-format on

std::string Label(const std::string& name) {
    const auto* const unit =
        std::find_if(units.begin(), units.end(), [&](const Unit& one) { return one.name == name; });
    return unit == units.end() ? name : std::string{unit->label};
}

std::optional<double> Ratio(const Judgement& judgement, Check check) {
    const CheckResult& result = judgement.verdict[check];
    if (!judgement.not_current.empty() || !result.applies || !result.checked || result.limit <= 0.0F) {
        return std::nullopt;
    }
    return static_cast<double>(result.value) / result.limit;
}

std::optional<double> Bolts(const Judgement& judgement) {
    return Ratio(judgement, Check::utilisation);
}

std::optional<double> Splitting(const Judgement& judgement) {
    return Ratio(judgement, Check::splitting);
}

// The fullest of the heights.
std::optional<double> Distances(const Judgement& judgement) {
    std::optional<double> most;
    for (const Check check :
         {Check::bolts_fit_1, Check::bolts_fit_2, Check::connectors_fit_1, Check::connectors_fit_2}) {
        const std::optional<double> ratio = Ratio(judgement, check);
        most = ratio && (!most || *ratio > *most) ? ratio : most;
    }
    return most;
}

// clang-format off
struct Curve {
    std::string_view name;
    std::optional<double> (*value)(const Judgement& judgement);
    std::string_view look;
};
constexpr std::array curves{
    Curve{"bolts",               Bolts,     R"(stroke="#000" stroke-width="2")"},
    Curve{"splitting",           Splitting, R"(stroke="#000" stroke-width="2" stroke-dasharray="8 4")"},
    Curve{"distances / height",  Distances, R"(stroke="#777" stroke-width="2" stroke-dasharray="2 3")"},
};
// clang-format on

// Whatever the locale.
std::string Number_text(double value, std::chars_format format, int digits) {
    std::array<char, 64> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), value, format, digits);
    return {text.data(), result.ptr};
}

std::string Coordinate(double value) {
    return Number_text(value, std::chars_format::fixed, 1);
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
double Tick_step(double span) {
    const double power = std::pow(10.0, std::floor(std::log10(span)));
    const double first = span / power;
    return power * (first < 2.0 ? 0.2 : first < 5.0 ? 0.5 : 1.0);
}

class Diagram {
public:
    Diagram(const SweepRange& range, const std::vector<SweepPoint>& points) : range_(range), points_(points) {
        low_ = std::min(range.Value(0), range.Value(range.Count() - 1));
        high_ = std::max(range.Value(0), range.Value(range.Count() - 1));
        if (low_ == high_) {
            low_ -= 1.0;
            high_ += 1.0;
        }
        most_ = 1.2;
        for (const SweepPoint& point : points) {
            for (const Curve& curve : curves) {
                most_ = std::max(most_, std::min(highest_shown, curve.value(point.judgement).value_or(0.0) * 1.05));
            }
        }
    }

    std::string Draw(const std::string& title) {
        svg_ = R"(<svg xmlns="http://www.w3.org/2000/svg" width="800" height="500" viewBox="0 0 800 500" )"
               R"(font-family="Liberation Sans, Arial, sans-serif" font-size="13" fill="#000">)"
               "\n"
               R"(<rect width="800" height="500" fill="#fff"/>)"
               "\n";
        Text(left, 28.0, Escaped(title), R"(font-size="15")");
        Axes();
        Line(left, Y(1.0), right, Y(1.0), R"(stroke="#000" stroke-width="1")");
        Text(right + 6.0, Y(1.0) + 4.0, "limit 1.0", "");
        svg_ += R"(<clipPath id="frame"><rect x="70" y="50" width="530" height="380"/></clipPath>)"
                "\n";
        double row = top + 30.0;
        for (const Curve& curve : curves) {
            Draw_curve(curve);
            Line(right + 70.0, row, right + 110.0, row, curve.look);
            Text(right + 70.0, row + 18.0, std::string{curve.name}, "");
            row += 46.0;
        }
        Text(right + 70.0, row, "a to k: failure", "");
        Text(right + 70.0, row + 16.0, "mode that governs", "");
        Modes();
        return svg_ + "</svg>\n";
    }

private:
    [[nodiscard]] double X(double value) const { return left + (value - low_) / (high_ - low_) * (right - left); }
    [[nodiscard]] double Y(double value) const { return bottom - value / most_ * (bottom - top); }

    void Line(double x1, double y1, double x2, double y2, std::string_view look) {
        svg_ += "<line x1=\"" + Coordinate(x1) + "\" y1=\"" + Coordinate(y1) + "\" x2=\"" + Coordinate(x2) +
                "\" y2=\"" + Coordinate(y2) + "\" ";
        svg_ += look;
        svg_ += "/>\n";
    }

    void Text(double x, double y, const std::string& text, std::string_view look) {
        svg_ += "<text x=\"" + Coordinate(x) + "\" y=\"" + Coordinate(y) + "\" ";
        svg_ += look;
        svg_ += ">" + text + "</text>\n";
    }

    void Axes() {
        constexpr std::string_view grid = R"(stroke="#ddd" stroke-width="1")";
        constexpr std::string_view axis = R"(stroke="#000" stroke-width="1")";
        const double step = Tick_step(high_ - low_);
        for (double i = std::ceil(low_ / step - 1e-9); i * step <= high_ + step * 1e-9; i += 1.0) {
            Line(X(i * step), top, X(i * step), bottom, grid);
            Text(X(i * step), bottom + 18.0, Tick_text(i == 0.0 ? 0.0 : i * step), R"(text-anchor="middle")");
        }
        const double rise = Tick_step(most_);
        for (double i = 0.0; i * rise <= most_ + rise * 1e-9; i += 1.0) {
            Line(left, Y(i * rise), right, Y(i * rise), grid);
            Text(left - 8.0, Y(i * rise) + 4.0, Tick_text(i * rise), R"(text-anchor="end")");
        }
        Line(left, bottom, right, bottom, axis);
        Line(left, top, left, bottom, axis);
        Text((left + right) / 2.0, bottom + 44.0, Escaped(Label(range_.name)), R"(text-anchor="middle")");
        Text(0.0, 0.0, "utilisation", R"svg(text-anchor="middle" transform="translate(24 240) rotate(-90)")svg");
    }

    // A line for each run of points with a value; a point alone is a dot.
    void Draw_curve(const Curve& curve) {
        std::string run;
        const auto flush = [&] {
            if (!run.empty()) {
                svg_ += "<polyline clip-path=\"url(#frame)\" fill=\"none\" stroke-linecap=\"round\" ";
                svg_ += curve.look;
                svg_ += " points=\"" + run + "\"/>\n";
            }
            run.clear();
        };
        for (const SweepPoint& point : points_) {
            const std::optional<double> value = curve.value(point.judgement);
            if (!value) {
                flush();
                continue;
            }
            // Far above the frame a coordinate says nothing more.
            const std::string at =
                Coordinate(X(point.values[0])) + "," + Coordinate(Y(std::min(*value, 10.0 * highest_shown)));
            run += (run.empty() ? at : "") + " " + at;
        }
        flush();
    }

    // The letter of the governing mode where it begins, with a dot on the line of the bolts.
    void Modes() {
        char last = 0;
        for (const SweepPoint& point : points_) {
            const std::optional<double> value = Bolts(point.judgement);
            const char mode = value ? point.judgement.governing.mode : '\0';
            if (mode != last && value && *value <= most_) {
                const double x = X(point.values[0]);
                const double y = Y(*value);
                svg_ += "<circle cx=\"" + Coordinate(x) + "\" cy=\"" + Coordinate(y) + "\" r=\"3.5\"/>\n";
                Text(x + 5.0, std::max(y - 7.0, top + 12.0), std::string(1, mode), R"(font-weight="bold")");
            }
            last = mode;
        }
    }

    const SweepRange& range_;
    const std::vector<SweepPoint>& points_;
    double low_{}, high_{}, most_{};
    std::string svg_;
};

} // namespace

std::string Plot_sweep(const SweepRange& range, const std::vector<SweepPoint>& points, const std::string& title) {
    return Diagram{range, points}.Draw(title);
}

} // namespace tarnvik
