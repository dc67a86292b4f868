// The faces that travel with the program (frontend/fonts): a window and a report look the same, with letters as wide,
// on every machine, whatever fonts are installed there.
#pragma once

#include <QString>

#include <string_view>

namespace tarnvik {

// Family of the sans-serif face, regular and bold: what the window's texts are painted in, Greek letters among them.
// "Tahoma" and "Symbol" of the texts, and "arial" of the report, mean it.
QString Sans_family();

// Family of the serif face, regular, bold and bold italic: "Times New Roman" of the report.
QString Serif_family();

// The delivered family that stands for a name, in small or large letters; the name itself where there is none.
QString Family_for(std::string_view name);

} // namespace tarnvik
