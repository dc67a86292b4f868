// The first check of the manual, step by step on the real window, and what the manual shows of the program. Where
// TARNVIK_MANUAL names a folder, the windows are kept there as vector pictures, and what the tables of the manual are
// made of as JSON: tools/make_manual.py asks for that.
#include <nlohmann/json.hpp>

#include <QMarginsF>
#include <QPainter>
#include <QPdfWriter>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <optional>
#include <string>

#include "calc/pass/Main_beregn.h"
#include "frontend/controls/Descriptions.h"
#include "frontend/dialogs/frmDetailed.h"
#include "spacing/Catalogue.h"
#include "spacing/Rules.h"
#include "tests/support/Window.h"

namespace tarnvik::test {
namespace {

using Json = nlohmann::json;

std::optional<std::filesystem::path> Kept_in() {
    const char* const name = std::getenv("TARNVIK_MANUAL"); // NOLINT(concurrency-mt-unsafe): nobody sets it
    return name == nullptr ? std::nullopt : std::optional<std::filesystem::path>{name};
}

void Keep(const std::string& name, const Json& facts) {
    if (const auto folder = Kept_in()) {
        std::ofstream{*folder / name} << facts.dump(1) << "\n";
    }
}

class Manual : public WindowTest {
protected:
    ~Manual() override { Keep("windows-" + walk_ + ".json", shown_); }

    // A window, or a part of one, as a page of its own size.
    void Picture(QWidget& part, const std::string& name) {
        Settle();
        Json texts = Json::array();
        for (const QWidget* control : part.findChildren<QWidget*>()) {
            if (control->isVisible() && !control->objectName().startsWith(QLatin1String("qt_"))) {
                const QRect place{control->mapTo(&part, QPoint{}), control->size()};
                texts.push_back({control->objectName().toStdString(), control->accessibleName().toStdString(),
                                 place.x(), place.y(), place.width(), place.height()});
            }
        }
        shown_[name] = std::move(texts);
        if (const auto kept = Kept_in()) {
            constexpr double points_per_pixel = 72.0 / 96.0;
            QPdfWriter page{QString::fromStdString((*kept / (name + ".pdf")).string())};
            page.setResolution(96);
            page.setPageSize(QPageSize{QSizeF{part.size()} * points_per_pixel, QPageSize::Point});
            page.setPageMargins(QMarginsF{});
            QPainter painter{&page};
            part.render(&painter);
        }
    }
    void Name_walk(const std::string& walk) { walk_ = walk; }

private:
    std::string walk_;
    Json shown_ = Json::object();
};

// Chapter 2, up to the result that does not hold and the one that does.
TEST_F(Manual, the_first_check) {
    Name_walk("first-check");
    Start();
    Picture(*window, "window-start");

    Enter_value("txtprosjekt", "Storgata 4");
    Enter_value("txtid", "Heel joint");
    Click("Cmd_type(0)");
    EXPECT_EQ(s.alp, 27.0F);
    Pick("cboMat", 5);
    EXPECT_EQ(Find<QComboBox>("cboMat").currentText(), "C24");
    Click("Opt_valg");
    for (const auto& [box, value] :
         {std::pair{"Txt_b1", "48"}, {"Txt_h1", "198"}, {"Txt_b2", "48"}, {"Txt_h2", "223"}}) {
        Enter_value(box, value);
    }
    Pick("Comb_bolter", 5);
    EXPECT_EQ(Find<QComboBox>("Comb_bolter").currentText(), "M16x8.8");
    EXPECT_EQ(Find<QComboBox>("Comb_ant_bolt").currentText(), "2");
    Menu("mnuklasse", [this](QWidget& dialog) {
        Click(Find_in<QWidget>(dialog, "Opt_Lastvarighet(2)"));
        Picture(dialog, "window-classes");
        Click(Find_in<QWidget>(dialog, "Cmd_ok"));
    });
    EXPECT_EQ(Text("Lbl_kmod2"), "0.80 ");
    Type("Txt_last", "12");
    Picture(Find("Fra_last"), "window-editing");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Text("Lbl_uf"), "1.46 ");
    EXPECT_EQ(Text("Lbl_tverr_2"), "0.46");
    EXPECT_EQ(Text("Lbl_verdict"), "Does not hold: utilisation");
    Picture(*window, "window-fails");

