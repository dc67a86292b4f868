// Names and tooltips of every input in both languages, and what screen readers are told.
#include <QAccessible>

#include <algorithm>
#include <regex>
#include <set>

#include "frontend/controls/Descriptions.h"
#include "frontend/controls/PaintedArea.h"
#include "tests/support/Window.h"

namespace tarnvik::test {
namespace {

std::string Filled(const Words& words, bool english, const std::string& one, const std::string& two) {
    const std::string text{words.In(english)};
    return std::regex_replace(std::regex_replace(text, std::regex{"\\{1\\}"}, one), std::regex{"\\{2\\}"}, two);
}

const Description& Row_for(std::string_view window, const std::string& control) {
    const std::span<const Description> rows = Descriptions();
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const Description& row) {
        return row.window == window && row.control == control;
    });
    if (found == rows.end()) {
        throw std::runtime_error{"no description of " + std::string{window} + "." + control};
    }
    return *found;
}

bool Is_input(const QWidget& widget) {
    return dynamic_cast<const TextBox*>(&widget) != nullptr || dynamic_cast<const ListBox*>(&widget) != nullptr ||
           dynamic_cast<const QAbstractButton*>(&widget) != nullptr;
}

class Described : public WindowTest {
protected:
    static QAccessibleInterface& Read(QWidget& widget) {
        QAccessibleInterface* read = QAccessible::queryAccessibleInterface(&widget);
        if (read == nullptr) {
            throw std::runtime_error{"nothing to be read of " + widget.objectName().toStdString()};
        }
        return *read;
    }
    QAccessibleInterface& Read(const std::string& name) { return Read(Find(name)); }
    std::string Name(const std::string& control) { return Read(control).text(QAccessible::Name).toStdString(); }
    std::string Value(const std::string& control) { return Read(control).text(QAccessible::Value).toStdString(); }
    std::string Description_of(const std::string& control) {
        return Read(control).text(QAccessible::Description).toStdString();
    }
    static std::string Whole_text(QWidget& widget) {
        const QAccessibleTextInterface* text = Read(widget).textInterface();
        return text == nullptr ? "" : text->text(0, text->characterCount()).toStdString();
    }

    // Every input of a window has its row's name and tooltip, and a screen reader says that name, not the value.
    static void Expect_inputs(QWidget& within, std::string_view window, bool english, const std::string& one = {},
                              const std::string& two = {}) {
        int inputs = 0;
        for (QWidget* control : within.findChildren<QWidget*>()) {
            const std::string name = control->objectName().toStdString();
            if (!Is_input(*control) || control->window() != within.window()) {
                continue;
            }
            ++inputs;
            const Description& row = Row_for(window, name);
            EXPECT_EQ(control->toolTip().toStdString(), Filled(row.tip, english, one, two)) << name;
            EXPECT_FALSE(control->toolTip().isEmpty()) << name;
            const std::string read = Read(*control).text(QAccessible::Name).toStdString();
            EXPECT_EQ(read, Filled(row.name, english, one, two)) << name;
            EXPECT_FALSE(read.empty()) << name;
            EXPECT_NE(read, Read(*control).text(QAccessible::Value).toStdString()) << name;
        }
        EXPECT_GT(inputs, 6);
    }
    void Turn_to(const char* button) {
        Menu("mnusetup", [button](QWidget& dialog) { Click(Find_in<QWidget>(dialog, button)); });
    }
};

TEST_F(Described, every_input_of_the_window_in_both_languages) {
    Start("Eng");
    Expect_inputs(*window->centralWidget(), "frmMain", true, "Top chord", "Bottom chord");
    Turn_to("Cmd_nor");
    Expect_inputs(*window->centralWidget(), "frmMain", false, "Overgurt", "Undergurt");
    Turn_to("Cmd_eng");
    Expect_inputs(*window->centralWidget(), "frmMain", true, "Top chord", "Bottom chord");
}

TEST_F(Described, every_input_of_the_classes_and_of_the_setup_in_both_languages) {
    for (const char* lang : {"Eng", "Nor"}) {
        Start(lang);
        const bool english = std::string_view{lang} == "Eng";
        Menu("mnuklasse", [&](QWidget& dialog) { Expect_inputs(dialog, "Frm_tarn_vik_fak_klass", english); });
        Menu("mnusetup", [&](QWidget& dialog) {
            Expect_inputs(dialog, "frmSetup", english);
            Click(Find_in<QWidget>(dialog, english ? "Cmd_nor" : "Cmd_eng"));
            Expect_inputs(dialog, "frmSetup", !english);
        });
        Menu("mnuklasse", [&](QWidget& dialog) { Expect_inputs(dialog, "Frm_tarn_vik_fak_klass", !english); });
    }
}

