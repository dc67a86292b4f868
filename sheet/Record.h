// What a check sheet carries of its connection, so that it can be calculated again: all inputs with the rows of the
// tables and the factors that they stand for, as JSON, and a checksum of them and of all results.
#pragma once

#include <string>

#include "calc/GlobalParameter.h"
#include "ports/Clock.h"
#include "session/Standing.h"

namespace tarnvik {

struct SheetRecord {
    std::string version;  // of the program
    std::string json;     // the inputs; a 32-bit float as the shortest number that reads back to it
    std::string checksum; // 128 bits in hexadecimal
};

// The state with its results, and what was judged of it.
SheetRecord Record_of(const ConnectionState& s, const Verdict& verdict, const Moment& now, const std::string& version);

// The checksum of a record's JSON.
std::string Record_checksum(const std::string& json);

} // namespace tarnvik
