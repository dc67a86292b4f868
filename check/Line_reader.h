// Inputs from a batch line in a fraction of the time that the general reader takes, for the lines that are as they
// should be. Whatever else there is, it leaves to the general reader, which has the words for it.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "calc/GlobalParameter.h"

namespace simdjson::dom {
class parser;
} // namespace simdjson::dom

namespace tarnvik {

class LineReader {
public:
    LineReader();
    LineReader(const LineReader&) = delete;
    LineReader& operator=(const LineReader&) = delete;
    ~LineReader();

    // Writes the inputs of an object, or of each object of an array, to the state, and calls `calculate` after each
    // object. False where the line is not wholly inputs with values that they take, none of them twice in an object:
    // some may have been written and calculated then. Errors: throws UsageError for inputs by name that cannot be.
    bool Read(std::string_view line, ConnectionState& s, const std::function<void()>& calculate);

private:
    std::unique_ptr<simdjson::dom::parser> parser_;
    std::string padded_; // the line, with the room behind it that the parser reads into
};

} // namespace tarnvik
