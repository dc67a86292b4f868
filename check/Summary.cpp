#include "check/Summary.h"

#include <array>
#include <cmath>
#include <vector>

#include "calc/Splitting.h"
#include "session/Standing.h"
#include "spacing/Catalogue.h"
#include "spacing/Rules.h"

namespace tarnvik {

namespace {

constexpr std::size_t name_width = 16;

std::string Number(float value, std::string_view picture) {
    return std::string{Trim(Format(value, picture))};
}

std::string Padded(std::string_view text, std::size_t width) {
    std::string padded{text};
    const std::size_t length = Character_count(text);
    padded.append(length < width ? width - length : 0, ' ');
    return padded;
}

std::string Right(std::string_view text, std::size_t width) {
    const std::size_t length = Character_count(text);
    std::string padded(length < width ? width - length : 0, ' ');
    padded += text;
    return padded;
}

void Line(std::string& text, std::string_view name, std::string_view value) {
    text += "  ";
    text += Padded(name, name_width);
    text += Right_trim(value);
    text += "\n";
}

// A utilisation and its verdict. The unrounded value decides, so it is shown in full where rounding would hide that.
std::string Verdict(float utilisation) {
    const bool holds = !(1.0F < utilisation);
    std::string shown = Number(utilisation, "0.00");
    if (!holds && shown == Number(1.0F, "0.00")) {
        shown = Shortest(utilisation).View();
    }
    return shown + (holds ? "  holds" : "  DOES NOT HOLD");
}

struct Members {
    std::string_view one, two;
};

Members Member_names(const ConnectionState& s) {
    return s.Con_type == 1 || s.Con_type == 3 ? Members{"top chord", "bottom chord"} : Members{"beam", "column"};
}

std::string Id_of(const std::string& id) {
    return id.empty() ? std::string{"-"} : id;
}

std::string Section(const ConnectionState& s, std::string_view member, bool twice, float b, float h, int profile) {
    std::string text = twice ? "double " : "single ";
    text += member;
    text = Padded(text, 22) + Number(b, "0.0") + " x " + Number(h, "0.0") + " mm";
    if (s.Standard && profile >= 0 && profile < prof_rows) {
        text += "  (" + Id_of(s.Prof[static_cast<std::size_t>(profile)].Id) + ")";
    }
    return text;
}

void Inputs(std::string& text, const ConnectionState& s) {
    const Members members = Member_names(s);
    Line(text, "Connection",
         std::string{s.Con_code.View()} + ", case " + std::string{Right_trim(s.Case_code)} + ", " +
             Number(s.alp, "0.0") + " degrees between the members");
    Line(text, "Member 1", Section(s, members.one, s.dob_1, s.b1, s.h1, s.Prof1_index));
    Line(text, "Member 2", Section(s, members.two, s.dob_2, s.b2, s.h2, s.Prof2_index));
    const MatRecord& material = s.Mat[static_cast<std::size_t>(s.Mat_index)];
    Line(text, "Material",
         Id_of(material.Id) + ", density " + Number(s.rho_k, "0") + " kg/m3, fc90k " + Number(s.fc90k, "0.0") +
             " N/mm2, gamma M " + Number(s.gm, "0.00"));
    Line(text, "Classes",
         std::string{Right_trim(s.Lastvar_txt)} + ", service class " + std::to_string(s.Klima) + ", kmod " +
             Number(s.kmod, "0.00"));
    std::string bolts = std::to_string(s.n_bolt) + " x ";
    bolts += s.Bolt_index >= 0 && s.Bolt_index < static_cast<int>(bolt_table.size())
                 ? bolt_table[static_cast<std::size_t>(s.Bolt_index)].caption
                 : std::string_view{"bolt"};
    bolts += ", washer " + Number(s.d_skive, "0.0") + " x " + Number(s.t_skive, "0.0") + " mm";
    Line(text, "Bolts", bolts);
    if (s.Med_bulldog) {
        const bool known = s.Bulldog_index >= 0 && s.Bulldog_index < static_cast<int>(connector_table.size());
        std::string connector{known ? connector_table[static_cast<std::size_t>(s.Bulldog_index)].caption_eng
                                    : std::string_view{"unknown"}};
        Line(text, "Connectors", connector + " tooth-plate, type C1");
    } else {
        Line(text, "Connectors", "none");
    }
    Line(text, "Design force", Number(std::fabs(s.P), "0.00") + " kN " + (s.P > 0.0F ? "compression" : "tension"));
}

struct Mode {
    char name;
    float value; // N
};

void Shear_plane(std::string& text, const ConnectionState& s) {
    std::vector<Mode> modes;
    if (s.dob_1 || s.dob_2) {
        modes = {{'g', s.Fv_g}, {'h', s.Fv_h}, {'j', s.Fv_j}, {'k', s.Fv_k}};
    } else {
        modes = {{'a', s.Fv_a}, {'b', s.Fv_b}, {'c', s.Fv_c}, {'d', s.Fv_d}, {'e', s.Fv_e}, {'f', s.Fv_f}};
    }
    const char governing = Governing_mode(s).mode;
    text += "\nCapacity of one bolt per shear plane, characteristic\n";
    for (const Mode& mode : modes) {
        std::string value = Right(Number(mode.value / 1000.0F, "0.00"), 8) + " kN";
        if (mode.name == governing) {
            value += "  governs";
        }
        Line(text, std::string{"mode "} + mode.name, value);
    }
    if (s.Med_bulldog) {
        Line(text, "connector", Right(Number(s.Fv_Rk, "0.00"), 8) + " kN");
    }
}

void Design(std::string& text, const ConnectionState& s) {
    text += "\nConnection\n";
    const float bolts = s.Has_row ? s.nef_b : s.n_bolt;
    Line(text, "effective",
         Number(bolts, "0.00") + " bolts" +
             (s.Med_bulldog ? ", " + Number(s.Has_row ? s.nef_f : s.n_bolt, "0.00") + " connectors" : std::string{}));
    std::string capacity = Number(s.Rd_bolt, "0.00") + " kN";
    if (s.Med_bulldog) {
        capacity = Number(s.Rd_bolt, "0.00") + " kN bolts + " + Number(s.Rd_for, "0.00") + " kN connectors";
    }
    Line(text, "design capacity", capacity);
    Line(text, "utilisation", Verdict(s.uf));

    text += "\nSplitting across the grain\n";
    if (s.Man_he_on) {
        Line(text, "he", Number(s.man_he, "0") + " mm, given by hand: see the checks");
        return;
    }
    float h = 0.0F;
    float b = 0.0F;
    Get_splitting_member(s, h, b);
    Line(text, "he", Number(s.he, "0") + " mm in a member of height " + Number(h, "0.0") + " mm");
    Line(text, "force across", Number(s.P_sin, "0.00") + " kN, capacity " + Number(s.F90_Rd, "0.00") + " kN");
    Line(text, "utilisation", Verdict(s.Tverr_kontroll));
}

void Sum_line(std::string& text, std::string_view label, float bolts, float connectors, bool with_connectors, float h) {
    const auto compared = [h](float sum) { return sum > h ? "> h " : "< h "; };
    std::string row = "  " + Padded(Right_trim(label), 18) + Right(Number(bolts, "0"), 5) + "  " +
                      Padded(compared(bolts) + Number(h, "0.0"), 26);
    if (with_connectors) {
        row += Right(Number(connectors, "0"), 5) + "  " + compared(connectors) + Number(h, "0.0");
    }
    text += Right_trim(row);
    text += "\n";
}

// Every distance of the case as the record holds it, the sum of each family after its last distance.
void Distances(std::string& text, const ConnectionState& s) {
    text += "\nMinimum distances, mm\n";
    text += s.Med_bulldog ? "                      bolts                           connectors\n"
                          : "                      bolts\n";
    for (int i = 0; i < distance_count; ++i) {
        const DistanceFields& fields = Fields_of(static_cast<Distance>(i));
        if (!(s.*fields.lbl).empty()) {
            std::string row = "  " + Padded(s.*fields.lbl, 18) + Right(Number(s.*fields.S, "0"), 5) + "  " +
                              Padded(Right_trim(s.*fields.S_txt), 26);
            if (s.Med_bulldog) {
                row += Right(Number(s.*fields.C, "0"), 5) + "  ";
                row += s.*fields.C_txt;
            }
            text += Right_trim(row);
            text += "\n";
        }
        if (i == a6) {
            Sum_line(text, s.Sum_a_txt, s.Sum_a, s.Sum_ca, s.Med_bulldog, s.h1);
        } else if (i == b6) {
            Sum_line(text, s.Sum_b_txt, s.Sum_b, s.Sum_cb, s.Med_bulldog, s.h2);
        }
    }
}

} // namespace

std::string Summary(const std::string& project, const ConnectionState& s, const PassResult& result,
                    const MessageLog& box) {
    std::string text = project.empty() ? std::string{} : project + ": ";
    text += s.Prosjekt + ", " + s.Id + "\n";
    switch (result.end) {
    case PassEnd::connector_refused:
        text += "  Not calculated: the connector does not fit the bolt.\n";
        break;
    case PassEnd::zero_section:
        text += "  Not calculated: a member has a side of 0 mm.\n";
        break;
    case PassEnd::fault:
        text += "  Not calculated: " + Fault_text(*result.fault) + "\n";
        break;
    case PassEnd::normal:
        Inputs(text, s);
        Shear_plane(text, s);
        Design(text, s);
        Distances(text, s);
        break;
    }
    for (const auto& message : box.messages) {
        text += "  " + message.text + "\n";
    }
    return text;
}

} // namespace tarnvik
