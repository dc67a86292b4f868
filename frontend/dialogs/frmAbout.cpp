#include "frontend/dialogs/frmAbout.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QScreen>
#include <QShowEvent>
#include <QVBoxLayout>

#include <array>

#include "frontend/painting/Icon.h"
#include "frontend/painting/Texts.h"

namespace tarnvik {

namespace {

const QColor link_colour{0, 85, 152};

struct Link {
    const char* name;
    const char* text;
    const char* address;
};
constexpr std::array links{
    Link{"Lbl_web", "https://tarnvik.example", "https://tarnvik.example"},
    Link{"Lbl_mail", "post@tarnvik.example", "mailto:post@tarnvik.example"},
};

} // namespace

frmAbout::frmAbout(QWidget& window, bool english, const AboutTexts& texts, DocumentOpener& opener, MessageBox& boxes)
    : QDialog(&window), english_(english), opener_(opener), boxes_(boxes) {
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(english ? QStringLiteral("About Tarnvik") : QStringLiteral("Om Tarnvik"));
    Add_lines(*Add_icon(), texts);
}

// The icon at the left; the room beside it is for the lines.
QBoxLayout* frmAbout::Add_icon() {
    const double dpi = logicalDpiX();
    auto* all = new QHBoxLayout{this};
    const int margin = Scaled(24, dpi);
    all->setContentsMargins(margin, Scaled(18, dpi), margin, Scaled(18, dpi));
    all->setSpacing(margin);
    auto* icon = new QLabel{this};
    icon->setObjectName(QStringLiteral("Img_icon"));
    icon->setAccessibleName(QStringLiteral("Tarnvik"));
    icon->setPixmap(Program_icon().pixmap(QSize{Scaled(64, dpi), Scaled(64, dpi)}, devicePixelRatioF()));
    all->addWidget(icon, 0, Qt::AlignTop);
    auto* lines = new QVBoxLayout;
    lines->setSpacing(Scaled(6, dpi));
    all->addLayout(lines);
    all->setSizeConstraint(QLayout::SetFixedSize);
    return lines;
}

void frmAbout::Add_lines(QBoxLayout& lines, const AboutTexts& texts) {
    const auto add = [this, &lines](const char* name, const QString& text, double points, bool bold, bool link) {
        auto* label = new QLabel{text, this};
        label->setObjectName(QLatin1String(name));
        QFont font = Text_font(points);
        font.setBold(bold);
        label->setFont(font);
        if (link) {
            QPalette palette = label->palette();
            palette.setColor(QPalette::WindowText, link_colour);
            label->setPalette(palette);
        }
        lines.addWidget(label);
        return label;
    };
    add("Lbl_name", QStringLiteral("Tarnvik"), 18.0, true, true);
    add("Lbl_title", Q(texts.title), 10.0, false, false);
    add("Lbl_version", Q(texts.version), 8.0, false, false);
    add("Lbl_rights", QStringLiteral("Tarnvik developers"), 8.0, false, false);
    for (const Link& link : links) {
        QLabel* label = add(link.name, QLatin1String(link.text), 8.0, false, true);
        label->setCursor(Qt::PointingHandCursor);
    }
}

void frmAbout::mousePressEvent(QMouseEvent* event) {
    for (const Link& link : links) {
        const auto* label = findChild<QLabel*>(QLatin1String(link.name));
        if (label->geometry().contains(event->pos())) {
            if (!opener_.Open_link(link.address)) {
                boxes_.Show(std::string{english_ ? "Can't open " : "Kan ikke åpne "} + link.address, box_exclamation);
            }
            return;
        }
    }
    accept();
}

void frmAbout::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    adjustSize();
    const QRect all = screen()->availableGeometry();
    move(all.center() - rect().center());
}

} // namespace tarnvik
