#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "calc/Arithmetic.h"
#include "calc/RuntimeFault.h"
#include "calc/Splitting.h"
#include "calc/Text.h"
#include "calc/Words.h"
#include "calc/pass/Main_beregn.h"
#include "sheet/Diagram_svg.h"
#include "sheet/Sections.h"

namespace tarnvik {

namespace {

constexpr int last_angle = 90;

constexpr double width = 330.0;
constexpr double height = 126.0;
constexpr double left = 34.0;
constexpr double right = 232.0;
constexpr double top = 8.0;
constexpr double bottom = 98.0;

class Silent : public MessageBox {
public:
    void Show(std::string_view /*text*/, int /*style*/) override {}
};

// The forces at which a check is at its limit, kN.
struct Capacity {
    std::optional<double> bolts, splitting;
};

// By a pass on a copy at another angle. What cannot be calculated there is left out.
Capacity At_angle(ConnectionState& copy, const ConnectionState& s, float alp) {
    static_cast<ConnectionValues&>(copy) = s;
    copy.alp = alp;
    Silent box;
    Capacity capacity;
    if (Run_pass(copy, nullptr, box).end != PassEnd::normal) {
        return capacity;
    }
    capacity.bolts = copy.Med_bulldog ? copy.Rd_bolt + copy.Rd_for : copy.Rd_bolt;
    try {
        if (copy.Man_he_on) { // which a pass leaves out
            float h = 0.0F;
            float b = 0.0F;
            Get_splitting_member(copy, h, b);
            Tverr_brudd(copy, h, s.he, b, ScreenWriter{nullptr});
        }
    } catch (const RuntimeFault&) {
        return capacity;
    }
    const double share = std::sin(alp / degrees_per_radian) * (Takes_half_force(copy) ? 0.5 : 1.0);
    if (share > 0.0) {
        capacity.splitting = copy.F90_Rd / share;
    }
    return capacity;
}

// 1, 2 or 5 times a power of ten: at most five steps.
double Step(double most) {
    const double power = std::pow(10.0, std::floor(std::log10(most)));
    const double first = most / power;
    return power * (first <= 1.0 ? 0.2 : first <= 2.5 ? 0.5 : first <= 5.0 ? 1.0 : 2.0);
}

std::string Attributes(double x1, double y1, double x2, double y2) {
    return "x1=\"" + Coordinate(x1) + "\" y1=\"" + Coordinate(y1) + "\" x2=\"" + Coordinate(x2) + "\" y2=\"" +
           Coordinate(y2) + "\"";
}

class Diagram {
public:
    explicit Diagram(const SheetFacts& facts) : facts_(facts) {
        const auto copy = std::make_unique<ConnectionState>(facts.s);
        double most = std::fabs(static_cast<double>(facts.s.P));
        for (int alp = 0; alp <= last_angle; ++alp) {
            capacities_.push_back(At_angle(*copy, facts.s, static_cast<float>(alp)));
            most = std::max(most, capacities_.back().bolts.value_or(0.0));
        }
        own_ = At_angle(*copy, facts.s, facts.s.alp);
        most_ = std::max(1.15 * most, 0.1);
    }

    std::string Draw(std::string_view title) {
        svg_ = Begin_diagram(width, height, title);
        Axes();
        Curve(&Capacity::bolts, "");
        Curve(&Capacity::splitting, " stroke-dasharray=\"6 3\"");
        Demand();
        Own_angle();
        return svg_ + "</svg>\n";
    }

private:
    [[nodiscard]] static double X(double alp) { return left + (right - left) * alp / last_angle; }
    [[nodiscard]] double Y(double force) const { return bottom - (bottom - top) * std::min(force / most_, 1.0); }

    void Axes() {
        constexpr double grid = 30.0;
        for (double alp = 0.0; alp <= last_angle; alp += grid) {
            svg_ += "<line " + Attributes(X(alp), top, X(alp), bottom) + " stroke=\"#bbb\" stroke-width=\"0.5\"/>\n";
            svg_ += Diagram_text(X(alp), bottom + 11.0, "middle", Coordinate(alp) + "°");
        }
        for (double force = 0.0; force <= most_; force += Step(most_)) {
            svg_ +=
                "<line " + Attributes(left, Y(force), right, Y(force)) + " stroke=\"#bbb\" stroke-width=\"0.5\"/>\n";
            svg_ += Diagram_text(left - 3.0, Y(force) + 3.5, "end", Number(force));
        }
        svg_ += Diagram_text((left + right) / 2.0, bottom + 23.0, "middle",
                             facts_.english ? "angle α between the members; force in kN"
                                            : "vinkel α mellom delene; kraft i kN");
        svg_ += "<rect x=\"" + Coordinate(left) + "\" y=\"" + Coordinate(top) + "\" width=\"" +
                Coordinate(right - left) + "\" height=\"" + Coordinate(bottom - top) +
                "\" fill=\"none\" stroke=\"#000\" stroke-width=\"0.8\"/>\n";
    }

