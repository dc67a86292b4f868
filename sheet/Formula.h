// Formulas in a short notation, "1.05*fh1k*t1*d/(2 + beta)": one text gives the formula as it is printed, the same with
// the numbers put in, and its value, so that none of the three can differ from the others.
//
// The notation has numbers with ".", the names of sheet/Symbols.h, + - * / ^ ( ) with their usual order, ":" for a
// division that is written on the line, and the functions sqrt, sin, cos (degrees), max and min, whose arguments ";"
// separates.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "calc/GlobalParameter.h"

namespace tarnvik {

class Formula {
public:
    // Errors: throws std::invalid_argument for a text that is not in the notation: an error of the program.
    explicit Formula(std::string_view notation);
    ~Formula();
    Formula(Formula&& other) noexcept;
    Formula& operator=(Formula&& other) noexcept;
    Formula(const Formula&) = delete;
    Formula& operator=(const Formula&) = delete;

    // As a MathML element <math>: in symbols, or with the numbers of the state as they are shown.
    [[nodiscard]] std::string Symbols() const;
    [[nodiscard]] std::string Numbers(const ConnectionValues& s) const;

    // With the numbers of the state as they are stored.
    [[nodiscard]] double Value(const ConnectionValues& s) const;

    struct Node;

private:
    std::unique_ptr<const std::string> notation_; // its pieces lie in the nodes
    std::unique_ptr<Node> root_;
};

} // namespace tarnvik
