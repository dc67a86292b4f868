// The lists of the main window: what they offer and what a choice in them writes.
#pragma once

#include <QObject>

#include <cstdint>

#include "frontend/controls/Controls.h"
#include "frontend/main/MainControls.h"
#include "session/Session.h"

namespace tarnvik {

class Lists : public QObject {
    Q_OBJECT

public:
    Lists(const MainControls& controls, Session& session);

    // Fill a list, or several, and select the row of the state. Errors of the second: throws RuntimeFault 9 where a
    // count exceeds its table.
    void WritefrmCboBulldog();
    void WritefrmCboMatProf();
    void WritefrmInput2();

    // Comb_bulldog in the language of Lang with no row selected.
    void Fill_bulldog();
    // The same with D62 selected; the selection runs its handler.
    void Refill_bulldog();

    // Select the rows of the state: of bolt, connector and number; of the two sections.
    void Select_fasteners();
    void Select_sections();

private:
    void Connect_list(ListBox& list, void (*write)(ConnectionValues& s, std::int16_t row));

    Session& session_;
    ConnectionState& s_;
    ListBox& bolts_;
    ListBox& numbers_;
    ListBox& spacings_;
    ListBox& connectors_;
    ListBox& materials_;
    ListBox& profiles_1_;
    ListBox& profiles_2_;
};

} // namespace tarnvik
