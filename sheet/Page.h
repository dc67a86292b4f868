// A page of HTML in pieces: sections, tables, figures. Texts are given as they are and escaped here; markup (MathML,
// SVG) is given as Markup.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarnvik {

// HTML that is put in as it is.
struct Markup {
    std::string html;
};
Markup Plain(std::string_view text); // escaped

// Escaped, with "_{...}" as an index: "f_{c,90,k}".
Markup Indexed(std::string_view text);

struct Cell {
    // A row is a list of these.
    Cell(Markup text, std::string_view class_name = {}) // NOLINT(google-explicit-constructor)
        : markup(std::move(text)), look(class_name) {}
    Cell(std::string_view text, std::string_view class_name = {}) // NOLINT(google-explicit-constructor)
        : Cell(Plain(text), class_name) {}
    Cell(const std::string& text, std::string_view class_name = {}) // NOLINT(google-explicit-constructor)
        : Cell(Plain(text), class_name) {}
    Cell(const char* text, std::string_view class_name = {}) // NOLINT(google-explicit-constructor)
        : Cell(Plain(text), class_name) {}

    Markup markup;
    std::string_view look; // class of the cell: "n" for numbers; may be empty
};

class Page {
public:
    void Add(std::string_view html) { html_ += html; }
    void Heading(std::string_view text);

    // A table with a caption for screen readers, a heading for each column, and rows whose first cell heads the row.
    void Begin_table(std::string_view look, std::string_view caption, const std::vector<Cell>& headings);
    void Row(const std::vector<Cell>& cells, std::string_view look = {});
    void End_table();

    // A picture with its caption below.
    void Figure(std::string_view look, std::string_view svg, std::string_view caption);

    [[nodiscard]] const std::string& Html() const { return html_; }

private:
    std::string html_;
};

} // namespace tarnvik
