// The walk through everything that the window can show, measured: both languages, all connections and cases, both signs
// of the force, with and without connectors. Nothing is cut, nothing overlaps, everything stands inside its frame. Runs
// once for each screen resolution (TARNVIK_TEST_DPI).
#include <QCheckBox>
#include <QFontMetricsF>
#include <QMenuBar>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <sstream>

#include "frontend/dialogs/Frm_tarn_vik_fak_klass.h"
#include "frontend/main/ControlTable.h"
#include "frontend/painting/SetText.h"
#include "spacing/Presentation.h"
#include "tests/support/Window.h"

namespace tarnvik::test {
namespace {

// How much narrower than its font a text may be drawn: not at all, but for these. Their widths are given, and at 96
// dots per inch a font of 8 points has letters 3 % wider than at others.
constexpr double least_scale = 1.0;
const std::map<std::string, double> narrowed{
    {"Lbl_lastvar_1", 0.97},     // "Lastvarighetsklasse ="
    {"Lbl_lastvar_2", 0.84},     // "Instantaneous action", the longest of the classes, clear of its caption
    {"lbl_txt_avstand", 0.97},   // "distance", the second line
    {"Pic_av_bolter_dif", 0.97}, // the Norwegian note on small angles
    {"Lbl_sign", 0.91},          // "calculated as compression", beside the title of its frame
};

std::string Name(const QWidget& widget) {
    return widget.objectName().toStdString();
}

std::string Words(const QRect& rect) {
    std::ostringstream text;
    text << rect.x() << "," << rect.y() << " " << rect.width() << "x" << rect.height();
    return text.str();
}

// What is wrong with the window as it stands, each finding once.
class Measure {
public:
    void Window(QWidget& top, const QRect& room) {
        for (QWidget* child : top.findChildren<QWidget*>(QString{}, Qt::FindDirectChildrenOnly)) {
            if (child->isVisible() && !child->objectName().startsWith(QLatin1String("qt_"))) {
                if (!room.contains(child->geometry())) {
                    Finding(*child, "is at " + Words(child->geometry()) + " outside the window " + Words(room));
                }
                Control(*child);
            }
        }
        Siblings(top);
    }
    void Tables(TableArea& area) {
        const std::vector<TableArea::Placed> placed = area.Place_rows();
        std::vector<QRectF> ink;
        for (std::size_t i = 0; i < placed.size(); ++i) {
            const PositionedText& row = area.Rows()[i];
            QFont font = area.font();
            font.setBold(row.bold);
            const QFontMetricsF metrics{font};
            const QString text = QString::fromStdString(row.text);
            const QString words = text.trimmed();
            QRectF letters = metrics.tightBoundingRect(words).translated(
                metrics.horizontalAdvance(text.left(text.indexOf(words))), 0.0);
            letters.setRect(placed[i].room.left() + letters.left() * placed[i].narrowing,
                            std::round(placed[i].room.top() + metrics.ascent()) + letters.top(),
                            letters.width() * placed[i].narrowing, letters.height());
            ink.push_back(letters);
            if (row.text.empty()) {
                continue;
            }
            Scale(area, placed[i].narrowing, row.text);
            if (!QRectF{area.rect()}.contains(letters)) {
                Finding(area, "has the text \"" + row.text + "\" outside: " + Words(letters.toAlignedRect()) + " in " +
                                  Words(area.rect()));
            }
        }
        for (std::size_t i = 0; i < ink.size(); ++i) {
            for (std::size_t j = i + 1; j < ink.size(); ++j) {
                const QRectF common = ink[i] & ink[j];
                if (common.width() > 0.5 && common.height() > 0.5) {
                    Finding(area, "draws \"" + area.Rows()[i].text + "\" into \"" + area.Rows()[j].text + "\"");
                }
            }
        }
    }

    // A value stands clear of its caption by a blank.
    void Captions(QWidget& window) {
        for (const CaptionedValue& row : Captioned_values()) {
            auto& caption = Find_in<Label>(window, row.caption);
            auto& value = Find_in<Label>(window, row.value);
            const SetText set = Set_text(caption.text(), caption.font(), caption.size());
            const double end = caption.x() + set.width * set.narrowing;
            const double begin = value.x() + value.contentsRect().x();
            if (caption.isVisible() && value.isVisible() && begin - end < 3.0 * value.logicalDpiX() / 96.0 - 0.5) {
                Finding(value, "begins " + std::to_string(begin - end) + " pixels behind \"" +
                                   caption.text().toStdString() + "\"");
            }
        }
    }

