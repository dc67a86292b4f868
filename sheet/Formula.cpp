#include "sheet/Formula.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <stdexcept>
#include <utility>

#include "calc/Arithmetic.h"
#include "calc/Text.h"
#include "sheet/Symbols.h"

namespace tarnvik {

struct Formula::Node {
    enum class Kind : unsigned char { number, symbol, sum, difference, product, quotient, ratio, power, call };

    Kind kind{};
    std::string_view text{}; // of a number or the name of a function, which lies in the notation
    const Symbol* symbol{};
    std::vector<std::unique_ptr<Node>> parts{};
};

namespace {

using Node = Formula::Node;
using Kind = Node::Kind;
using Nodes = std::vector<std::unique_ptr<Node>>;

std::unique_ptr<Node> Join(Kind kind, std::unique_ptr<Node> left, std::unique_ptr<Node> right) {
    auto node = std::make_unique<Node>(Node{kind});
    node->parts.push_back(std::move(left));
    node->parts.push_back(std::move(right));
    return node;
}

class Reader {
public:
    explicit Reader(std::string_view text) : text_(text) {}

    std::unique_ptr<Node> Whole() {
        std::unique_ptr<Node> node = Sum();
        if (Next() != '\0') {
            Refuse();
        }
        return node;
    }

private:
    [[noreturn]] void Refuse() const { throw std::invalid_argument{"formula: " + std::string{text_.substr(at_)}}; }

    // The next character that is no blank; '\0' at the end.
    char Next() {
        at_ = std::min(text_.find_first_not_of(' ', at_), text_.size());
        return at_ < text_.size() ? text_[at_] : '\0';
    }
    bool Take(char c) {
        const bool there = Next() == c;
        at_ += there ? 1 : 0;
        return there;
    }
    void Expect(char c) {
        if (!Take(c)) {
            Refuse();
        }
    }

    std::unique_ptr<Node> Sum() {
        std::unique_ptr<Node> left = Product();
        for (;;) {
            if (Take('+')) {
                left = Join(Kind::sum, std::move(left), Product());
            } else if (Take('-')) {
                left = Join(Kind::difference, std::move(left), Product());
            } else {
                return left;
            }
        }
    }

    std::unique_ptr<Node> Product() {
        std::unique_ptr<Node> left = Power();
        for (;;) {
            if (Take('*')) {
                left = Join(Kind::product, std::move(left), Power());
            } else if (Take('/')) {
                left = Join(Kind::quotient, std::move(left), Power());
            } else if (Take(':')) {
                left = Join(Kind::ratio, std::move(left), Power());
            } else {
                return left;
            }
        }
    }

    std::unique_ptr<Node> Power() {
        std::unique_ptr<Node> base = Atom();
        return Take('^') ? Join(Kind::power, std::move(base), Atom()) : std::move(base);
    }

    std::unique_ptr<Node> Atom() {
        if (Take('(')) {
            std::unique_ptr<Node> inner = Sum();
            Expect(')');
            return inner;
        }
        const char first = Next();
        const std::string_view word = Word();
        if (word.empty()) {
            Refuse();
        }
        if (first >= '0' && first <= '9') {
            return std::make_unique<Node>(Node{Kind::number, word});
        }
        if (Take('(')) {
            return Call(word);
        }
        const Symbol* symbol = Find_symbol(word);
        if (symbol == nullptr) {
            Refuse();
        }
        return std::make_unique<Node>(Node{Kind::symbol, word, symbol});
    }

    std::unique_ptr<Node> Call(std::string_view function) {
        auto node = std::make_unique<Node>(Node{Kind::call, function});
        do {
            node->parts.push_back(Sum());
        } while (Take(';'));
        Expect(')');
        return node;
    }

    // Letters, digits, "_" and ".".
    std::string_view Word() {
        const std::size_t begin = at_;
        while (at_ < text_.size() &&
               (std::isalnum(static_cast<unsigned char>(text_[at_])) != 0 || text_[at_] == '_' || text_[at_] == '.')) {
            ++at_;
        }
        return text_.substr(begin, at_ - begin);
    }

    std::string_view text_;
    std::size_t at_{};
};

bool Is_atom(const Node& node) {
    return node.kind == Kind::number || node.kind == Kind::symbol;
}

bool Is_function(const Node& node, std::string_view name) {
    return node.kind == Kind::call && node.text == name;
}

class Writer {
public:
    // In symbols where `s` is null.
    explicit Writer(const ConnectionValues* s) : s_(s) {}

