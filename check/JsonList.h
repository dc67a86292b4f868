// The pieces of which results are written as JSON text: values, and lists of them with the commas between.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "calc/Text.h"

namespace tarnvik {

// A text as a JSON string, quotes included; damaged UTF-8 becomes the replacement character.
void Append_json(std::string& json, std::string_view text);

// A float stands in the shortest form that reads back to the same one; null where it is not finite.
void Append_value(std::string& json, float value);
void Append_value(std::string& json, int value);
void Append_value(std::string& json, std::int16_t value);
void Append_value(std::string& json, std::uint32_t value);
void Append_value(std::string& json, bool value);
void Append_value(std::string& json, std::string_view value);
void Append_value(std::string& json, const std::string& value);
void Append_value(std::string& json, const std::vector<std::string>& values);

template <std::size_t N> void Append_value(std::string& json, const FixedText<N>& value) {
    Append_json(json, value.View());
}

// Members of an object or elements of an array.
class JsonList {
public:
    JsonList(std::string& json, char open, char close) : json_(json), close_(close) { json_ += open; }
    JsonList(const JsonList&) = delete;
    JsonList& operator=(const JsonList&) = delete;
    ~JsonList() { json_ += close_; }

    void Next() {
        if (!first_) {
            json_ += ',';
        }
        first_ = false;
    }
    // The names are the program's own: nothing in them has to be escaped.
    void Name(std::string_view name) {
        json_ += first_ ? "\"" : ",\"";
        first_ = false;
        json_ += name;
        json_ += "\":";
    }
    template <class Value> void Member(std::string_view name, const Value& value) {
        Name(name);
        Append_value(json_, value);
    }
    // A text that is not a std::string, which would go to bool.
    void Member(std::string_view name, const char* value) { Member(name, std::string_view{value}); }
    void Null(std::string_view name) {
        Name(name);
        json_ += "null";
    }

private:
    std::string& json_;
    char close_;
    bool first_{true};
};

} // namespace tarnvik