TEST_F(Described, names_follow_the_language_of_an_opened_project) {
    Start("Eng");
    dialogs.answer = (work / "joint.tnvik").string();
    Menu("mnuFileItem(3)");
    Turn_to("Cmd_nor");
    EXPECT_EQ(Name("txtid"), "Identifikasjon");
    EXPECT_EQ(Name("Txt_b1"), "Overgurt, bredde b, mm");
    Menu("mnuFileItem(1)");
    EXPECT_EQ(Name("txtid"), "Identification");
    EXPECT_EQ(Name("Txt_b1"), "Top chord, width b, mm");
}

TEST_F(Described, boxes_name_their_member_as_the_window_does) {
    Start("Eng");
    Click("Cmd_type(3)");
    EXPECT_EQ(Name("Txt_b1"), "Top chord, width b, mm"); // and so says the frame
    Turn_to("Cmd_nor");
    EXPECT_EQ(Text("Fra_dim_2"), "Søyle");
    EXPECT_EQ(Name("Txt_b1"), "Bjelke, bredde b, mm");
    EXPECT_EQ(Name("Txt_h2"), "Søyle, høyde h, mm");
    EXPECT_EQ(Name("cboProf2"), "Søyle, standardtverrsnitt b x h, mm");
    EXPECT_EQ(Name("Opt_dob_2"), "Søyle: dobbel, to stykker");
    Click("Cmd_type(2)");
    Turn_to("Cmd_eng");
    EXPECT_EQ(Name("Txt_h2"), "Bottom chord, height h, mm");
}

// The table.

TEST(DescriptionTable, a_row_for_a_control_short_and_in_two_languages) {
    std::set<std::pair<std::string_view, std::string_view>> seen;
    for (const Description& row : Descriptions()) {
        EXPECT_TRUE(seen.emplace(row.window, row.control).second) << row.control << " twice";
        if (row.name.eng != "OK" && !row.name.eng.empty()) {
            EXPECT_NE(row.name.eng, row.name.nor) << row.control;
        }
        EXPECT_EQ(row.tip.eng.empty(), row.tip.nor.empty()) << row.control;
        if (!row.tip.eng.empty() && row.tip.eng != "kN") {
            EXPECT_NE(row.tip.eng, row.tip.nor) << row.control;
        }
        for (const std::string_view tip : {row.tip.eng, row.tip.nor}) {
            EXPECT_LE(std::count(tip.begin(), tip.end(), '\n'), 2) << row.control;
        }
        for (const char* place : {"{1}", "{2}", "%1"}) {
            EXPECT_EQ(row.name.eng.find(place) == std::string_view::npos,
                      row.name.nor.find(place) == std::string_view::npos)
                << row.control << " " << place;
            EXPECT_EQ(row.tip.eng.find(place) == std::string_view::npos,
                      row.tip.nor.find(place) == std::string_view::npos)
                << row.control << " " << place;
        }
    }
}

// Both languages cite the same clauses and give the same figures; the decimal sign is each one's own.
TEST(DescriptionTable, the_same_figures_in_both_languages) {
    const auto figures = [](std::string_view text) {
        std::multiset<std::string> found;
        std::string all{text};
        std::replace(all.begin(), all.end(), ',', '.');
        const std::regex figure{"[0-9]+([.][0-9]+)*"};
        for (std::sregex_iterator at{all.begin(), all.end(), figure}; at != std::sregex_iterator{}; ++at) {
            found.insert(at->str());
        }
        return found;
    };
    for (const Description& row : Descriptions()) {
        EXPECT_EQ(figures(row.name.eng), figures(row.name.nor)) << row.control;
        EXPECT_EQ(figures(row.tip.eng), figures(row.tip.nor)) << row.control;
    }
}

