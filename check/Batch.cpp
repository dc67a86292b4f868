#include "check/Batch.h"

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <filesystem>
#include <future>
#include <istream>
#include <mutex>
#include <optional>
#include <ostream>
#include <string>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include "check/Batch_table.h"
#include "check/Csv.h"
#include "check/Line_blocks.h"
#include "check/Line_check.h"
#include "check/Nearest.h"
#include "check/Progress.h"
#include "platform/Path.h"

namespace tarnvik {

namespace {

// Blocks of lines that wait in order, for each thread.
constexpr std::size_t blocks_ahead = 4;

// Lines, or rows of a table.
struct Block {
    std::string lines;
    long number{1}; // of the first line
    std::vector<CsvRow> rows;
};

// The input in blocks. Its begin tells whether it is a table.
class BatchInput {
public:
    BatchInput(std::istream& in, const Options& options) : lines_(in) {
        more_ = lines_.Next(text_);
        if (!Is_table(text_)) {
            return;
        }
        rows_ = reader_.Read(text_);
        while (rows_.empty() && more_) { // its decimals show in the first rows
            Read_rows();
        }
        table_.emplace(reader_.Heading(), reader_.Style(), rows_, options);
    }

    bool Next(Block& block) { return table_ ? Next_rows(block) : Next_lines(block); }

    // Next would wait, for all that is known.
    [[nodiscard]] bool Would_wait() const { return rows_.empty() && lines_.Would_wait(); }

    [[nodiscard]] const BatchTable* Table() const { return table_ ? &*table_ : nullptr; }

private:
    void Read_rows() {
        more_ = lines_.Next(text_);
        rows_ = more_ ? reader_.Read(text_) : reader_.Finish();
    }

    bool Next_rows(Block& block) {
        while (rows_.empty() && more_) {
            Read_rows();
        }
        block.rows = std::exchange(rows_, {});
        return !block.rows.empty();
    }

    bool Next_lines(Block& block) {
        block.number = number_;
        block.lines = std::exchange(text_, {});
        if (block.lines.empty() && !(more_ && (more_ = lines_.Next(block.lines)))) {
            return false;
        }
        number_ += static_cast<long>(std::count(block.lines.begin(), block.lines.end(), '\n'));
        return true;
    }

    LineBlocks lines_;
    std::string text_; // of a block
    long number_{1};   // of the next line
    bool more_;        // the end has not been met
    CsvReader reader_;
    std::vector<CsvRow> rows_;
    std::optional<BatchTable> table_;
};

void Check_block(LineCheck& check, const Block& block, const BatchTable* table, Answers& answers) {
    if (table != nullptr) {
        check.Check(block.rows, *table, answers);
    } else {
        check.Check(block.lines, block.number, answers);
    }
}

// The threads that check lines, each on a session of its own.
class Crew {
public:
    Crew(const Options& options, const ConnectionState& fresh) {
        for (int i = 0; i < options.jobs; ++i) {
            threads_.emplace_back([this, check = std::make_unique<LineCheck>(options, fresh)] { Work(*check); });
        }
    }
    Crew(const Crew&) = delete;
    Crew& operator=(const Crew&) = delete;
    ~Crew() {
        {
            const std::lock_guard lock{mutex_};
            tasks_.clear();
            over_ = true;
        }
        changed_.notify_all();
        for (std::thread& thread : threads_) {
            thread.join();
        }
    }

    std::future<Answers> Hand_in(Block block, const BatchTable* table) {
        Task task{[block = std::move(block), table](LineCheck& check) {
            Answers answers;
            Check_block(check, block, table, answers);
            return answers;
        }};
        std::future<Answers> answers = task.get_future();
        {
            const std::lock_guard lock{mutex_};
            tasks_.push_back(std::move(task));
        }
        changed_.notify_one();
        return answers;
    }

private:
    using Task = std::packaged_task<Answers(LineCheck&)>;

