// The run-time faults of a pass and of the file routines.
//
// A fault ends the procedure that raised it; values stored before it stay. The number is what handlers decide on.
#pragma once

#include <string>
#include <string_view>

namespace tarnvik {

// 5 invalid procedure call (a root of a negative number), 6 overflow, 9 subscript out of range, 11 division by zero,
// 13 type mismatch, 53 file not found, 59 bad record length, 61 disk full, 75 path or file cannot be accessed,
// 76 path not found.
enum FaultNumber : int {
    fault_invalid_call = 5,
    fault_overflow = 6,
    fault_subscript = 9,
    fault_division_by_zero = 11,
    fault_type_mismatch = 13,
    fault_file_not_found = 53,
    fault_bad_record_length = 59,
    fault_disk_full = 61,
    fault_path_access = 75,
    fault_path_not_found = 76,
};

// `where` names the procedure that raised the fault, as messages and results show it: that of the calculation or of the
// files, under the name that its users know. A step of the pass that has no name of its own says Main_beregn.
struct RuntimeFault {
    int number{};
    std::string_view description; // static text, lower case
    std::string_view where;       // static text
};

std::string_view Fault_description(int number);

// Throws RuntimeFault. `where` has to be a literal: the name of the procedure, as above.
[[noreturn]] void Raise(int number, std::string_view where);

// "Run-time error 5: invalid procedure call or argument (Tverr_brudd)"
std::string Fault_text(const RuntimeFault& fault);

} // namespace tarnvik