TEST(DescriptionTable, no_word_of_the_other_language) {
    const auto words = [](std::string_view text) {
        std::set<std::string> found;
        std::string word;
        for (const char letter : std::string{text} + " ") {
            if (static_cast<unsigned char>(letter) >= 0x80 || std::isalpha(static_cast<unsigned char>(letter)) != 0) {
                word += static_cast<char>(letter >= 'A' && letter <= 'Z' ? letter - 'A' + 'a' : letter);
            } else if (!word.empty()) {
                found.insert(word);
                word.clear();
            }
        }
        return found;
    };
    std::set<std::string> english;
    std::set<std::string> norwegian;
    for (const Description& row : Descriptions()) {
        for (const std::string_view text : {row.name.eng, row.tip.eng}) {
            english.merge(words(text));
        }
        for (const std::string_view text : {row.name.nor, row.tip.nor}) {
            norwegian.merge(words(text));
        }
    }
    // Symbols, units, names of files and products, and words that are the same in both.
    const std::set<std::string> shared{
        "ok",    "en",         "mm",        "kn",  "n",      "kg",       "m",           "b",
        "h",     "d",          "p",         "x",   "t",      "c",        "k",           "fc",
        "fu",    "he",         "rd",        "rk",  "dc",     "ctrl",     "kmod",        "ρk",
        "γm",    "α",          "f",         "e",   "a",      "g",        "j",           "type",
        "bolt",  "alternativ", "kerto",     "lvl", "bjelke", "diameter", "°c",          "for",
        "under", "i",          "permanent", "to",  "°",      "csv",      "tarviksetup", "tarnviksetup",
        "mm²",   "m³",         "over"};
    for (const std::string& word : english) {
        EXPECT_TRUE(shared.count(word) == 1 || norwegian.count(word) == 0) << word << " in both languages";
    }
    for (const char* letter : {"æ", "ø", "å"}) {
        for (const std::string& word : english) {
            EXPECT_EQ(word.find(letter), std::string::npos) << word;
        }
    }
}

// What the tooltips say is what the program does.

TEST_F(Described, figures_in_the_tooltips_are_those_of_the_program) {
    Start("Eng");
    for (int i = 0; i < 5; ++i) {
        const std::string name = "Cmd_type(" + std::to_string(i) + ")";
        Click(name);
        const std::string degrees = std::to_string(static_cast<int>(s.alp)) + "°";
        EXPECT_NE(Find(name).toolTip().indexOf(QString::fromStdString(degrees)), -1) << name;
    }
    const auto& classes = Find<QDialog>("Frm_tarn_vik_fak_klass");
    for (int i = 0; i < 5; ++i) {
        const QString name = QStringLiteral("Opt_Lastvarighet(%1)").arg(i);
        const ClassRow& row = class_table[static_cast<std::size_t>(i)];
        const std::string said = "kmod = " + std::string{Format(row.kmod_12, "0.00").View()} +
                                 " in service classes 1 and 2, " + std::string{Format(row.kmod_3, "0.00").View()} +
                                 " in class 3.";
        EXPECT_NE(classes.findChild<QWidget*>(name)->toolTip().indexOf(QString::fromStdString(said)), -1) << said;
    }
    const auto says = [this](const char* control, const std::string& words) {
        EXPECT_NE(Find(control).toolTip().indexOf(QString::fromStdString(words)), -1) << control << ": " << words;
    };
    const auto [thin, thick] = std::minmax_element(
        bolt_table.begin(), bolt_table.end(), [](const BoltRow& one, const BoltRow& other) { return one.d < other.d; });
    says("Comb_bolter",
         "M" + std::string{Format(thin->d, "0").View()} + " to M" + std::string{Format(thick->d, "0").View()});
    says("Comb_bulldog", std::string{connector_table.front().size} + " to " + std::string{connector_table.back().size});
    std::string numbers;
    for (const int number : bolt_numbers) {
        const bool last = number == bolt_numbers.back();
        numbers += (numbers.empty() ? "" : last ? " or " : ", ") + std::to_string(number);
    }
    says("Comb_ant_bolt", numbers + ".");
    const QComboBox& spacings = Find<QComboBox>("Comb_bolt_avstand");
    EXPECT_NE(spacings.toolTip().indexOf(spacings.itemText(0) + QLatin1String(" to ") +
                                         spacings.itemText(spacings.count() - 1)),
              -1);
}

// Screen readers.