    [[nodiscard]] const std::set<std::string>& Findings() const { return findings_; }
    // The narrowest that a control was drawn, and its text.
    [[nodiscard]] const std::map<std::string, std::pair<double, std::string>>& Narrowest() const { return narrowest_; }

private:
    void Finding(const QWidget& widget, const std::string& what) { findings_.insert(Name(widget) + " " + what); }

    void Scale(const QWidget& widget, double scale, const std::string& text) {
        auto& worst = narrowest_.emplace(Name(widget), std::pair{1.0, std::string{}}).first->second;
        if (scale < worst.first) {
            worst = {scale, text};
        }
        const auto allowed = narrowed.find(Name(widget));
        if (scale < (allowed == narrowed.end() ? least_scale : allowed->second) - 0.001) {
            std::ostringstream words;
            words << "narrows \"" << text << "\" to " << std::round(scale * 1000.0) / 1000.0;
            Finding(widget, words.str());
        }
    }
    void Set(const QWidget& widget, const QString& text, const QSizeF& room) {
        const SetText set = Set_text(text, widget.font(), room);
        if (!set.fits) {
            std::ostringstream words;
            words << "cuts \"" << text.toStdString() << "\": " << set.width << "x"
                  << QFontMetricsF{widget.font()}.height() * static_cast<double>(set.lines.size()) << " into "
                  << room.width() << "x" << room.height();
            Finding(widget, words.str());
        }
        Scale(widget, set.narrowing, text.toStdString());
    }
    // A text that the toolkit draws: it does not narrow.
    void Text(const QWidget& widget, const QString& text, const QSizeF& room) {
        const QFontMetricsF metrics{widget.font()};
        const QStringList lines = text.split(QLatin1Char('\n'));
        const double height = metrics.ascent() + metrics.lineSpacing() * static_cast<double>(lines.size() - 1);
        for (const QString& line : lines) {
            Line(widget, line, {room.width(), room.height() - height + metrics.ascent()});
        }
    }
    void Line(const QWidget& widget, const QString& text, const QSizeF& room) {
        const QFontMetricsF metrics{widget.font()};
        QString shown = text;
        while (shown.endsWith(QLatin1Char(' '))) {
            shown.chop(1);
        }
        if (metrics.horizontalAdvance(shown) > room.width() + 0.01 || metrics.ascent() > room.height()) {
            std::ostringstream words;
            words << "cuts \"" << text.toStdString() << "\": " << metrics.horizontalAdvance(shown) << "x"
                  << metrics.ascent() << " into " << room.width() << "x" << room.height();
            Finding(widget, words.str());
        }
    }

