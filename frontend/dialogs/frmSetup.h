// The setup: language and partial factors. Every change is live at once; there is no cancel.
#pragma once

#include <QDialog>

#include <cstdint>

#include "calc/Words.h"

class QLabel;
class QPushButton;

namespace tarnvik {

class Editing;
class Frame;
class Session;
class TextBox;
struct FactorRow;

class frmSetup : public QDialog {
    Q_OBJECT

public:
    frmSetup(QWidget& window, Session& session, Editing& editing);

signals:
    // The state has another language; the captions of this window are written already.
    void Language_chosen();

private:
    QPushButton* Add_button(QWidget& parent, const char* name, const QString& caption) const;
    void Add_languages(Frame& frame);
    void Add_factors(Frame& frame);
    void Connect_factor(TextBox& box, const FactorRow& factor, const char* next);
    void Add_commands();
    void Add_file_lines();
    void Write_file_lines();
    void Write_captions();
    void Fill_factors();
    void Set_language(const char* Lang);
    void Leave_factor(TextBox& box, const FactorRow& factor);
    void Save();

    Session& session_;
    Editing& editing_;
    QLabel* files_{}; // which setup file was read, and which one is written
    QLabel* saved_{}; // what became of the last saving
    enum class Saved : std::uint8_t { not_yet, done, failed } state_{};
    Words failure_;
};

} // namespace tarnvik
