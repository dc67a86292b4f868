#include "sheet/Page.h"

#include "spacing/sketch/Svg.h"

namespace tarnvik {

namespace {

std::string Class(std::string_view look) {
    return look.empty() ? std::string{} : " class=\"" + std::string{look} + "\"";
}

} // namespace

Markup Plain(std::string_view text) {
    return {Escaped(text)};
}

Markup Indexed(std::string_view text) {
    std::string html = Escaped(text);
    for (std::size_t at = html.find("_{"); at != std::string::npos; at = html.find("_{", at)) {
        html.replace(at, 2, "<sub>");
        if (const std::size_t end = html.find('}', at); end != std::string::npos) {
            html.replace(end, 1, "</sub>");
        }
    }
    return {html};
}

void Page::Heading(std::string_view text) {
    html_ += "<h2>" + Escaped(text) + "</h2>\n";
}

void Page::Begin_table(std::string_view look, std::string_view caption, const std::vector<Cell>& headings) {
    html_ += "<table" + Class(look) + ">\n<caption>" + Escaped(caption) + "</caption>\n<thead><tr>";
    for (const Cell& heading : headings) {
        html_ += "<th scope=\"col\"" + Class(heading.look) + ">" + heading.markup.html + "</th>";
    }
    html_ += "</tr></thead>\n<tbody>\n";
}

void Page::Row(const std::vector<Cell>& cells, std::string_view look) {
    html_ += "<tr" + Class(look) + ">";
    bool first = true;
    for (const Cell& cell : cells) {
        html_ += first ? "<th scope=\"row\"" : "<td";
        html_ += Class(cell.look) + ">" + cell.markup.html;
        html_ += first ? "</th>" : "</td>";
        first = false;
    }
    html_ += "</tr>\n";
}

void Page::End_table() {
    html_ += "</tbody>\n</table>\n";
}

void Page::Figure(std::string_view look, std::string_view svg, std::string_view caption) {
    html_ += "<figure" + Class(look) + ">\n";
    html_ += svg;
    html_ += "<figcaption>" + Escaped(caption) + "</figcaption>\n</figure>\n";
}

} // namespace tarnvik