    void Control(QWidget& widget) {
        if (auto* label = dynamic_cast<Label*>(&widget)) {
            Set(*label, label->text(), label->contentsRect().size());
        } else if (auto* plain = dynamic_cast<QLabel*>(&widget)) {
            Text(*plain, plain->text(), plain->contentsRect().size());
        } else if (auto* frame = dynamic_cast<Frame*>(&widget)) {
            Set(*frame, frame->title(), frame->Title_room().size());
            Inside(*frame);
            Siblings(*frame);
        } else if (auto* option = dynamic_cast<Option*>(&widget)) {
            Set(*option, option->text(), option->Text_room().size());
        } else if (auto* check = dynamic_cast<QCheckBox*>(&widget)) {
            const int before = check->style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, check) +
                               check->style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, check);
            Text(*check, check->text(), QSizeF(check->width() - before, check->height()));
        } else if (auto* picture = dynamic_cast<PictureButton*>(&widget)) {
            if (picture->width() < 20 || picture->height() < 20) {
                Finding(*picture, "is too small");
            }
        } else if (auto* button = dynamic_cast<QPushButton*>(&widget)) {
            QString text = button->text();
            Text(*button, text.remove(QLatin1Char('&')), QSizeF(button->width() - 6.0, button->height() - 4.0));
        } else if (auto* list = dynamic_cast<ListBox*>(&widget)) {
            QStyleOptionComboBox option_of;
            option_of.initFrom(list);
            const QRect field =
                list->style()->subControlRect(QStyle::CC_ComboBox, &option_of, QStyle::SC_ComboBoxEditField, list);
            for (int row = 0; row < list->count(); ++row) {
                Text(*list, list->itemText(row), QSizeF(field.width() - 2.0, field.height()));
            }
        } else if (auto* box = dynamic_cast<TextBox*>(&widget)) {
            QStyleOptionFrame panel;
            panel.initFrom(box);
            panel.lineWidth = box->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &panel, box);
            panel.midLineWidth = 0;
            panel.state |= QStyle::State_Sunken;
            const QRect contents = box->style()->subElementRect(QStyle::SE_LineEditContents, &panel, box);
            const double least = 16.0 * box->logicalDpiY() / 96.0;
            if (box->height() < std::floor(least)) {
                Finding(*box, "is only " + std::to_string(box->height()) + " pixels high");
            }
            Text(*box, box->text(), QSizeF(contents.width() - 4.0, contents.height()));
        } else if (auto* table = dynamic_cast<TableArea*>(&widget)) {
            Tables(*table);
        } else if (dynamic_cast<PictureArea*>(&widget) != nullptr) {
            if (widget.width() < 40 || widget.height() < 40) {
                Finding(widget, "is too small");
            }
        } else {
            for (QWidget* child : widget.findChildren<QWidget*>(QString{}, Qt::FindDirectChildrenOnly)) {
                if (child->isVisible()) {
                    if (!widget.rect().contains(child->geometry())) {
                        Finding(*child, "is at " + Words(child->geometry()) + " outside " + Name(widget) + " " +
                                            Words(widget.rect()));
                    }
                    Control(*child);
                }
            }
            Siblings(widget);
        }
    }

    // Children inside the border and clear of the title.
    void Inside(const Frame& frame) {
        const QFontMetricsF metrics{frame.font()};
        const SetText set = Set_text(frame.title(), frame.font(), frame.Title_room().size());
        const QRectF title{frame.Title_room().left(), 0.0, set.width * set.narrowing,
                           metrics.ascent() + metrics.descent() * 0.7};
        for (QWidget* child : frame.findChildren<QWidget*>(QString{}, Qt::FindDirectChildrenOnly)) {
            if (!child->isVisible()) {
                continue;
            }
            const QRect place = child->geometry();
            if (!frame.rect().adjusted(1, 0, -1, -1).contains(place)) {
                Finding(*child, "is at " + Words(place) + " outside " + Name(frame) + " " + Words(frame.rect()));
            }
            // A frame begins with its own title, whose letters leave the topmost pixels free.
            const double ink = dynamic_cast<Frame*>(child) != nullptr ? metrics.ascent() - metrics.capHeight() : 0.0;
            if (title.width() > 0.0 && QRectF{place}.adjusted(0.0, ink, 0.0, 0.0).intersects(title)) {
                Finding(*child, "is at " + Words(place) + " over the title of " + Name(frame) + ", which ends at " +
                                    std::to_string(title.bottom()));
            }
            Control(*child);
        }
    }

    // What a widget draws: an area that only holds others shows them alone.
    static QRect Shown(const QWidget& widget) {
        const bool holds = std::string_view{widget.metaObject()->className()} == "QWidget";
        return holds ? widget.childrenRect().translated(widget.pos()) : widget.geometry();
    }

    void Siblings(const QWidget& parent) {
        // The frames of the distances stand over the right end of their sketch on purpose.
        static const std::set<std::pair<std::string, std::string>> meant{{"Pic_av_bolter", "Fra_av_bolter_verdier"},
                                                                         {"Pic_av_bulldog", "Fra_av_bulldog_verdier"}};
        std::vector<QWidget*> visible;
        for (QWidget* child : parent.findChildren<QWidget*>(QString{}, Qt::FindDirectChildrenOnly)) {
            if (child->isVisible()) {
                visible.push_back(child);
            }
        }
        for (std::size_t i = 0; i < visible.size(); ++i) {
            for (std::size_t j = i + 1; j < visible.size(); ++j) {
                const QRect common = Shown(*visible[i]) & Shown(*visible[j]);
                if (!common.isEmpty() && meant.count({Name(*visible[i]), Name(*visible[j])}) == 0) {
                    Finding(*visible[i], Words(visible[i]->geometry()) + " overlaps " + Name(*visible[j]) + " " +
                                             Words(visible[j]->geometry()));
                }
            }
        }
    }

    std::set<std::string> findings_;
    std::map<std::string, std::pair<double, std::string>> narrowest_;
};

