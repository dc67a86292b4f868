#include "spacing/Plot_screen.h"

#include "spacing/Catalogue.h"
#include "spacing/Pictures.h"
#include "spacing/Presentation.h"
#include "spacing/Rules.h"

namespace tarnvik {

void Plot_connection(const ConnectionValues& s, const ScreenWriter& show) {
    if (Screen* const screen = show.Target()) {
        if (const std::string_view key = Connection_key(s.Con_code); !key.empty()) {
            screen->Pic_forbindelse = key;
        }
    }
}

void Clear_tables(const ScreenWriter& show) {
    if (Screen* const screen = show.Target()) {
        screen->Pic_av_bolter_dif.clear();
        screen->Pic_av_bulldog_dif.clear();
    }
}

void Plot_screen(ConnectionValues& s, const ScreenWriter& show) {
    const int row = Plotted_case(s);
    if (row < 0) {
        return;
    }
    Screen* const screen = show.Target();
    if (screen != nullptr) {
        screen->Pic_av_bolter = Sketch_key(row, s.P);
        screen->Pic_av_bulldog = screen->Pic_av_bolter;
    }
    Calc_spacing(s, row);
    if (screen != nullptr) {
        screen->Pic_av_bolter_dif.clear();
        Print_case(s, row, *screen);
    }
}

} // namespace tarnvik
