#include "check/Nearest.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

#include "calc/Text.h"

namespace tarnvik {

namespace {

constexpr std::size_t most_names = 3;
constexpr std::size_t longest_compared = 40; // no name is longer
constexpr std::size_t characters_to_a_change = 3;
constexpr std::size_t longest_shown = 60;

char Lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// Insertions, deletions and replacements of a character that lead from one text to the other.
std::size_t Changes(std::string_view one, std::string_view other) {
    std::vector<std::size_t> row(other.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < one.size(); ++i) {
        std::size_t corner = std::exchange(row[0], i + 1);
        for (std::size_t k = 0; k < other.size(); ++k) {
            const std::size_t replaced = corner + (one[i] == other[k] ? 0 : 1);
            corner = row[k + 1];
            row[k + 1] = std::min({replaced, corner + 1, row[k] + 1});
        }
    }
    return row.back();
}

} // namespace

std::string Plain_name(std::string_view name) {
    std::string plain;
    for (const char c : Trim(name)) {
        if (c != ' ' || plain.back() != ' ') {
            plain += Lower(c);
        }
    }
    return plain;
}

bool Has_plain_name(std::string_view name, std::string_view plain) {
    std::size_t i = 0;
    char last = '\0';
    for (const char c : Trim(name)) {
        if (c == ' ' && last == ' ') {
            continue;
        }
        last = c;
        if (i == plain.size() || plain[i] != Lower(c)) {
            return false;
        }
        ++i;
    }
    return i == plain.size();
}

std::string Nearest_names(std::string_view wanted, const std::vector<std::string_view>& names) {
    const std::string plain = Plain_name(wanted).substr(0, longest_compared);
    std::vector<std::pair<std::size_t, std::string_view>> found;
    for (const std::string_view name : names) {
        const std::size_t changes = Changes(plain, Plain_name(name));
        if (characters_to_a_change * changes <= plain.size()) {
            found.emplace_back(changes, name);
        }
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const auto& one, const auto& other) { return one.first < other.first; });
    std::string text;
    for (std::size_t i = 0; i < std::min(most_names, found.size()); ++i) {
        text += text.empty() ? "; nearest: " : ", ";
        text += found[i].second;
    }
    return text;
}

std::string Cut(std::string_view text) {
    const std::string_view shown = First_characters(text, longest_shown);
    std::string cut{shown};
    cut += shown.size() < text.size() ? "..." : "";
    return cut;
}

std::string Quoted(std::string_view text) {
    return "\"" + Cut(text) + "\"";
}

} // namespace tarnvik
