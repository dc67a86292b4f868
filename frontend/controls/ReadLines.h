// Positioned texts as a screen reader reads them.
#pragma once

#include <QString>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <vector>

#include "frontend/painting/Texts.h"

namespace tarnvik {

// A line for each row, from left to right. Texts that follow one another and stand less than `off_row` above or below
// the first are of its row. Rows that only draw a line are left out.
template <class Text> QStringList Read_lines(const std::vector<Text>& texts, float off_row) {
    QStringList lines;
    for (auto row = texts.begin(); row != texts.end();) {
        const auto end =
            std::find_if(row, texts.end(), [&](const Text& text) { return std::fabs(text.y - row->y) >= off_row; });
        std::vector<Text> pieces(row, end);
        std::stable_sort(pieces.begin(), pieces.end(),
                         [](const Text& one, const Text& other) { return one.x < other.x; });
        QStringList words;
        for (const Text& piece : pieces) {
            words << Q(piece.text).simplified();
        }
        const QString line = words.join(QLatin1Char(' ')).simplified();
        if (std::any_of(line.begin(), line.end(), [](QChar letter) { return letter.isLetterOrNumber(); })) {
            lines << line;
        }
        row = end;
    }
    return lines;
}

} // namespace tarnvik