    Pick("Comb_ant_bolt", 3);
    EXPECT_EQ(Text("Lbl_uf"), "0.73 ");
    EXPECT_EQ(Text("Lbl_bolt_kap2"), "16.4 ");
    EXPECT_EQ(Text("Lbl_2_nef_max"), "2.94 ");
    EXPECT_EQ(Text("Lbl_verdict"), "Holds");
    Picture(*window, "window-holds");

    frmDetailed detailed{*window, window->Work()};
    detailed.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&detailed));
    Picture(Find_in<QWidget>(detailed, "Fra_detailed"), "window-detailed");
}

// The marks of chapter 4.
TEST_F(Manual, the_marks) {
    Name_walk("marks");
    Start();
    Click("Opt_bolt_bulldog(1)");
    Pick("Comb_bulldog", 0);
    Answer(); // D50 does not take the M20 of a new project
    EXPECT_EQ(Text("Lbl_current").substr(0, 13), "Not current: ");
    Picture(*window, "window-not-current");

    Start();
    Click("Opt_strekk");
    Enter_value("Txt_last", "5");
    EXPECT_EQ(Text("Lbl_sign"), "calculated as compression");
    Picture(Find("Fra_last"), "mark-sign");
    Click("Check_man");
    Enter_value("Txt_man_he", "50");
    Enter_value("Txt_last", "6");
    EXPECT_EQ(Text("Lbl_tverr_current"), "Not current");
    Picture(Find("Fra_tverr_brudd"), "mark-splitting");
    Menu("mnusetup", [this](QWidget& dialog) { Picture(dialog, "window-setup"); });
}

// What the tables of chapters 3 and 9 are made of.
TEST(ManualFacts, inputs) {
    Json inputs = Json::array();
    for (const Description& row : Descriptions()) {
        if (!row.tip.eng.empty()) {
            inputs.push_back({row.window, row.control, row.name.eng, row.tip.eng});
        }
    }
    EXPECT_GT(inputs.size(), 40U);
    Keep("inputs.json", inputs);
}

// The distances of a case under a force of this sign: the formulas, and whether the record has every number, whatever
// bolt, spacing and angle.
Json Distances_of(int case_row, float force) {
    const CaseDistances& joint = case_distances[static_cast<std::size_t>(case_row)];
    Json listed = Json::array();
    for (const float d : {12.0F, 24.0F}) {
        for (const float alp : {20.0F, 80.0F}) {
            for (const std::int16_t spacing : std::array<std::int16_t, 2>{0, 15}) {
                ConnectionValues s;
                s.d = d;
                s.dc = 75.0F;
                s.alp = alp;
                s.P = force;
                s.Avstand_index = spacing;
                Calc_spacing(s, case_row);
                std::size_t row = 0;
                for (const ListedDistance& one : Listed_distances(s, case_row)) {
                    const int place = one.distance < b1 ? one.distance - a1 : one.distance - b1;
                    const MemberDistances& member = one.distance < b1 ? joint.a : joint.b;
                    if (row == listed.size()) {
                        listed.push_back({{"name", Label_of(one.distance)},
                                          {"across", place < member.across},
                                          {"bolts", one.S_formula},
                                          {"connectors", one.C_formula},
                                          {"missing", false}});
                    }
                    Json& first = listed[row++];
                    EXPECT_EQ(first["bolts"], one.S_formula) << joint.Case_code;
                    EXPECT_EQ(first["connectors"], one.C_formula) << joint.Case_code;
                    first["missing"] = first["missing"].get<bool>() || !one.S || !one.C;
                }
            }
        }
    }
    return listed;
}

TEST(ManualFacts, rules_of_the_cases) {
    Json cases = Json::array();
    for (int i = 0; i < case_count; ++i) {
        cases.push_back({{"case", case_table[static_cast<std::size_t>(i)].Case_code},
                         {"tension", Distances_of(i, -1.0F)},
                         {"compression", Distances_of(i, 1.0F)}});
    }
    EXPECT_EQ(cases.size(), 35U);
    Keep("rules.json", cases);
}

} // namespace
} // namespace tarnvik::test
