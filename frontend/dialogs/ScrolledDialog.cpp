#include "frontend/dialogs/ScrolledDialog.h"

#include <QVBoxLayout>

#include "frontend/controls/Scrolling.h"

namespace tarnvik {

ScrolledDialog::ScrolledDialog(QWidget& parent) : QDialog(&parent), scrolled_(*new ScrolledGround{this}) {
    auto* all = new QVBoxLayout{this};
    all->setContentsMargins({});
    all->addWidget(&scrolled_);
}

QWidget& ScrolledDialog::Ground() const {
    return *scrolled_.widget();
}

void ScrolledDialog::Place(const QRect& wanted, const QWidget& main) {
    Ground().setMinimumSize(wanted.size());
    const QRect shown = Shown_in(Room_on_screen(main), wanted);
    setFixedSize(shown.size());
    setGeometry(shown);
}

} // namespace tarnvik