TEST_F(Described, lists_have_a_name_and_a_value) {
    Start("Eng");
    EXPECT_EQ(Read("Comb_bolter").role(), QAccessible::ComboBox);
    EXPECT_EQ(Name("Comb_bolter"), "Bolt, size and grade");
    EXPECT_EQ(Value("Comb_bolter"), "M20x8.8");
    EXPECT_EQ(Whole_text(Find("Comb_bolter")), "M20x8.8");
    Pick("Comb_bolter", 1);
    EXPECT_EQ(Name("Comb_bolter"), "Bolt, size and grade");
    EXPECT_EQ(Value("Comb_bolter"), "M16x4.6");
    QAccessibleInterface& list = Read("Comb_bolter");
    ASSERT_EQ(list.childCount(), 1);
    EXPECT_EQ(list.child(0)->role(), QAccessible::List);
    EXPECT_EQ(list.child(0)->childCount(), 8);
    EXPECT_EQ(list.indexOfChild(list.child(0)), 0);
    EXPECT_EQ(list.indexOfChild(&Read("Comb_bulldog")), -1);
    EXPECT_EQ(list.child(1), nullptr);
    ASSERT_NE(list.actionInterface(), nullptr);
    list.actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_TRUE(list.state().expanded);
    list.actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_FALSE(list.state().expanded);
}

TEST_F(Described, the_choice_in_force_is_read_and_made) {
    Start("Eng");
    EXPECT_EQ(Read("Cmd_type(0)").role(), QAccessible::RadioButton);
    EXPECT_TRUE(Read("Cmd_type(0)").state().checked);
    EXPECT_FALSE(Read("Cmd_type(3)").state().checked);
    Read("Cmd_type(3)").actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(s.Con_type, 4);
    EXPECT_FALSE(Read("Cmd_type(0)").state().checked);
    EXPECT_TRUE(Read("Cmd_type(3)").state().checked);
    EXPECT_TRUE(Read("Cmd_boltetype(1)").state().checked);
    Click("Cmd_boltetype(0)");
    EXPECT_TRUE(Read("Cmd_boltetype(0)").state().checked);
}

TEST_F(Described, frames_are_read_with_their_own_titles) {
    Start("Eng");
    EXPECT_EQ(Name("Fra_bolter"), "Bolt data");
    EXPECT_EQ(Name("Fra_dim_1"), "Top chord");
    EXPECT_EQ(Read("Fra_dim_1").role(), QAccessible::Grouping);
}

TEST_F(Described, pictures_say_what_they_show) {
    Start("Eng");
    EXPECT_EQ(Read("Pic_forbindelse").role(), QAccessible::Graphic);
    EXPECT_EQ(Description_of("Pic_forbindelse"), "Connection 1.1: Top chord single, Bottom chord single.");
    EXPECT_EQ(Description_of("Pic_av_bolter"), "Case 1.2.b: 2 bolts, Alt. 2, compression.");
    Click("Opt_dob_1");
    Click("Opt_strekk");
    Pick("Comb_ant_bolt", 3);
    EXPECT_EQ(Description_of("Pic_forbindelse"), "Connection 1.2: Top chord double, Bottom chord single.");
    EXPECT_EQ(Description_of("Pic_av_bolter"), "Case 1.4: 4 bolts, tension.");
    EXPECT_EQ(Description_of("Pic_av_bulldog"), "Case 1.4: 4 bolts, tension.");
    Pick("Comb_ant_bolt", 0);
    Turn_to("Cmd_nor");
    EXPECT_EQ(Name("Pic_av_bolter"), "Skisse av avstandene for bolter");
    EXPECT_EQ(Description_of("Pic_av_bolter"), "Tilfelle 1.1: 1 bolt, strekk.");
    EXPECT_EQ(Description_of("Pic_forbindelse"), "Forbindelse 1.2: Overgurt dobbel, Undergurt enkel.");
}

// Two M20 bolts of type 1 in arrangement b: 3 d = 60 at both edges of the top chord, which is 95 high, and so on.
TEST_F(Described, the_tables_of_the_distances_are_read_line_by_line) {
    Start("Eng");
    EXPECT_EQ(Name("Pic_av_bolter_dif"), "Minimum distances of the bolts, mm");
    const std::string bolts = Whole_text(Find("Pic_av_bolter_dif"));
    EXPECT_TRUE(bolts.starts_with("a1 = 3 x d = 60\na2 = 3 x d = 60\na1+a2 = 120 > h top chord\na3 = 5 x d = 100\n"))
        << bolts;
    EXPECT_TRUE(bolts.ends_with("\nNote: b2 is not applicable for small angles")) << bolts;
    EXPECT_EQ(Value("Pic_av_bolter_dif"), bolts);
    Pick("Comb_bolter", 4); // M12
    EXPECT_TRUE(Whole_text(Find("Pic_av_bolter_dif")).starts_with("a1 = 3 x d = 36\n"));
    Click("Opt_bolt_bulldog(1)"); // D62: 0.6 D are 37
    const std::string connectors = Whole_text(Find("Pic_av_bulldog_dif"));
    EXPECT_TRUE(connectors.starts_with("a1 = ")) << connectors;
    EXPECT_NE(connectors.find(" = 37\n"), std::string::npos) << connectors;
    Turn_to("Cmd_nor");
    EXPECT_EQ(Name("Pic_av_bulldog_dif"), "Minsteavstander for forbindere, mm");
    EXPECT_NE(Whole_text(Find("Pic_av_bulldog_dif")).find("h overgurt"), std::string::npos);
}

