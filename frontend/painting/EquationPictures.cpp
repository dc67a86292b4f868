#include "frontend/painting/EquationPictures.h"

#include <QFile>
#include <QRectF>
#include <QString>
#include <QSvgRenderer>

#include <algorithm>

// Keeps the resources of this static library in the program, see Icon.cpp.
static void Ask_for_resources() {
    Q_INIT_RESOURCE(equations);
}

namespace tarnvik {

namespace {

// Units of the viewBox for the letter size, in all files: tools/make_equations.mjs.
constexpr double units_per_letter = 1000.0;

QString File_of(std::string_view key) {
    if (std::find(equation_keys.begin(), equation_keys.end(), key) == equation_keys.end()) {
        return {};
    }
    const std::string_view control = key.substr(key.find('/') + 1);
    return QStringLiteral(":/tarnvik/equations/%1.svg")
        .arg(QLatin1String(control.data(), static_cast<qsizetype>(control.size())));
}

// False for a key without a picture.
bool Load(std::string_view key, QSvgRenderer& picture) {
    Ask_for_resources();
    const QString file = File_of(key);
    return !file.isEmpty() && picture.load(file);
}

} // namespace

std::optional<QSizeF> Equation_size(std::string_view key, double letter) {
    QSvgRenderer picture;
    if (!Load(key, picture)) {
        return std::nullopt;
    }
    return picture.viewBoxF().size() * (letter / units_per_letter);
}

std::string Equation_svg(std::string_view key) {
    Ask_for_resources();
    QFile file{File_of(key)};
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string{};
}

bool Paint_equation(std::string_view key, QPainter& painter, const QRectF& room, double letter,
                    std::optional<double> baseline) {
    QSvgRenderer picture;
    if (!Load(key, picture)) {
        return false;
    }
    const QRectF box = picture.viewBoxF();
    const double scale =
        std::min({letter / units_per_letter, room.width() / box.width(), room.height() / box.height()});
    if (scale <= 0.0) {
        return true; // no room: QSvgRenderer would take the whole device
    }
    const QSizeF size = box.size() * scale;
    double top = room.center().y() - size.height() / 2.0;
    if (baseline) {
        // y = 0 of the file is the baseline.
        top = std::max(room.top(), std::min(*baseline + box.top() * scale, room.bottom() - size.height()));
    }
    picture.render(&painter, QRectF{{room.left(), top}, size});
    return true;
}

} // namespace tarnvik
