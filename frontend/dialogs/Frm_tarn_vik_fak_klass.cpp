#include "frontend/dialogs/Frm_tarn_vik_fak_klass.h"

#include <QShowEvent>

#include <array>
#include <cmath>
#include <string>

#include "frontend/controls/Controls.h"
#include "frontend/controls/Descriptions.h"
#include "frontend/controls/Scrolling.h"
#include "frontend/dialogs/ExplanationForm.h"
#include "frontend/painting/Texts.h"
#include "session/Session.h"

namespace tarnvik {

namespace {

constexpr int load_classes = 5;
constexpr int service_classes = 3;

QString Indexed(const char* name, int index) {
    return QString::fromLatin1("%1(%2)").arg(QLatin1String(name)).arg(index);
}

} // namespace

Frm_tarn_vik_fak_klass::Frm_tarn_vik_fak_klass(QWidget& window, Session& session)
    : QDialog(&window), window_(window), session_(session) {
    setObjectName(QStringLiteral("Frm_tarn_vik_fak_klass"));
    auto* load = new Frame{this};
    load->setObjectName(QStringLiteral("Fra_lastvar"));
    auto* service = new Frame{this};
    service->setObjectName(QStringLiteral("Fra_klimaklasse"));
    Add_options(*load, "Opt_Lastvarighet", load_classes, false, &ConnectionValues::Lastvar);
    Add_help(*load, "Cmd_lastvar", "frm_tarn_vik_lastvarighet");
    Add_options(*service, "Opt_klimaklasse", service_classes, true, &ConnectionValues::Klima);
    Add_help(*service, "Cmd_klima", "frm_tarn_vik_klima");
    auto* ok = new DialogButton{QStringLiteral("OK"), this};
    ok->setObjectName(QStringLiteral("Cmd_ok"));
    connect(ok, &QAbstractButton::clicked, this, &QDialog::accept);
}

// The options of the classes 1 to `count`; those that are not numbered get their captions with the language.
void Frm_tarn_vik_fak_klass::Add_options(Frame& frame, const char* name, int count, bool numbered,
                                         std::int16_t ConnectionValues::*value) {
    for (int i = 0; i < count; ++i) {
        auto* option = new Option{numbered ? QString::number(i + 1) : QString{}, &frame};
        option->setObjectName(Indexed(name, i));
        connect(option, &QAbstractButton::toggled, this, [this, value, i](bool selected) {
            if (selected && !session_.State().Loading) {
                session_.State().*value = static_cast<std::int16_t>(i + 1);
                session_.Recalculate();
            }
        });
    }
}

void Frm_tarn_vik_fak_klass::Add_help(Frame& frame, const char* name, const char* explanation) {
    auto* help = new DialogButton{QStringLiteral("?"), &frame};
    help->setObjectName(QLatin1String(name));
    connect(help, &QAbstractButton::clicked, this, [this, explanation] {
        ExplanationForm window{window_, *this, session_, explanation};
        window.exec();
    });
}

QAbstractButton* Frm_tarn_vik_fak_klass::Button(std::string_view name) const {
    return findChild<QAbstractButton*>(Q(name));
}

void Frm_tarn_vik_fak_klass::Select_classes(int Lastvar, int Klima) {
    if (QAbstractButton* load = Button("Opt_Lastvarighet(" + std::to_string(Lastvar - 1) + ")")) {
        load->setChecked(true);
    }
    if (QAbstractButton* service = Button("Opt_klimaklasse(" + std::to_string(Klima - 1) + ")")) {
        service->setChecked(true);
    }
}

void Frm_tarn_vik_fak_klass::Set_caption_of(std::string_view control, std::string_view caption) {
    if (control.empty()) {
        setWindowTitle(Q(caption));
    } else if (auto* frame = findChild<Frame*>(Q(control))) {
        frame->setTitle(Q(caption));
    } else if (QAbstractButton* button = Button(control)) {
        button->setText(Q(caption));
    }
}

void Frm_tarn_vik_fak_klass::Describe_controls(bool english) const {
    Describe(*this, "Frm_tarn_vik_fak_klass", english);
}

void Frm_tarn_vik_fak_klass::Lay_out() {
    const double dpi = logicalDpiX();
    const QSize whole = Laid_out_size(window_);
    const double w = 0.34 * whole.width();
    const double h = 0.32 * whole.height();
    setFixedSize(static_cast<int>(std::lround(w)), static_cast<int>(std::lround(h)));
    // Inside to inside: the frame that the window manager will draw is not known yet, and it is the same for both.
    const QPoint corner{window_.geometry().left() + (window_.width() - width()) / 2,
                        window_.geometry().top() + static_cast<int>(std::lround(0.01 * whole.height()))};
    setGeometry(Shown_in(Room_on_screen(window_), {corner, size()}));

    const auto place = [](QWidget* widget, double left, double top, double wide, double high) {
        widget->setGeometry(QRectF{left, top, wide, high}.toRect());
    };
    auto* load = findChild<Frame*>(QStringLiteral("Fra_lastvar"));
    auto* service = findChild<Frame*>(QStringLiteral("Fra_klimaklasse"));
    const double load_w = 0.48 * w;
    const double load_h = 0.85 * h;
    const double service_w = 0.9 * load_w;
    const double service_h = 0.5 * load_h;
    place(load, 0.02 * w, 0.02 * h, load_w, load_h);
    place(service, 0.02 * w + load_w + 0.02 * w, 0.02 * h, service_w, service_h);

    const double button_w = Scaled(44, dpi);
    const double button_h = Scaled(21, dpi);
    const double top = Scaled(20, dpi);
    const double step = (0.85 * load_h - top) / load_classes;
    for (int i = 0; i < load_classes; ++i) {
        place(findChild<QWidget*>(Indexed("Opt_Lastvarighet", i)), Scaled(10, dpi), top + i * step,
              load_w - Scaled(14, dpi), step);
    }
    place(findChild<QWidget*>(QStringLiteral("Cmd_lastvar")), 0.35 * load_w, 0.85 * load_h, button_w, button_h);
    for (int i = 0; i < service_classes; ++i) {
        place(findChild<QWidget*>(Indexed("Opt_klimaklasse", i)), Scaled(12, dpi) + i * service_w / 3.2,
              Scaled(24, dpi), Scaled(36, dpi), Scaled(20, dpi));
    }
    place(findChild<QWidget*>(QStringLiteral("Cmd_klima")), 0.35 * service_w, 0.6 * service_h, button_w, button_h);
    place(findChild<QWidget*>(QStringLiteral("Cmd_ok")), 0.65 * w, 0.6 * h, Scaled(72, dpi), Scaled(26, dpi));
}

void Frm_tarn_vik_fak_klass::showEvent(QShowEvent* event) {
    Lay_out();
    Select_classes(session_.State().Lastvar, session_.State().Klima);
    QDialog::showEvent(event);
}

} // namespace tarnvik
