#include "frontend/main/PictureWords.h"

#include "frontend/main/Languages.h"

namespace tarnvik {

namespace {

std::string_view Trimmed(std::string_view text) {
    while (text.ends_with(' ')) {
        text.remove_suffix(1);
    }
    return text;
}

} // namespace

std::string Connection_words(const ConnectionValues& s, bool english) {
    const std::string_view code = s.Con_code.View();
    const MemberRow* members = code.empty() ? nullptr : Member_captions(code.front() - '0', english);
    if (members == nullptr) {
        return {};
    }
    const auto number = [&](char doubled) {
        const bool two = code.back() == doubled;
        return english ? two ? " double" : " single" : two ? " dobbel" : " enkel";
    };
    std::string text = english ? "Connection " : "Forbindelse ";
    text.append(code).append(": ");
    text.append(Trimmed(members->name_1)).append(number('2')).append(", ");
    text.append(Trimmed(members->name_2)).append(number('3')).append(".");
    return text;
}

std::string Case_words(const ConnectionValues& s, std::string_view sketch, bool english) {
    constexpr std::size_t bolts_at = 2;
    const std::string_view code = s.Case_code.View();
    if (code.size() <= bolts_at || sketch.empty()) {
        return {};
    }
    const bool tension = sketch.find("strekk") != std::string_view::npos;
    std::string text = english ? "Case " : "Tilfelle ";
    text.append(code.ends_with(' ') ? code.substr(0, bolts_at + 1) : code).append(": ").append(1, code[bolts_at]);
    const bool one = code[bolts_at] == '1';
    text.append(english ? one ? " bolt" : " bolts" : one ? " bolt" : " bolter");
    text.append(code.ends_with('a') ? ", Alt. 1" : code.ends_with('b') ? ", Alt. 2" : "");
    text.append(english ? tension ? ", tension." : ", compression." : tension ? ", strekk." : ", trykk.");
    return text;
}

} // namespace tarnvik
