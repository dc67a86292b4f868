// What the fuzz targets share.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <istream>
#include <memory>
#include <streambuf>
#include <string_view>
#include <utility>
#include <vector>

#include "calc/GlobalParameter.h"
#include "calc/RuntimeFault.h"
#include "calc/Screen.h"
#include "data/Startup.h"
#include "report/PrintReport.h"
#include "report/Recorder.h"

namespace tarnvik::fuzz {

// A property that must hold: its failure ends the run and keeps the input.
#define FUZZ_CHECK(condition)                                                                                          \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            std::fprintf(stderr, "%s:%d: does not hold: %s\n", __FILE__, __LINE__, #condition);                        \
            std::abort();                                                                                              \
        }                                                                                                              \
    } while (false)

// Bytes taken from the front of the input; zeros at its end.
class Input {
public:
    Input(const std::uint8_t* data, std::size_t size) : left_(reinterpret_cast<const char*>(data), size) {}

    [[nodiscard]] bool Empty() const { return left_.empty(); }
    std::uint8_t Byte() {
        if (left_.empty()) {
            return 0;
        }
        const auto byte = static_cast<std::uint8_t>(left_.front());
        left_.remove_prefix(1);
        return byte;
    }
    std::uint16_t Word() {
        const unsigned low = Byte();
        return static_cast<std::uint16_t>(low | (static_cast<unsigned>(Byte()) << 8U));
    }
    std::string_view Bytes(std::size_t count) {
        const std::string_view bytes = left_.substr(0, count);
        left_.remove_prefix(bytes.size());
        return bytes;
    }
    std::string_view Rest() { return Bytes(left_.size()); }

private:
    std::string_view left_;
};

// A stream over bytes that stay where they are.
class ByteStream : private std::streambuf, public std::istream {
public:
    explicit ByteStream(std::string_view bytes) : std::istream(static_cast<std::streambuf*>(this)) {
        char* begin = const_cast<char*>(bytes.data()); // never written: there is no put area
        setg(begin, begin, begin + bytes.size());
    }
};

// A new project from the delivered data files, read once.
inline const ConnectionState& New_project() {
    static const std::unique_ptr<ConnectionState> state = [] {
        auto s = std::make_unique<ConnectionState>();
        Start_state(*s, TARNVIK_DATA_DIR);
        s->Loading = false;
        return s;
    }();
    return *state;
}

// The print of a state, as the headless tool records it.
inline std::vector<PrintCall> Print_on_recorder(ConnectionState& s, const Screen& screen) {
    static SpacingTexts texts;
    Recorder recorder;
    try {
        PrintReport(recorder, s, {screen.Pic_forbindelse, screen.Pic_av_bolter}, {"21.11.2026", "12:00:00"}, texts);
    } catch (const RuntimeFault& fault) {
        FUZZ_CHECK(fault.number == fault_subscript);
    }
    return std::move(recorder.calls);
}

} // namespace tarnvik::fuzz