class LayoutWalk : public WindowTest {
protected:
    void Expect_none(const Measure& measure) {
        for (const std::string& finding : measure.Findings()) {
            ADD_FAILURE() << finding;
        }
        for (const auto& [name, worst] : measure.Narrowest()) {
            if (worst.first < 1.0) {
                RecordProperty(name, std::to_string(worst.first) + " " + worst.second);
            }
        }
    }
    // The part of the window below the menu bar.
    QWidget& Ground() { return Find("ground"); }
    void Measure_window(Measure& measure) {
        measure.Window(Ground(), Ground().rect());
        measure.Captions(Ground());
    }

    // All cases of a type and a variant, with every number of bolts and both arrangements.
    template <class Look> void Cases(Look look) {
        for (std::int16_t type = 1; type <= 5; ++type) {
            for (int variant = 1; variant <= 3; ++variant) {
                for (std::int16_t number = 0; number < 5; ++number) {
                    for (const char* letter : {"a", "b"}) {
                        s.Con_type = type;
                        s.enk_1 = variant != 2;
                        s.dob_1 = variant == 2;
                        s.enk_2 = variant != 3;
                        s.dob_2 = variant == 3;
                        s.Ant_index = number;
                        s.Bolt_ab = letter;
                        s.alp = type <= 3 ? 27.0F : 90.0F;
                        look();
                    }
                }
            }
        }
    }
    int Profile(const std::string& id) {
        for (int i = 0; i <= s.Prof1_count; ++i) {
            if (s.Prof[static_cast<std::size_t>(i)].Id == id) {
                return i;
            }
        }
        ADD_FAILURE() << "no section " << id;
        return 0;
    }
    // High and thick members, so that no case is refused, and long numbers.
    void Use_large_values() {
        s.Prof1_index = s.Prof2_index = static_cast<std::int16_t>(Profile("L 42x405"));
        s.Lastvar = 5;
    }
};

TEST_F(LayoutWalk, every_connection_in_both_languages_with_and_without_connectors) {
    Measure measure;
    for (const char* lang : {"Eng", "Nor"}) {
        Start(lang);
        Use_large_values();
        std::set<std::string> seen;
        for (const bool connectors : {false, true}) {
            s.Bolt_index = 6;
            Click(connectors ? "Opt_bolt_bulldog(1)" : "Opt_bolt_bulldog(0)");
            for (const auto& [bolt, force] : {std::pair{6, 10.0F}, std::pair{3, 123.4F}, std::pair{7, -999.9F}}) {
                s.Bolt_index = static_cast<std::int16_t>(bolt);
                s.Bulldog_index = 4;
                s.dc = 117.0F;
                s.P = force;
                Cases([&] {
                    window->Write_language(); // with the member names of the type
                    window->Work().Recalculate();
                    seen.insert(std::string{s.Case_code.View()} + (s.P > 0.0F ? "+" : "-"));
                    Measure_window(measure);
                });
            }
        }
        EXPECT_EQ(seen.size(), 70U); // 35 cases, both signs
        EXPECT_TRUE(boxes.messages.empty()) << boxes.messages.front().text;
        boxes.messages.clear();
    }
    Expect_none(measure);
}

TEST_F(LayoutWalk, the_free_entry_and_every_number) {
    Measure measure;
    for (const char* lang : {"Eng", "Nor"}) {
        Start(lang);
        Click("Opt_valg");
        Click("Check_man");
        for (const char* name : {"Txt_b1", "Txt_h1", "Txt_b2", "Txt_h2", "Txt_last", "Txt_alp"}) {
            Box(name).setText(QStringLiteral("9999.99"));
        }
        Box("Txt_alp").setText(QStringLiteral("179.99"));
        Box("Txt_man_he").setText(QStringLiteral("9999"));
        for (int load = 1; load <= 5; ++load) {
            s.Lastvar = static_cast<std::int16_t>(load);
            Box("Txt_h1").setText(QStringLiteral("1000"));
            Box("Txt_h2").setText(QStringLiteral("1000"));
            window->Write_language();
            window->Work().Recalculate();
            Measure_window(measure);
        }
        for (int row = 0; row <= s.Mat_count; ++row) {
            s.Mat_index = static_cast<std::int16_t>(row);
            window->Work().Recalculate();
            Measure_window(measure);
        }
    }
    Expect_none(measure);
}

