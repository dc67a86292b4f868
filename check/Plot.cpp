#include "check/Plot.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <string_view>

#include "check/Chart.h"

namespace tarnvik {

namespace {

constexpr double highest_shown = 3.0; // a line above it leaves the picture

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

// A little above the largest value, and above the limit in any case.
double Highest(const std::vector<SweepPoint>& points) {
    double most = 1.2;
    for (const SweepPoint& point : points) {
        for (const Curve& curve : curves) {
            most = std::max(most, std::min(highest_shown, curve.value(point.judgement).value_or(0.0) * 1.05));
        }
    }
    return most;
}

// ---------------------------------------------------------------------------------------------------------------------
// Curves over one input

// A line for each run of points with a value; a point alone is a dot.
void Draw_curve(Chart& chart, const Curve& curve, const std::vector<SweepPoint>& points) {
    std::string run;
    const auto flush = [&] {
        if (!run.empty()) {
            chart.Add(R"svg(<polyline clip-path="url(#frame)" fill="none" stroke-linecap="round" )svg");
            chart.Add(curve.look);
            chart.Add(" points=\"" + run + "\"/>\n");
        }
        run.clear();
    };
    for (const SweepPoint& point : points) {
        const std::optional<double> value = curve.value(point.judgement);
        if (!value) {
            flush();
            continue;
        }
        // Far above the frame a coordinate says nothing more.
        const std::string at = Chart::Coordinate(chart.X(point.values[0])) + "," +
                               Chart::Coordinate(chart.Y(std::min(*value, 10.0 * highest_shown)));
        run += (run.empty() ? at : "") + " " + at;
    }
    flush();
}

// The letter of the governing mode where it begins, with a dot on the line of the bolts.
void Draw_modes(Chart& chart, const std::vector<SweepPoint>& points, double most) {
    char last = 0;
    for (const SweepPoint& point : points) {
        const std::optional<double> value = Bolts(point.judgement);
        const char mode = value ? point.judgement.governing.mode : '\0';
        if (mode != last && value && *value <= most) {
            const double x = chart.X(point.values[0]);
            const double y = chart.Y(*value);
            chart.Dot(x, y);
            chart.Text(x + 5.0, std::max(y - 7.0, Chart::top + 12.0), {&mode, 1}, R"(font-weight="bold")");
        }
        last = mode;
    }
}

// ---------------------------------------------------------------------------------------------------------------------
// The field of a grid

// clang-format off
struct Tone {
    double most; // of the largest utilisation
    std::string_view name;
    std::string_view fill;
    std::string_view letters; // on it
};
constexpr std::array tones{
    Tone{0.5,   "up to 0.5",   R"(fill="#fff")", R"(fill="#000")"},
    Tone{0.8,   "0.5 to 0.8",  R"(fill="#ddd")", R"(fill="#000")"},
    Tone{1.0,   "0.8 to 1.0",  R"(fill="#aaa")", R"(fill="#000")"},
    Tone{1e300, "above 1.0",   R"(fill="#555")", R"(fill="#fff")"},
};
// clang-format on
constexpr std::string_view no_result = R"svg(fill="url(#none)")svg";
constexpr std::string_view limit_line = R"(stroke="#000" stroke-width="3" stroke-linecap="square")";

// What is the largest of a point, by the letter that stands for it.
struct Largest {
    double value{};
    char letter{};
};
std::optional<Largest> Largest_of(const Judgement& judgement) {
    if (!judgement.Holds().has_value()) {
        return std::nullopt;
    }
    Largest largest{Bolts(judgement).value_or(0.0), judgement.governing.mode};
    for (const Largest& other :
         {Largest{Splitting(judgement).value_or(0.0), 'S'}, Largest{Distances(judgement).value_or(0.0), 'D'}}) {
        if (other.value > largest.value) {
            largest = other;
        }
    }
    return largest;
}

// The tone of a point; behind the last one where it has no result.
std::size_t Tone_of(const std::optional<Largest>& largest) {
    std::size_t tone = largest ? 0 : tones.size();
    while (tone < tones.size() && largest->value > tones[tone].most) {
        ++tone;
    }
    return tone;
}

class Field {
public:
    Field(const std::vector<SweepRange>& ranges, const std::vector<SweepPoint>& points, const std::string& title)
        : first_(ranges[0]), second_(ranges[1]),
          chart_(title, Chart::Axis_of(first_, Half(first_)), Chart::Axis_of(second_, Half(second_))) {
        for (const SweepPoint& point : points) {
            largest_.push_back(Largest_of(point.judgement));
        }
    }

    std::string Draw() {
        chart_.Add(R"(<pattern id="none" width="8" height="8" patternUnits="userSpaceOnUse">)"
                   R"(<path d="M0 8 L8 0" stroke="#777" stroke-width="1"/></pattern>)"
                   "\n");
        chart_.Add("<g shape-rendering=\"crispEdges\">\n"); // no seams between the cells
        Draw_tones();
        chart_.Add("</g>\n");
        Draw_limit();
        Draw_letters();
        chart_.Axes(false);
        Draw_legend();
        return chart_.Svg();
    }

private:
    static double Half(const SweepRange& range) { return range.Count() > 1 ? std::fabs(range.step) / 2.0 : 0.5; }
    [[nodiscard]] const std::optional<Largest>& At(std::size_t i, std::size_t k) const {
        return largest_[i * second_.Count() + k];
    }
    [[nodiscard]] double Edge_x(std::size_t i) const { // between the columns i - 1 and i
        return chart_.X(first_.Value(0) + (static_cast<double>(i) - 0.5) * Step(first_));
    }
    [[nodiscard]] double Edge_y(std::size_t k) const {
        return chart_.Y(second_.Value(0) + (static_cast<double>(k) - 0.5) * Step(second_));
    }
    static double Step(const SweepRange& range) { return range.Count() > 1 ? range.step : 1.0; }

    // Cells of the same tone along the second input are one.
    void Draw_tones() {
        for (std::size_t i = 0; i < first_.Count(); ++i) {
            const double x = std::min(Edge_x(i), Edge_x(i + 1));
            const double width = std::fabs(Edge_x(i + 1) - Edge_x(i));
            for (std::size_t k = 0, end = 0; k < second_.Count(); k = end) {
                const std::size_t tone = Tone_of(At(i, k));
                for (end = k + 1; end < second_.Count() && Tone_of(At(i, end)) == tone;) {
                    ++end;
                }
                chart_.Rectangle(x, std::min(Edge_y(k), Edge_y(end)), width, std::fabs(Edge_y(end) - Edge_y(k)),
                                 tone < tones.size() ? tones[tone].fill : no_result);
            }
        }
    }

    [[nodiscard]] bool Holds(std::size_t i, std::size_t k) const { return Tone_of(At(i, k)) < tones.size() - 1; }

    // Between what holds and what does not.
    void Draw_limit() {
        for (std::size_t i = 0; i < first_.Count(); ++i) {
            for (std::size_t k = 0; k < second_.Count(); ++k) {
                if (i > 0 && Holds(i, k) != Holds(i - 1, k)) {
                    chart_.Line(Edge_x(i), Edge_y(k), Edge_x(i), Edge_y(k + 1), limit_line);
                }
                if (k > 0 && Holds(i, k) != Holds(i, k - 1)) {
                    chart_.Line(Edge_x(i), Edge_y(k), Edge_x(i + 1), Edge_y(k), limit_line);
                }
            }
        }
    }

    // A letter would not stand on the limit.
    [[nodiscard]] bool Clear_of_limit(std::size_t i, std::size_t k) const {
        constexpr double half = 9.0; // of the room that a letter takes
        const auto near = [](double size) { return static_cast<std::size_t>(half / std::fabs(size)); };
        const std::size_t by_i = near(Edge_x(1) - Edge_x(0));
        const std::size_t by_k = near(Edge_y(1) - Edge_y(0));
        const std::size_t last_i = std::min(first_.Count() - 1, i + by_i);
        const std::size_t last_k = std::min(second_.Count() - 1, k + by_k);
        for (const std::size_t at_i : {i - std::min(i, by_i), i, last_i}) {
            for (const std::size_t at_k : {k - std::min(k, by_k), k, last_k}) {
                if (Holds(at_i, at_k) != Holds(i, k)) {
                    return false;
                }
            }
        }
        return true;
    }

    // As far apart as they are easily read.
    void Draw_letters() {
        constexpr double across = 36.0;
        constexpr double down = 28.0;
        const auto every = [](double room, double size) {
            return static_cast<std::size_t>(std::max(1.0, std::ceil(room / std::fabs(size) - 1e-9)));
        };
        const std::size_t step_i = every(across, Edge_x(1) - Edge_x(0));
        const std::size_t step_k = every(down, Edge_y(1) - Edge_y(0));
        for (std::size_t i = step_i / 2; i < first_.Count(); i += step_i) {
            for (std::size_t k = step_k / 2; k < second_.Count(); k += step_k) {
                const std::optional<Largest>& largest = At(i, k);
                if (largest && Clear_of_limit(i, k)) {
                    std::string look = R"(text-anchor="middle" )";
                    look += tones[Tone_of(largest)].letters;
                    chart_.Text(chart_.X(first_.Value(i)), chart_.Y(second_.Value(k)) + 4.5, {&largest->letter, 1},
                                look);
                }
            }
        }
    }

    void Draw_legend() {
        constexpr double x = Chart::right + 24.0;
        double y = Chart::top + 12.0;
        const auto text = [&](std::string_view line, double indent, double height) {
            chart_.Text(x + indent, y, line, "");
            y += height;
        };
        text("largest utilisation of", 0.0, 16.0);
        text("bolts, splitting and", 0.0, 16.0);
        text("distances / height", 0.0, 26.0);
        const auto swatch = [&](std::string_view name, std::string_view fill) {
            std::string look{fill};
            look += R"( stroke="#000" stroke-width="1")";
            chart_.Rectangle(x, y - 12.0, 26.0, 16.0, look);
            text(name, 36.0, 24.0);
        };
        for (const Tone& tone : tones) {
            swatch(tone.name, tone.fill);
        }
        swatch("no result", no_result);
        chart_.Line(x, y - 4.0, x + 26.0, y - 4.0, limit_line);
        text("limit", 36.0, 34.0);
        text("what is largest:", 0.0, 18.0);
        const auto letter = [&](std::string_view letters, std::string_view meaning) {
            chart_.Text(x, y, letters, "");
            text(meaning, 46.0, 16.0);
        };
        letter("a to k", "bolts, by the");
        text("failure mode", 46.0, 16.0);
        letter("S", "splitting");
        letter("D", "distances");
    }

    const SweepRange& first_;
    const SweepRange& second_;
    std::vector<std::optional<Largest>> largest_; // of the points, in their order
    Chart chart_;
};

} // namespace

std::string Plot_sweep(const SweepRange& range, const std::vector<SweepPoint>& points, const std::string& title) {
    const double most = Highest(points);
    Chart chart{title, Chart::Axis_of(range, 0.0), Chart::Axis_to(most, "utilisation")};
    chart.Axes(true);
    chart.Line(Chart::left, chart.Y(1.0), Chart::right, chart.Y(1.0), R"(stroke="#000" stroke-width="1")");
    chart.Text(Chart::right + 6.0, chart.Y(1.0) + 4.0, "limit 1.0", "");
    chart.Add(R"(<clipPath id="frame"><rect x="70" y="50" width="530" height="380"/></clipPath>)"
              "\n");
    constexpr double legend = Chart::right + 70.0;
    double row = Chart::top + 30.0;
    for (const Curve& curve : curves) {
        Draw_curve(chart, curve, points);
        chart.Line(legend, row, legend + 40.0, row, curve.look);
        chart.Text(legend, row + 18.0, curve.name, "");
        row += 46.0;
    }
    chart.Text(legend, row, "a to k: failure", "");
    chart.Text(legend, row + 16.0, "mode that governs", "");
    Draw_modes(chart, points, most);
    return chart.Svg();
}

std::string Plot_grid(const std::vector<SweepRange>& ranges, const std::vector<SweepPoint>& points,
                      const std::string& title) {
    return Field{ranges, points, title}.Draw();
}

} // namespace tarnvik
