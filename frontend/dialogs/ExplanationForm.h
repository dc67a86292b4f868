// The windows that explain terms of the code, one class for the five of them.
#pragma once

#include <string_view>

#include "detail/Hjelpetext.h"
#include "frontend/dialogs/ScrolledDialog.h"

class QShowEvent;

namespace tarnvik {

class Session;

class ExplanationForm : public ScrolledDialog {
    Q_OBJECT

public:
    // `name` is a window of explanation_windows; throws std::logic_error where there is none of that name. `window` is
    // the main window, whose laid-out size gives the size, and which gives the place, `parent` the one that opens it.
    ExplanationForm(QWidget& window, QWidget& parent, const Session& session, std::string_view name);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Lay_out();

    QWidget& window_;
    const Session& session_;
    const ExplanationWindow& explanation_;
};

} // namespace tarnvik