    [[nodiscard]] std::string Markup(const Node& node) const {
        switch (node.kind) {
        case Kind::number:
            return "<mn>" + Constant(node.text) + "</mn>";
        case Kind::symbol:
            return Shown(*node.symbol);
        case Kind::sum:
            return Markup(*node.parts[0]) + "<mo>+</mo>" + Markup(*node.parts[1]);
        case Kind::difference:
            return Markup(*node.parts[0]) + "<mo>−</mo>" + In_brackets(*node.parts[1], Is_sum(*node.parts[1]));
        case Kind::product:
            return In_brackets(*node.parts[0], Is_sum(*node.parts[0])) + Times() +
                   In_brackets(*node.parts[1], Is_sum(*node.parts[1]));
        case Kind::quotient:
            return "<mfrac>" + Row(*node.parts[0]) + Row(*node.parts[1]) + "</mfrac>";
        case Kind::ratio:
            return "<mrow>" + In_brackets(*node.parts[0], Is_sum(*node.parts[0])) +
                   R"(<mo lspace="0" rspace="0">/</mo>)" + In_brackets(*node.parts[1], !Is_atom(*node.parts[1])) +
                   "</mrow>";
        case Kind::power:
            return Power(*node.parts[0], *node.parts[1]);
        case Kind::call:
            return Call(node);
        }
        return {};
    }

private:
    static bool Is_sum(const Node& node) { return node.kind == Kind::sum || node.kind == Kind::difference; }

    static std::string Constant(std::string_view text) {
        std::string shown{text};
        std::replace(shown.begin(), shown.end(), '.', Decimal_sign());
        return shown;
    }

    [[nodiscard]] std::string Times() const {
        return s_ == nullptr ? R"(<mo rspace="0.1em" lspace="0.05em">&#x2062;</mo>)" : "<mo>·</mo>";
    }

    [[nodiscard]] std::string Shown(const Symbol& symbol) const {
        if (s_ == nullptr) {
            return Symbol_markup(symbol);
        }
        const std::string unit = symbol.unit == "°" ? "°" : "";
        return "<mn>" + std::string{Trim(Number_text(symbol.number, *s_))} + unit + "</mn>";
    }

    [[nodiscard]] std::string Row(const Node& node) const { return "<mrow>" + Markup(node) + "</mrow>"; }

    [[nodiscard]] std::string In_brackets(const Node& node, bool needed) const {
        return needed ? "<mrow><mo>(</mo>" + Markup(node) + "<mo>)</mo></mrow>" : Markup(node);
    }

    // The power of a sine stands behind its name.
    [[nodiscard]] std::string Power(const Node& base, const Node& exponent) const {
        if (Is_function(base, "sin") || Is_function(base, "cos")) {
            return "<msup><mi>" + std::string{base.text} + "</mi>" + Row(exponent) + "</msup><mo>&#x2061;</mo>" +
                   Argument(*base.parts[0]);
        }
        return "<msup><mrow>" + In_brackets(base, !Is_atom(base)) + "</mrow>" + Row(exponent) + "</msup>";
    }

    [[nodiscard]] std::string Argument(const Node& node) const {
        return R"(<mspace width="0.15em"/>)" + In_brackets(node, !Is_atom(node));
    }

    [[nodiscard]] std::string Call(const Node& node) const {
        if (node.text == "sqrt") {
            return "<msqrt>" + Row(*node.parts[0]) + "</msqrt>";
        }
        const std::string name = "<mi>" + std::string{node.text} + "</mi><mo>&#x2061;</mo>";
        if (node.parts.size() == 1) {
            return name + Argument(*node.parts[0]);
        }
        std::string list;
        for (const auto& part : node.parts) {
            list += (list.empty() ? "" : "<mo separator=\"true\">;</mo>") + Markup(*part);
        }
        return name + "<mrow><mo>(</mo>" + list + "<mo>)</mo></mrow>";
    }

    const ConnectionValues* s_;
};

// Numbers that are shown as kN and are stored as N count as they are shown.
double Evaluate(const Node& node, const ConnectionValues& s) {
    const auto part = [&](std::size_t i) { return Evaluate(*node.parts[i], s); };
    switch (node.kind) {
    case Kind::number: {
        double value = 0.0;
        std::from_chars(node.text.data(), node.text.data() + node.text.size(), value);
        return value;
    }
    case Kind::symbol:
        return node.symbol->number.of(s);
    case Kind::sum:
        return part(0) + part(1);
    case Kind::difference:
        return part(0) - part(1);
    case Kind::product:
        return part(0) * part(1);
    case Kind::quotient:
    case Kind::ratio:
        return part(0) / part(1);
    case Kind::power:
        return std::pow(part(0), part(1));
    case Kind::call:
        break;
    }
    if (node.text == "sqrt") {
        return std::sqrt(part(0));
    }
    if (node.text == "sin") {
        return std::sin(part(0) / degrees_per_radian);
    }
    if (node.text == "cos") {
        return std::cos(part(0) / degrees_per_radian);
    }
    double value = part(0);
    for (std::size_t i = 1; i < node.parts.size(); ++i) {
        value = node.text == "max" ? std::max(value, part(i)) : std::min(value, part(i));
    }
    return value;
}

} // namespace

Formula::Formula(std::string_view notation)
    : notation_(std::make_unique<const std::string>(notation)), root_(Reader{*notation_}.Whole()) {}
Formula::~Formula() = default;
Formula::Formula(Formula&& other) noexcept = default;
Formula& Formula::operator=(Formula&& other) noexcept = default;

std::string Formula::Symbols() const {
    return Math(Writer{nullptr}.Markup(*root_));
}

std::string Formula::Numbers(const ConnectionValues& s) const {
    return Math(Writer{&s}.Markup(*root_));
}

double Formula::Value(const ConnectionValues& s) const {
    return Evaluate(*root_, s);
}

} // namespace tarnvik
