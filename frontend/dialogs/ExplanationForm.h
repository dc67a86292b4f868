// The windows that explain terms of the code, one class for the five of them.
#pragma once

#include <QDialog>

#include <string_view>

#include "detail/Hjelpetext.h"

class QShowEvent;

namespace tarnvik {

class frmMain;

class ExplanationForm : public QDialog {
    Q_OBJECT

public:
    // `name` is a window of explanation_windows; throws std::logic_error where there is none of that name. `parent` is
    // the window that opens it.
    ExplanationForm(frmMain& window, QWidget& parent, std::string_view name);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Lay_out();

    frmMain& window_;
    const ExplanationWindow& explanation_;
};

} // namespace tarnvik
