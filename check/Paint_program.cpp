#include "check/Paint_program.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "calc/RuntimeFault.h"
#include "check/Paint_channel.h"
#include "platform/Partner.h"
#include "platform/Path.h"
#include "session/SystemClock.h"

namespace tarnvik {

namespace {

// The program at work: its standard input is the other end of the channel.
class Work {
public:
    Work(std::vector<std::string> command, std::string_view where) : channel_(Start(std::move(command), where)) {}
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;
    ~Work() {
        channel_.reset(); // the end of its input ends it
        Wait_for(process_);
    }

    PaintChannel& Channel() { return *channel_; }

private:
    std::unique_ptr<PaintChannel> Start(std::vector<std::string> command, std::string_view where) {
        try {
            const std::array<int, 2> ends = Make_channel();
            auto channel = std::make_unique<PaintChannel>(ends[0]);
            process_ = Start_program(std::move(command), ends[1]);
            return channel;
        } catch (const std::system_error&) {
            Raise(fault_path_access, where);
        }
    }

    std::intptr_t process_{};
    std::unique_ptr<PaintChannel> channel_;
};

} // namespace

std::filesystem::path Paint_program_beside(const std::filesystem::path& program) {
    std::filesystem::path name{paint_program_name};
    name += program.extension();
    return program.parent_path() / name;
}

bool PaintProgram::Found() const {
    return Is_program(program_);
}

int PaintProgram::Write_pictures(const std::filesystem::path& folder) {
    constexpr std::string_view where = "Write_pictures";
    Work work{{Text_of(program_), paint_pictures, Text_of(folder)}, where};
    return Written(work.Channel(), where);
}

void PaintProgram::Write_report(const std::filesystem::path& file, const std::string& title,
                                const std::function<void(PrintTarget&, const Moment&)>& draw) {
    constexpr std::string_view where = "Write_report";
    Work work{{Text_of(program_), paint_report, Text_of(file), title}, where};
    draw(*Sending_target(work.Channel()), SystemClock{}.Now());
    Written(work.Channel(), where);
}

} // namespace tarnvik
