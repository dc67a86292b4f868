#include "data/FileNames.h"

#include <charconv>
#include <cstdint>

#include "data/FileIdentity.h"
#include "platform/Machine.h"
#include "platform/Path.h"

namespace tarnvik {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t longest_name = 255; // bytes, of the file systems
constexpr std::size_t longest_host = 30;
constexpr std::string_view temporary_end = ".tmp";

// At most so many bytes, no character of UTF-8 cut in two.
std::string_view Cut(std::string_view text, std::size_t length) {
    if (text.size() <= length) {
        return text;
    }
    const auto inside = [&](std::size_t i) { return (static_cast<unsigned char>(text[i]) & 0xC0U) == 0x80U; };
    while (length > 0 && inside(length)) {
        --length;
    }
    return text.substr(0, length);
}

std::string Host() {
    const std::string name = Host_name();
    if (name.empty()) {
        return "localhost";
    }
    std::string host{Cut(name, longest_host)};
    for (char& c : host) {
        if (c == '/') {
            c = '_';
        }
    }
    return host;
}

std::string Temporary_start(std::string_view name) {
    constexpr std::size_t name_part = 190; // leaves room for host and numbers
    return "." + std::string{Cut(name, name_part)} + ".";
}

bool Take_number(std::string_view& text, long& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return error == std::errc{} && number >= 0;
}

std::string Hexadecimal(std::uint64_t value) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (int shift = 60; shift >= 0; shift -= 4) {
        text += digits[(value >> static_cast<unsigned>(shift)) & 0xFU];
    }
    return text;
}

} // namespace

std::string Temporary_name(std::string_view name, int number) {
    return Temporary_start(name) + Host() + "." + std::to_string(Process_number()) + "-" + std::to_string(number) +
           std::string{temporary_end};
}

TemporaryOwner Owner_of(std::string_view temporary, std::string_view name) {
    if (!temporary.starts_with('.')) { // most files of a folder
        return {};
    }
    const std::string start = Temporary_start(name);
    if (!temporary.starts_with(start) || !temporary.ends_with(temporary_end) ||
        temporary.size() < start.size() + temporary_end.size()) {
        return {};
    }
    temporary.remove_prefix(start.size());
    temporary.remove_suffix(temporary_end.size());
    const std::size_t dot = temporary.rfind('.');
    if (dot == std::string_view::npos || dot == 0) {
        return {};
    }
    std::string_view numbers = temporary.substr(dot + 1);
    long process = 0;
    long number = 0;
    if (!Take_number(numbers, process) || !numbers.starts_with('-')) {
        return {};
    }
    numbers.remove_prefix(1);
    if (!Take_number(numbers, number) || !numbers.empty()) {
        return {};
    }
    return {temporary.substr(0, dot) == Host() ? Owner::here : Owner::elsewhere, process};
}

std::string Kept_name(std::string_view name, int number) {
    const std::string end = number == 1 ? "~" : "~" + std::to_string(number);
    return std::string{Cut(name, longest_name - end.size())} + end;
}

std::string Undo_name(std::string_view name) {
    constexpr std::string_view end = ".undo";
    return "." + std::string{Cut(name, longest_name - 1 - end.size())} + std::string{end};
}

std::string Undo_name_of_path(const fs::path& path) {
    const std::string end = "." + Hexadecimal(Digest_of(Text_of(path))) + ".undo";
    return std::string{Cut(Text_of(path.filename()), longest_name - end.size())} + end;
}

} // namespace tarnvik