TEST_F(LayoutWalk, the_marks_of_old_results_and_of_the_sign) {
    Measure measure;
    const auto expect_room = [this, &measure](const char* name) {
        ASSERT_TRUE(Visible(name)) << name;
        Measure_window(measure);
    };
    for (const char* lang : {"Eng", "Nor"}) {
        Start(lang);
        Click("Opt_strekk");
        Enter_value("Txt_last", "12"); // stored positive
        expect_room("Lbl_sign");
        s.P = -12.0F;
        Find<QAbstractButton>("Opt_trykk").setChecked(true); // makes it positive again
        s.P = -12.0F;
        window->Work().Recalculate();
        expect_room("Lbl_sign");
        s.P = 12.0F;
        window->Work().Recalculate();
        Click("Check_man");
        Enter_value("Txt_last", "3");
        expect_room("Lbl_tverr_current");
        expect_room("Lbl_verdict");
        Click("Check_man");
        for (const char* height : {"0", "60"}) { // a side of zero; too low for the distances
            Find<QAbstractButton>("Opt_valg").setChecked(true);
            Box("Txt_h2").setText(QString::fromLatin1(height));
            window->Work().Pass();
            expect_room("Lbl_current");
        }
    }
    Expect_none(measure);
}

TEST_F(LayoutWalk, sums_of_four_digits_are_drawn_as_wide_as_their_letters) {
    for (const char* lang : {"Eng", "Nor"}) {
        Start(lang);
        Click("Opt_bolt_bulldog(1)");
        for (const float height : {405.0F, 9999.0F}) { // "> h", "< h"
            s.Sum_a = s.Sum_ca = s.Sum_b = s.Sum_cb = 1888.0F;
            s.h1 = s.h2 = height;
            s.Sum_a_txt = s.Sum_b_txt = "b1 + b2 + b3 + b4";
            Screen screen;
            Print_sum_a1(s, 70.0, 5.0, screen);
            Print_sum_b1(s, 40.0, 5.0, screen);
            const auto expect_whole = [](TableArea& table, const std::vector<PositionedText>& rows) {
                table.Set_rows(rows);
                Measure measure;
                measure.Tables(table);
                EXPECT_EQ(measure.Findings(), std::set<std::string>{});
            };
            expect_whole(Find<TableArea>("Pic_av_bolter_dif"), screen.Pic_av_bolter_dif);
            expect_whole(Find<TableArea>("Pic_av_bulldog_dif"), screen.Pic_av_bulldog_dif);
        }
    }
}

TEST_F(LayoutWalk, the_frames_stand_below_the_menu_bar_inside_the_window) {
    for (const char* lang : {"Eng", "Nor"}) {
        Start(lang);
        const QRect menu = window->menuBar()->geometry();
        EXPECT_EQ(menu.width(), window->width());
        const QRect ground{Ground().mapTo(window.get(), QPoint{}), Ground().size()};
        EXPECT_GE(ground.top(), menu.bottom() + 1);
        EXPECT_LE(ground.bottom(), window->rect().bottom());
        for (const char* frame : {"fra_input", "Fra_results"}) {
            EXPECT_TRUE(Ground().rect().contains(Find(frame).geometry())) << frame;
        }
        // Every title of the bar is to be seen.
        for (QAction* action : window->menuBar()->actions()) {
            const QRect title = window->menuBar()->actionGeometry(action);
            EXPECT_TRUE(window->menuBar()->rect().contains(title)) << action->text().toStdString();
            EXPECT_FALSE(title.isEmpty()) << action->text().toStdString();
        }
    }
}

TEST_F(LayoutWalk, the_dialogs) {
    Measure measure;
    for (const char* lang : {"Eng", "Nor"}) {
        Start(lang);
        for (const char* entry : {"mnuklasse", "mnusetup", "mnuabout"}) {
            Menu(entry, [&measure](QWidget& dialog) { measure.Window(dialog, dialog.rect()); });
        }
    }
    Expect_none(measure);
}

} // namespace
} // namespace tarnvik::test