TEST_F(Described, results_are_read_with_what_they_are) {
    Start("Eng");
    const auto trimmed = [this](const char* label) { return Find<QLabel>(label).text().trimmed().toStdString(); };
    EXPECT_EQ(Name("Lbl_uf"), "Utilisation: " + trimmed("Lbl_uf"));
    EXPECT_EQ(Name("Lbl_bolt_kap2"), "Design capacity of the bolts Rd: " + trimmed("Lbl_bolt_kap2") + " kN");
    EXPECT_EQ(Name("Lbl_kmod2"), "Modification factor kmod: 0.60");
    EXPECT_EQ(Name("Lbl_lastvar_2"), "Load-duration class: Permanent action");
    Turn_to("Cmd_nor");
    EXPECT_EQ(Name("Lbl_uf"), "Utnyttelse: " + trimmed("Lbl_uf"));
    EXPECT_EQ(Name("Lbl_lastvar_2"), "Lastvarighetsklasse: Permanent");
    for (const Description& row : Descriptions()) {
        if (row.window == "frmMain" && row.name.eng.find("%1") != std::string_view::npos) {
            EXPECT_EQ(Name(std::string{row.control}).find("%1"), std::string::npos) << row.control;
        }
    }
}

TEST_F(Described, the_detailed_calculations_and_explanations_are_read_as_text) {
    for (const char* lang : {"Eng", "Nor"}) {
        Start(lang);
        const bool english = std::string_view{lang} == "Eng";
        In_dialog([&](QWidget& dialog) {
            const std::string text = Whole_text(Find_in<PaintedArea>(dialog, "Pic_detailed"));
            // 1.35 + 0.015 x 20
            EXPECT_NE(text.find("k90 = 1.35 + 0.015 x d = 1.35 + 0.015 x 20 = 1.65\n"), std::string::npos) << text;
            EXPECT_EQ(Read(Find_in<QWidget>(dialog, "Pic_r_c")).text(QAccessible::Name).toStdString(),
                      english ? "Equation of Rk(c), (8.6 c)" : "Ligning for Rk(c), (8.6 c)");
            EXPECT_EQ(Read(Find_in<QWidget>(dialog, "Lbl_governs")).text(QAccessible::Name).toStdString(),
                      english ? "Rk(c) governs" : "Rk(c) avgjørende");
        });
        Click("Cmd_detail");
        Be_active();
        In_dialog([&](QWidget& dialog) {
            EXPECT_FALSE(Whole_text(Find_in<PaintedArea>(dialog, "Pic_txt_tverr_brudd")).empty());
            EXPECT_EQ(Read(Find_in<PictureArea>(dialog, "Pic_tverr_brudd")).text(QAccessible::Name).toStdString(),
                      english ? "Equation of the splitting capacity, (8.4)"
                              : "Ligning for kapasiteten mot tverrstrekk, (8.4)");
        });
        Click("Cmd_tverr");
        Be_active();
    }
}

TEST_F(Described, marks_are_read_as_what_they_say_now) {
    Start("Eng");
    EXPECT_EQ(Read("Lbl_verdict").role(), QAccessible::AlertMessage);
    EXPECT_EQ(Name("Lbl_verdict"), Text("Lbl_verdict"));
    EXPECT_EQ(Description_of("Lbl_verdict"), Find("Lbl_verdict").toolTip().toStdString());
    Click("Opt_bolt_bulldog(1)");
    Pick("Comb_bulldog", 0); // refused
    EXPECT_TRUE(Read("Lbl_verdict").state().invisible);
    EXPECT_EQ(Read("Lbl_current").role(), QAccessible::AlertMessage);
    EXPECT_EQ(Name("Lbl_current"), "Not current: connector refused");
    EXPECT_FALSE(Read("Lbl_current").state().invisible);
}

} // namespace
} // namespace tarnvik::test
