#include "frontend/main/Marks.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QFontMetricsF>
#include <QLabel>

#include <algorithm>
#include <string>

#include "frontend/main/Languages.h"
#include "frontend/painting/Texts.h"

namespace tarnvik {

namespace {

constexpr std::uint32_t colour_unchecked = 0x005A9C; // a dark amber: neither holds nor fails
constexpr double result_points = 7.5;                // the title row is lower than a line of the window's text
constexpr double sign_points = 7.0;

// A screen reader says at once what a mark has to say anew: it speaks an alert that comes up, so one comes up.
void Say(QLabel& mark, const std::string& text, std::uint32_t colour, const std::string& tip) {
    const bool anew = !text.empty() && mark.text() != Q(text);
    if (anew) {
        mark.hide();
    }
    mark.setText(Q(text));
    mark.setToolTip(Q(tip));
    mark.setVisible(!text.empty());
    if (anew) {
        QAccessibleEvent alert{&mark, QAccessible::Alert};
        QAccessible::updateAccessibility(&alert);
    }
    QPalette palette = mark.palette();
    if (palette.color(QPalette::Active, QPalette::WindowText) != To_colour(colour)) {
        palette.setColor(QPalette::WindowText, To_colour(colour));
        mark.setPalette(palette);
    }
}

// Over the border of its frame, on the frame's ground.
void Prepare(QLabel& mark, double points, bool bold) {
    QFont font = Text_font(points);
    font.setBold(bold);
    mark.setFont(font);
    mark.hide();
}

// The cure of a force whose sign is not that of the option.
std::string Cure(bool english, bool tension_selected) {
    if (english) {
        return tension_selected ? "A typed force is taken as positive. For tension select Compression, then Tension."
                                : "The force in use is negative. For compression select Tension, then Compression.";
    }
    return tension_selected ? "En inntastet kraft tas som positiv. For strekk velg Trykk og så Strekk."
                            : "Kraften i bruk er negativ. For trykk velg Strekk og så Trykk.";
}

} // namespace

Marks::Marks(const MainControls& controls, const Session& session)
    : session_(session), s_(session.State()), file_(controls.Find<QLabel>("Lbl_file")),
      current_(controls.Find<QLabel>("Lbl_current")), verdict_(controls.Find<QLabel>("Lbl_verdict")),
      sign_(controls.Find<QLabel>("Lbl_sign")), splitting_(controls.Find<QLabel>("Lbl_tverr_current")),
      compression_(controls.Find<QAbstractButton>("Opt_trykk")),
      tension_(controls.Find<QAbstractButton>("Opt_strekk")), arrangements_{
                                                                  &controls.Find<ChoiceButton>("Cmd_boltetype(0)"),
                                                                  &controls.Find<ChoiceButton>("Cmd_boltetype(1)")} {
    Prepare(file_, result_points, true);
    Prepare(current_, result_points, true);
    Prepare(verdict_, result_points, true);
    Prepare(sign_, sign_points, false);
    Prepare(splitting_, sign_points, false);
}

void Marks::Show() const {
    const bool english = Is_english(s_);
    Show_results(english);
    Show_sign(english);
    Show_arrangement();
}

// One place: what could not be opened or saved comes first, then what is not current, then the verdict.
void Marks::Show_results(bool english) const {
    const FileStanding& file = session_.File();
    const std::string of_file = file.Text(english);
    Say(file_, of_file, file.Failed() ? colour_fails : colour_unchecked, file.Paths());
    const Standing& results = session_.Results();
    const std::string not_current = results.Not_current(s_, english);
    Say(current_, of_file.empty() ? not_current : std::string{}, colour_fails,
        english ? "The results shown belong to former inputs." : "Resultatene som vises hører til tidligere verdier.");
    const bool current = not_current.empty();
    const bool splitting = results.Splitting_current(s_);
    const Verdict verdict = Verdict_of(s_, splitting);
    const bool fails = std::any_of(verdict.checks.begin(), verdict.checks.end(),
                                   [](const CheckResult& check) { return check.Fails(); });
    Say(verdict_, current && of_file.empty() ? Verdict_text(verdict, english) : std::string{},
        verdict.Holds() ? colour_holds
        : fails         ? colour_fails
                        : colour_unchecked,
        current ? Verdict_details(verdict, s_, english) : std::string{});
    Say(splitting_, current && !splitting ? english ? "Not current" : "Ikke aktuell" : "", colour_fails,
        english ? "The check belongs to former inputs. Enter he and leave its box to check again."
                : "Kontrollen hører til tidligere verdier. Gå inn i he og ut igjen for ny kontroll.");
}

void Marks::Show_sign(bool english) const {
    const bool compression = s_.P > 0.0F;
    const bool differs = compression ? tension_.isChecked() : compression_.isChecked();
    std::string text;
    if (differs && compression) {
        text = english ? "calculated as compression" : "beregnet som trykk";
    } else if (differs) {
        text = english ? "calculated as tension" : "beregnet som strekk";
    }
    Say(sign_, text, colour_fails, Cure(english, tension_.isChecked()));
}

void Marks::Show_arrangement() const {
    const std::string_view code = s_.Case_code.View();
    arrangements_[0]->Set_pressed_look(code.ends_with('a'));
    arrangements_[1]->Set_pressed_look(code.ends_with('b'));
}

void Place_marks(Boxes& boxes, const QFont& font, double dots_per_inch) {
    constexpr double twips_per_inch = 1440.0;
    constexpr double gap = 9.0 * 15.0; // 9 pixels at 96 dots per inch: the title begins 5 pixels from the corner
    const QFontMetricsF metrics{font};
    const double to_twips = twips_per_inch / dots_per_inch;
    const double line = metrics.height() * to_twips;
    // Where the title of a frame ends, in the longer language.
    const auto title_end = [&](std::string_view frame) {
        double width = 0.0;
        for (const CaptionRow& row : Caption_rows()) {
            if (row.control == frame) {
                width =
                    std::max(metrics.horizontalAdvance(Q(row.english)), metrics.horizontalAdvance(Q(row.norwegian)));
            }
        }
        return width * to_twips + gap;
    };
    // As high as a line of text, but clear of what stands below.
    const auto in_title_row = [&](const char* mark, const char* frame, const char* below) {
        const double left = title_end(frame);
        boxes[mark] = Box{left, 0.0, boxes[frame].width - left - gap / 3.0, std::min(line, boxes[below].top)};
    };
    in_title_row("Lbl_file", "Fra_results", "Fra_bolt_kap");
    in_title_row("Lbl_current", "Fra_results", "Fra_bolt_kap");
    in_title_row("Lbl_verdict", "Fra_results", "Fra_bolt_kap");
    in_title_row("Lbl_sign", "Fra_last", "Pic_last");
    const Box& help = boxes["Cmd_tverr"];
    boxes["Lbl_tverr_current"] = Box{30.0, help.top - 30.0, help.left - 60.0, help.height + 60.0};
}

} // namespace tarnvik
