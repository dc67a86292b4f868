#include "data/StartValue.h"

namespace tarnvik {

void Name_new_file(ConnectionState& s) {
    s.File_named = false;
    if (s.Lang == "Eng") {
        s.File_name = "New File";
    } else if (s.Lang == "Nor") {
        s.File_name = "Ny Fil";
    }
}

void StartValue(ConnectionState& s) {
    Name_new_file(s);
    if (s.Lang == "Eng") {
        s.Prosjekt = "Project 1";
        s.Id = "Bolt Connections -1";
    } else if (s.Lang == "Nor") {
        s.Prosjekt = "Prosjekt 1";
        s.Id = "Bolteforbindelse - 1";
    }
    s.Lastvar = 1;
    s.Klima = 1;
    s.Med_bulldog = false;
    s.Bulldog_index = 1; // D62
    s.dc = 62.0F;
    s.Kun_bolt = true;
    s.Bolt_index = 6; // M20x8.8
    s.Prof2_index = 6;
    s.Ant_index = 1; // two bolts
    s.Mat_index = 3; // C20 in the delivered table
    s.Prof1_index = 3;
    s.Standard = true;
    s.P = 10.0F;
    s.alp = 25.0F; // the first choice of a type sets 27 or 90
    s.Con_type = 1;
    s.enk_1 = true;
    s.enk_2 = true;
    s.Man_he_on = false;
    s.Bolt_ab = "b";
    s.Avstand_index = 0; // 5d
}

} // namespace tarnvik
