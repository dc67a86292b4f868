#include "frontend/main/Lists.h"

#include <QSignalBlocker>
#include <QStringList>

#include "data/Tables.h"
#include "frontend/painting/Texts.h"

namespace tarnvik {

namespace {

void Fill(ListBox& list, const QStringList& items) {
    const QSignalBlocker quiet{list};
    list.clear();
    list.addItems(items);
    list.setCurrentIndex(-1);
}

} // namespace

Lists::Lists(const MainControls& controls, Session& session)
    : session_(session), s_(session.State()), bolts_(controls.Find<ListBox>("Comb_bolter")),
      numbers_(controls.Find<ListBox>("Comb_ant_bolt")), spacings_(controls.Find<ListBox>("Comb_bolt_avstand")),
      connectors_(controls.Find<ListBox>("Comb_bulldog")), materials_(controls.Find<ListBox>("cboMat")),
      profiles_1_(controls.Find<ListBox>("cboProf1")), profiles_2_(controls.Find<ListBox>("cboProf2")) {
    Connect_list(bolts_, [](ConnectionValues& s, std::int16_t row) {
        s.Avstand_index = 0;
        s.Bolt_index = row;
    });
    Connect_list(numbers_, [](ConnectionValues& s, std::int16_t row) {
        s.Avstand_index = 0;
        s.Ant_index = row;
    });
    Connect_list(spacings_, [](ConnectionValues& s, std::int16_t row) { s.Avstand_index = row; });
    Connect_list(connectors_, [](ConnectionValues& s, std::int16_t row) {
        s.Bulldog_index = row;
        Get_dc(s);
    });
    Connect_list(materials_, [](ConnectionValues& s, std::int16_t row) { s.Mat_index = row; });
    Connect_list(profiles_1_, [](ConnectionValues& s, std::int16_t row) { s.Prof1_index = row; });
    Connect_list(profiles_2_, [](ConnectionValues& s, std::int16_t row) { s.Prof2_index = row; });
}

void Lists::Connect_list(ListBox& list, void (*write)(ConnectionValues& s, std::int16_t row)) {
    connect(&list, &ListBox::Picked, this, [this, write](int row) {
        if (!s_.Loading) {
            write(s_, static_cast<std::int16_t>(row));
            session_.Recalculate();
        }
    });
}

void Lists::Fill_bulldog() {
    QStringList items;
    for (const ConnectorRow& row : connector_table) {
        items << Q(Is_english(s_) ? row.caption_eng : row.caption_nor);
    }
    Fill(connectors_, items);
}

void Lists::Refill_bulldog() {
    Fill_bulldog();
    connectors_.setCurrentIndex(1);
}

void Lists::WritefrmCboBulldog() {
    Fill_bulldog();
    connectors_.setCurrentIndex(s_.Bulldog_index);
}

void Lists::WritefrmCboMatProf() {
    Check_counts(s_);
    const auto profiles = [this](int count) {
        QStringList items;
        for (int i = 0; i <= count; ++i) {
            items << Q(s_.Prof[static_cast<std::size_t>(i)].Id);
        }
        return items;
    };
    Fill(profiles_1_, profiles(s_.Prof1_count));
    Fill(profiles_2_, profiles(s_.Prof2_count));
    Select_sections();
    QStringList materials;
    for (int i = 0; i <= s_.Mat_count; ++i) {
        materials << Q(s_.Mat[static_cast<std::size_t>(i)].Id);
    }
    Fill(materials_, materials);
    materials_.setCurrentIndex(s_.Mat_index);
}

void Lists::WritefrmInput2() {
    QStringList bolts;
    for (const BoltRow& row : bolt_table) {
        bolts << Q(row.caption);
    }
    Fill(bolts_, bolts);
    bolts_.setCurrentIndex(s_.Bolt_index);
    QStringList numbers;
    for (const std::int16_t number : bolt_numbers) {
        numbers << QString::number(number);
    }
    Fill(numbers_, numbers);
    numbers_.setCurrentIndex(s_.Ant_index);
    QStringList spacings;
    for (int n = 5; n <= 20; ++n) {
        spacings << QString::number(n) + QLatin1Char('d');
    }
    Fill(spacings_, spacings);
    spacings_.setCurrentIndex(s_.Avstand_index);
}

void Lists::Select_fasteners() {
    bolts_.setCurrentIndex(s_.Bolt_index);
    connectors_.setCurrentIndex(s_.Bulldog_index);
    numbers_.setCurrentIndex(s_.Ant_index);
}

void Lists::Select_sections() {
    profiles_1_.setCurrentIndex(s_.Prof1_index);
    profiles_2_.setCurrentIndex(s_.Prof2_index);
}

} // namespace tarnvik