    void Work(LineCheck& check) {
        std::unique_lock lock{mutex_};
        while (true) {
            changed_.wait(lock, [this] { return over_ || !tasks_.empty(); });
            if (over_) {
                return;
            }
            Task task = std::move(tasks_.front());
            tasks_.pop_front();
            lock.unlock();
            task(check);
            lock.lock();
        }
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Task> tasks_;
    bool over_{};
    std::vector<std::thread> threads_;
};

class BatchOutput {
public:
    BatchOutput(std::ostream& out, std::ostream& err) : out_(out), err_(err), progress_(err, Has_watcher(err)) {}
    BatchOutput(const BatchOutput&) = delete;
    BatchOutput& operator=(const BatchOutput&) = delete;
    ~BatchOutput() { progress_.Clear(); }

    // Results and complaints as if each line had been written by itself: those of earlier lines stand before a
    // complaint.
    void Write(const Answers& answers) {
        std::size_t written = 0;
        const auto write_to = [&](std::size_t end) {
            out_.write(answers.results.data() + written, static_cast<std::streamsize>(end - written));
            written = end;
        };
        for (const Answers::Complaint& complaint : answers.complaints) {
            write_to(complaint.at);
            progress_.Clear();
            err_ << complaint.text;
        }
        write_to(answers.results.size());
        progress_.Add(answers.count);
    }

    void Flush() { out_.flush(); }

    [[nodiscard]] bool Good() const { return out_.good(); }

private:
    std::ostream& out_;
    std::ostream& err_;
    Progress progress_;
};

int Run_alone(const Options& options, const ConnectionState& fresh, BatchInput& input, BatchOutput& output) {
    LineCheck check{options, fresh};
    Answers answers;
    Block block;
    while (output.Good() && input.Next(block)) {
        answers.results.clear();
        answers.complaints.clear();
        answers.count = 0;
        Check_block(check, block, input.Table(), answers);
        output.Write(answers);
        if (input.Would_wait()) {
            output.Flush();
        }
    }
    return answers.status;
}

int Run_threads(const Options& options, const ConnectionState& fresh, BatchInput& input, BatchOutput& output) {
    Crew crew{options, fresh};
    std::deque<std::future<Answers>> ahead;
    int status = exit_holds;
    const auto write_first = [&] {
        const Answers answers = ahead.front().get();
        ahead.pop_front();
        status = Worse(status, answers.status);
        output.Write(answers);
    };
    const std::size_t most = blocks_ahead * static_cast<std::size_t>(options.jobs);
    Block block;
    while (output.Good() && input.Next(block)) {
        ahead.push_back(crew.Hand_in(std::exchange(block, {}), input.Table()));
        while (!ahead.empty() && (ahead.size() == most || input.Would_wait())) {
            write_first();
        }
        if (ahead.empty()) {
            output.Flush();
        }
    }
    while (output.Good() && !ahead.empty()) {
        write_first();
    }
    return status;
}

} // namespace

int Run_batch(const Options& options, const ConnectionState& fresh, std::istream& in, std::ostream& out,
              std::ostream& err) {
    if (options.sheets) {
        std::error_code error;
        std::filesystem::create_directories(Path_of(*options.sheets), error);
        if (error) {
            throw UsageError{"--sheets: " + Quoted(*options.sheets) + " cannot be made"};
        }
    }
    // A row of the printed report may show what an earlier print left in it: such lines have to come one after another.
    const bool report = std::find(options.with.begin(), options.with.end(), "report") != options.with.end();
    const auto run = options.jobs == 1 || report ? Run_alone : Run_threads;
    BatchInput input{in, options};
    if (input.Table() != nullptr) {
        out << input.Table()->Heading();
    }
    BatchOutput output{out, err};
    const int status = run(options, fresh, input, output);
    if (in.bad()) {
        throw UsageError{"standard input cannot be read"};
    }
    return status;
}

} // namespace tarnvik
