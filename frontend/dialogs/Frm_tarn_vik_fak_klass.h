// The classes: load duration and service class. Its options hold the classes also while the window is closed.
#pragma once

#include <QDialog>

#include <string_view>

class QAbstractButton;
class QShowEvent;

namespace tarnvik {

class frmMain;

class Frm_tarn_vik_fak_klass : public QDialog {
    Q_OBJECT

public:
    explicit Frm_tarn_vik_fak_klass(frmMain& window);

    // Selects the options of the two classes; a class without an option selects none.
    void Select_classes(int Lastvar, int Klima);

    // A caption of the language tables; an empty name is the window itself.
    void Set_caption_of(std::string_view control, std::string_view caption);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Lay_out();
    [[nodiscard]] QAbstractButton* Button(std::string_view name) const;

    frmMain& window_;
};

} // namespace tarnvik