    [[nodiscard]] static std::string Number(double force) {
        std::string text = Coordinate(force);
        std::replace(text.begin(), text.end(), '.', Decimal_sign());
        return text;
    }

    // In pieces where there is no value, or one above the diagram.
    void Curve(std::optional<double> Capacity::*kind, std::string_view look) {
        std::string points;
        const auto end_piece = [&] {
            if (points.find(' ') != std::string::npos) {
                svg_ += "<polyline points=\"" + points + "\" fill=\"none\" stroke=\"#000\" stroke-width=\"1.5\"";
                svg_ += look;
                svg_ += "/>\n";
            }
            points.clear();
        };
        for (std::size_t alp = 0; alp < capacities_.size(); ++alp) {
            const std::optional<double>& force = capacities_[alp].*kind;
            if (!force || *force > most_) {
                end_piece();
                continue;
            }
            points += points.empty() ? "" : " ";
            points += Coordinate(X(static_cast<double>(alp))) + "," + Coordinate(Y(*force));
        }
        end_piece();
        Legend(look, kind == &Capacity::bolts ? (facts_.s.Med_bulldog ? Words{"bolts, connectors", "bolter, forbindere"}
                                                                      : Words{"bolts", "bolter"})
                                              : Words{"splitting", "tverrstrekk"});
    }

    void Legend(std::string_view look, const Words& words) {
        const double y = top + 8.0 + 14.0 * legends_++;
        svg_ += "<line " + Attributes(right + 8.0, y, right + 26.0, y) + " stroke=\"#000\" stroke-width=\"1.5\"";
        svg_ += look;
        svg_ += "/>\n";
        svg_ += "<text x=\"" + Coordinate(right + 29.0) + "\" y=\"" + Coordinate(y + 3.5) + "\" font-size=\"8\">";
        svg_ += words.In(facts_.english);
        svg_ += "</text>\n";
    }

    void Demand() {
        const double force = std::fabs(static_cast<double>(facts_.s.P));
        constexpr std::string_view look = " stroke-dasharray=\"1.5 2\"";
        svg_ += "<line " + Attributes(left, Y(force), right, Y(force)) + " stroke=\"#000\" stroke-width=\"1.2\"";
        svg_ += look;
        svg_ += "/>\n";
        Legend(look, Words{R"(F<tspan dy="2" font-size="6">Ed</tspan>)"});
    }

    void Own_angle() {
        const double alp = facts_.s.alp;
        if (alp < 0.0 || alp > last_angle) {
            return;
        }
        svg_ += "<line " + Attributes(X(alp), top, X(alp), bottom) + " stroke=\"#000\" stroke-width=\"0.8\"/>\n";
        for (const std::optional<double>& force : {own_.bolts, own_.splitting}) {
            if (force && *force <= most_) {
                svg_ += "<circle cx=\"" + Coordinate(X(alp)) + "\" cy=\"" + Coordinate(Y(*force)) +
                        "\" r=\"2.8\" fill=\"#fff\" stroke=\"#000\" stroke-width=\"1.2\"/>\n";
            }
        }
        const bool near_right = alp > 0.75 * last_angle;
        svg_ += "<g stroke=\"#fff\" stroke-width=\"3\" paint-order=\"stroke\">";
        svg_ += Diagram_text(X(alp) + (near_right ? -3.0 : 3.0), Free_height(), near_right ? "end" : "start",
                             "α = " + std::string{Trim(Format(facts_.s.alp, "0.0"))} + "°");
        svg_ += "</g>\n";
    }

    // For the text of the own angle: as far as possible from the forces there.
    [[nodiscard]] double Free_height() const {
        const double demand = std::fabs(static_cast<double>(facts_.s.P));
        const auto room = [&](double y) {
            double least = bottom - top;
            for (const std::optional<double>& force : {own_.bolts, own_.splitting, std::optional{demand}}) {
                least = force ? std::min(least, std::fabs(Y(*force) - y)) : least;
            }
            return least;
        };
        constexpr double half_letter = 3.5;
        double best = bottom - 8.0;
        for (const double y : {(top + bottom) / 2.0, top + 8.0, bottom - 24.0, top + 24.0}) {
            best = room(y) > room(best) + 1.0 ? y : best;
        }
        return best + half_letter;
    }

    const SheetFacts& facts_;
    std::vector<Capacity> capacities_; // at 0, 1, ... 90 degrees
    Capacity own_;
    double most_{};
    int legends_{};
    std::string svg_;
};

} // namespace

void Write_angle(Page& page, const SheetFacts& facts) {
    const Words title{"Capacity over the angle between the members", "Kapasitet over vinkelen mellom delene"};
    page.Figure({}, Diagram{facts}.Draw(title.In(facts.english)), title.In(facts.english));
}

} // namespace tarnvik
