// What the main window says of its results beside the prescribed controls, so that nobody is misled by the moment:
// whether they are current, what does not hold, a force of another sign than the option, the arrangement in force. The
// program's own.
#pragma once

#include <QObject>

#include <array>

#include "calc/GlobalParameter.h"
#include "frontend/controls/Areas.h"
#include "frontend/main/Layout.h"
#include "frontend/main/MainControls.h"
#include "session/Session.h"

class QAbstractButton;
class QLabel;

namespace tarnvik {

class Marks : public QObject {
    Q_OBJECT

public:
    Marks(const MainControls& controls, const Session& session);

    // By the state as it stands.
    void Show() const;

private:
    void Show_results(bool english) const;
    void Show_sign(bool english) const;
    void Show_arrangement() const;

    const Session& session_;
    const ConnectionState& s_;
    QLabel& file_;
    QLabel& current_;
    QLabel& verdict_;
    QLabel& sign_;
    QLabel& splitting_;
    const QAbstractButton& compression_;
    const QAbstractButton& tension_;
    std::array<ChoiceButton*, 2> arrangements_;
};

// The places of the marks, twips, beside the controls that have theirs already. `font` is that of the window.
void Place_marks(Boxes& boxes, const QFont& font, double dots_per_inch);

} // namespace tarnvik
