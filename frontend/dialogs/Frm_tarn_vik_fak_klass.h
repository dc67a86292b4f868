// The classes: load duration and service class. Its options hold the classes also while the window is closed.
#pragma once

#include <QDialog>

#include <cstdint>
#include <string_view>

#include "calc/GlobalParameter.h"

class QAbstractButton;
class QShowEvent;

namespace tarnvik {

class Frame;
class Session;

class Frm_tarn_vik_fak_klass : public QDialog {
    Q_OBJECT

public:
    // `window` is the main window, whose laid-out size gives the size, and which gives the place.
    Frm_tarn_vik_fak_klass(QWidget& window, Session& session);

    // Selects the options of the two classes; a class without an option selects none.
    void Select_classes(int Lastvar, int Klima);

    // A caption of the language tables; an empty name is the window itself.
    void Set_caption_of(std::string_view control, std::string_view caption);

    // Names for screen readers and tooltips.
    void Describe_controls(bool english) const;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Add_options(Frame& frame, const char* name, int count, bool numbered, std::int16_t ConnectionValues::*value);
    void Add_help(Frame& frame, const char* name, const char* explanation);
    void Lay_out();
    [[nodiscard]] QAbstractButton* Button(std::string_view name) const;

    QWidget& window_;
    Session& session_;
};

} // namespace tarnvik
