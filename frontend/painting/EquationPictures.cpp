#include "frontend/painting/EquationPictures.h"

#include <QFile>
#include <QFont>
#include <QFontDatabase>
#include <QGlyphRun>
#include <QPainter>
#include <QPainterPath>
#include <QPointF>
#include <QRawFont>
#include <QRectF>
#include <QString>

#include <algorithm>
#include <cmath>
#include <functional>
#include <span>
#include <unordered_map>

#include "frontend/painting/EquationTable.h"

// Keeps the resources of this static library in the program, see Icon.cpp.
static void Ask_for_resources() {
    Q_INIT_RESOURCE(equations);
}

namespace tarnvik {

namespace {

// Units of the table and the files for the letter size: tools/make_equations.mjs.
constexpr double units_per_letter = 1000.0;

const SetEquation* Find(std::string_view key) {
    if (std::find(equation_keys.begin(), equation_keys.end(), key) == equation_keys.end()) {
        return nullptr;
    }
    const auto rows = Set_equations();
    const std::string_view control = key.substr(key.find('/') + 1);
    const auto row = std::find_if(rows.begin(), rows.end(), [&](const auto& one) { return one.name == control; });
    return row == rows.end() ? nullptr : &*row;
}

// As it is stored.
QString File_of(const SetEquation& equation) {
    Ask_for_resources();
    const QLatin1String name{equation.name.data(), static_cast<qsizetype>(equation.name.size())};
    return QStringLiteral(":/tarnvik/equations/%1.svg").arg(name);
}

// Where an equation comes to lie; empty without room.
QRectF Place(const SetEquation& equation, const QRectF& room, double letter, std::optional<double> baseline) {
    const EquationBox& box = equation.box;
    const double scale = std::min({letter / units_per_letter, room.width() / box.width, room.height() / box.height});
    const QSizeF size{box.width * scale, box.height * scale};
    double top = room.center().y() - size.height() / 2.0;
    if (baseline) {
        top = std::max(room.top(), std::min(*baseline + box.y * scale, room.bottom() - size.height()));
    }
    return {{room.left(), top}, size};
}

// The font of a number in the table. It is one of the application's: any other would come into a document as outlines.
QRawFont Font_of(int number, double size) {
    static const QStringList families = [] {
        Ask_for_resources();
        QStringList names;
        for (int i = 1;; ++i) {
            QFile file{QStringLiteral(":/tarnvik/equations/letters-%1.ttf").arg(i)};
            if (!file.open(QIODevice::ReadOnly)) {
                return names;
            }
            names << QFontDatabase::applicationFontFamilies(QFontDatabase::addApplicationFontFromData(file.readAll()));
        }
    }();
    QFont font{families.at(number)};
    font.setPixelSize(static_cast<int>(std::lround(size)));
    font.setHintingPreference(QFont::PreferNoHinting);
    return QRawFont::fromFont(font);
}

// Letters of one font and size that follow each other.
void Print_run(QPainter& painter, std::span<const EquationLetter> letters) {
    QList<quint32> numbers;
    QList<QPointF> places;
    for (const EquationLetter& letter : letters) {
        numbers << letter.letter;
        places << QPointF{letter.x, letter.y};
    }
    QGlyphRun run;
    run.setRawFont(Font_of(letters.front().font, letters.front().size));
    run.setGlyphIndexes(numbers);
    run.setPositions(places);
    painter.drawGlyphRun({}, run);
}

void Print_letters(QPainter& painter, const SetEquation& equation) {
    std::span<const EquationLetter> letters = equation.letters;
    while (!letters.empty()) {
        const EquationLetter& first = letters.front();
        const auto other = std::find_if(letters.begin(), letters.end(), [&](const EquationLetter& letter) {
            return letter.font != first.font || letter.size != first.size;
        });
        Print_run(painter, {letters.begin(), other});
        letters = {other, letters.end()};
    }
}

// The letters' outlines, which no hinting moves; made when the equation is first seen.
const QPainterPath& Outlines(const SetEquation& equation) {
    static std::unordered_map<const SetEquation*, QPainterPath> made;
    const auto [place, first] = made.try_emplace(&equation);
    if (first) {
        place->second.setFillRule(Qt::WindingFill);
        for (const EquationLetter& letter : equation.letters) {
            place->second.addPath(
                Font_of(letter.font, letter.size).pathForGlyph(letter.letter).translated(letter.x, letter.y));
        }
    }
    return place->second;
}

// An equation with its letters as `set_letters` sets them and its bars, in the units of the table.
void Set(const SetEquation& equation, QPainter& painter, const QRectF& place,
         const std::function<void()>& set_letters) {
    const double scale = place.width() / equation.box.width;
    if (scale <= 0.0) {
        return;
    }
    painter.save();
    painter.translate(place.topLeft());
    painter.scale(scale, scale);
    painter.translate(-equation.box.x, -equation.box.y);
    painter.setPen(Qt::black);
    set_letters();
    for (const EquationBar& bar : equation.bars) {
        painter.fillRect(QRectF{bar.x, bar.y, bar.width, bar.height}, Qt::black);
    }
    painter.restore();
}

} // namespace

std::optional<QSizeF> Equation_size(std::string_view key, double letter) {
    const SetEquation* const equation = Find(key);
    if (equation == nullptr) {
        return std::nullopt;
    }
    return QSizeF{equation->box.width, equation->box.height} * (letter / units_per_letter);
}

std::string Equation_svg(std::string_view key) {
    const SetEquation* const equation = Find(key);
    if (equation == nullptr) {
        return {};
    }
    QFile file{File_of(*equation)};
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string{};
}

bool Paint_equation(std::string_view key, QPainter& painter, const QRectF& room, double letter) {
    const SetEquation* const equation = Find(key);
    if (equation == nullptr) {
        return false;
    }
    Set(*equation, painter, Place(*equation, room, letter, std::nullopt), [&] {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillPath(Outlines(*equation), Qt::black);
    });
    return true;
}

bool Print_equation(std::string_view key, QPainter& painter, const QRectF& room, double letter, double baseline) {
    const SetEquation* const equation = Find(key);
    if (equation == nullptr) {
        return false;
    }
    Set(*equation, painter, Place(*equation, room, letter, baseline), [&] { Print_letters(painter, *equation); });
    return true;
}

} // namespace tarnvik
