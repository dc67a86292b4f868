#include "check/Batch.h"

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <future>
#include <istream>
#include <mutex>
#include <ostream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "check/Line_blocks.h"
#include "check/Line_check.h"

namespace tarnvik {

namespace {

// Blocks of lines that wait in order, for each thread.
constexpr std::size_t blocks_ahead = 4;

struct Block {
    std::string lines;
    long number{1}; // of the first line
};

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

    std::future<Answers> Hand_in(Block block) {
        Task task{[block = std::move(block)](LineCheck& check) {
            Answers answers;
            check.Check(block.lines, block.number, answers);
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

// Results and complaints as if each line had been written by itself: those of earlier lines stand before a complaint.
void Write(const Answers& answers, std::ostream& out, std::ostream& err) {
    std::size_t written = 0;
    const auto write_to = [&](std::size_t end) {
        out.write(answers.results.data() + written, static_cast<std::streamsize>(end - written));
        written = end;
    };
    for (const Answers::Complaint& complaint : answers.complaints) {
        write_to(complaint.at);
        err << complaint.text;
    }
    write_to(answers.results.size());
}

int Run_alone(const Options& options, const ConnectionState& fresh, std::istream& in, std::ostream& out,
              std::ostream& err) {
    LineCheck check{options, fresh};
    LineBlocks input{in};
    Answers answers;
    Block block;
    while (out && input.Next(block.lines)) {
        answers.results.clear();
        answers.complaints.clear();
        block.number += check.Check(block.lines, block.number, answers);
        Write(answers, out, err);
        if (input.Would_wait()) {
            out.flush();
        }
    }
    return answers.status;
}

int Run_threads(const Options& options, const ConnectionState& fresh, std::istream& in, std::ostream& out,
                std::ostream& err) {
    Crew crew{options, fresh};
    LineBlocks input{in};
    std::deque<std::future<Answers>> ahead;
    int status = exit_holds;
    const auto write_first = [&] {
        const Answers answers = ahead.front().get();
        ahead.pop_front();
        status = Worse(status, answers.status);
        Write(answers, out, err);
    };
    const std::size_t most = blocks_ahead * static_cast<std::size_t>(options.jobs);
    Block block;
    while (out && input.Next(block.lines)) {
        const long lines = std::count(block.lines.begin(), block.lines.end(), '\n');
        const long number = block.number;
        ahead.push_back(crew.Hand_in(std::move(block)));
        block = {{}, number + lines};
        while (!ahead.empty() && (ahead.size() == most || input.Would_wait())) {
            write_first();
        }
        if (ahead.empty()) {
            out.flush();
        }
    }
    while (out && !ahead.empty()) {
        write_first();
    }
    return status;
}

} // namespace

int Run_batch(const Options& options, const ConnectionState& fresh, std::istream& in, std::ostream& out,
              std::ostream& err) {
    // A row of the printed report may show what an earlier print left in it: such lines have to come one after another.
    const bool report = std::find(options.with.begin(), options.with.end(), "report") != options.with.end();
    const auto run = options.jobs == 1 || report ? Run_alone : Run_threads;
    const int status = run(options, fresh, in, out, err);
    if (in.bad()) {
        throw UsageError{"standard input cannot be read"};
    }
    return status;
}

} // namespace tarnvik
