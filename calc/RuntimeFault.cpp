#include "calc/RuntimeFault.h"

namespace tarnvik {

std::string_view Fault_description(int number) {
    switch (number) {
    case fault_invalid_call:
        return "invalid procedure call or argument";
    case fault_overflow:
        return "overflow";
    case fault_subscript:
        return "subscript out of range";
    case fault_division_by_zero:
        return "division by zero";
    case fault_type_mismatch:
        return "type mismatch";
    case fault_file_not_found:
        return "file not found";
    case fault_bad_record_length:
        return "bad record length";
    case fault_disk_full:
        return "disk full";
    case fault_path_access:
        return "path or file cannot be accessed";
    case fault_path_not_found:
        return "path not found";
    default:
        return "unknown error";
    }
}

void Raise(int number, std::string_view where) {
    throw RuntimeFault{number, Fault_description(number), where};
}

std::string Fault_text(const RuntimeFault& fault) {
    std::string text = "Run-time error " + std::to_string(fault.number) + ": ";
    text += fault.description;
    if (!fault.where.empty()) {
        text += " (";
        text += fault.where;
        text += ")";
    }
    return text;
}

} // namespace tarnvik
