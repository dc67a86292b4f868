// How the tool and the program that paints for it talk: a line of JSON each, over a channel (platform/Partner.h).
//
// From the tool come the calls of a report in their order, the name of an operation of PrintTarget and its arguments:
//
//     ["FontName","arial"]
//     ["Line",15.0,290.0,185.0,290.0]
//     ["TextWidth","Tarnvik"]
//
// To TextWidth the painter answers with the number, and to the end of the work, or in place of an answer, with how it
// went:
//
//     ["width",11.25]
//     ["written",2]
//     ["fault",76]
//
// The number of a fault is that of calc/RuntimeFault.h. A number stands for the float that was passed, exactly. Where
// one side ends early the other reads the end of the stream, and what was begun is dropped.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <nlohmann/json_fwd.hpp>

#include "ports/Clock.h"
#include "ports/PrintTarget.h"
#include "ports/Rendering.h"

namespace tarnvik {

class PaintChannel {
public:
    // Takes its end over.
    explicit PaintChannel(int channel) : channel_(channel) {}
    PaintChannel(const PaintChannel&) = delete;
    PaintChannel& operator=(const PaintChannel&) = delete;
    ~PaintChannel();

    // Goes out with the next Receive, or with Flush. What the other side does not take any more is dropped.
    void Send(const nlohmann::json& line);
    void Flush();

    // The next line, or nothing at the end. Errors: throws RuntimeFault (75) for what is no line of these.
    std::optional<nlohmann::json> Receive();

private:
    int channel_;
    std::string out_, in_;
};

// The tool's side. Waits for the end of the work and gives how many files were written.
// Errors: throws the RuntimeFault of the painter, and 75 where it ended without an answer.
int Written(PaintChannel& channel, std::string_view where);

// A print target whose calls go out through a channel. Errors of TextWidth: as Written.
std::unique_ptr<PrintTarget> Sending_target(PaintChannel& channel);

// The painter's side: does the work and answers how it went.
void Serve_pictures(PaintChannel& channel, Rendering& rendering, const std::filesystem::path& folder);
void Serve_report(PaintChannel& channel, Rendering& rendering, const std::filesystem::path& file,
                  const std::string& title);

} // namespace tarnvik
