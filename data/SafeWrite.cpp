#include "data/SafeWrite.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>
#include <vector>

#if __has_include(<unistd.h>)
#include <unistd.h>
#endif

#include "calc/RuntimeFault.h"

namespace tarnvik {

namespace fs = std::filesystem;

namespace {

struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, Closer>;

// Deletes the temporary file unless it has become the target.
class TemporaryFile {
public:
    explicit TemporaryFile(fs::path path) : path_(std::move(path)) {}
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (!renamed_) {
            std::error_code ignored;
            fs::remove(path_, ignored);
        }
    }
    [[nodiscard]] const fs::path& Path() const { return path_; }
    void Rename(const fs::path& target, std::error_code& error) {
        fs::rename(path_, target, error);
        renamed_ = !error;
    }

private:
    fs::path path_;
    bool renamed_{};
};

int Number_of(int system_error) {
    switch (system_error) {
    case ENOENT:
    case ENOTDIR:
        return fault_path_not_found;
    case ENOSPC:
#ifdef EDQUOT
    case EDQUOT:
#endif
        return fault_disk_full;
    default:
        return fault_path_access;
    }
}

void Write(std::FILE* file, std::string_view bytes, std::string_view where) {
    if (std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size()) {
        Raise(Number_of(errno), where);
    }
}

void Flush(std::FILE* file, std::string_view where) {
    if (std::fflush(file) != 0) {
        Raise(Number_of(errno), where);
    }
#if __has_include(<unistd.h>)
    if (fsync(fileno(file)) != 0) {
        Raise(Number_of(errno), where);
    }
#endif
}

void Copy_tail(const fs::path& target, long from, std::FILE* to, std::string_view where) {
    const File old{std::fopen(target.c_str(), "rb")};
    if (!old) {
        // A file that may be replaced but not read has no tail to carry over that anybody could miss; a missing one
        // has none at all.
        if (errno == ENOENT) {
            return;
        }
        Raise(Number_of(errno), where);
    }
    if (std::fseek(old.get(), from, SEEK_SET) != 0) {
        Raise(fault_path_access, where);
    }
    std::vector<char> block(65536);
    for (;;) {
        const std::size_t read = std::fread(block.data(), 1, block.size(), old.get());
        Write(to, {block.data(), read}, where);
        if (read < block.size()) {
            if (std::ferror(old.get()) != 0) {
                Raise(fault_path_access, where);
            }
            return;
        }
    }
}

// A name of its own for each process and each try, in the target's folder: a rename works within one file system only.
fs::path Temporary_name(const fs::path& target, int attempt) {
    constexpr std::size_t name_part = 200; // the whole name has to stay within the 255 bytes of the file systems
    std::string name{"."};
    name += target.filename().string().substr(0, name_part);
    name += '.';
#if __has_include(<unistd.h>)
    name += std::to_string(getpid());
#endif
    name += '-';
    name += std::to_string(attempt);
    name += ".tmp";
    return target.parent_path() / name;
}

// The file that a path leads to. A link that leads to nothing yet is followed as well: the file is created at its end.
fs::path Follow(const fs::path& path) {
    std::error_code error;
    fs::path target = fs::weakly_canonical(path, error);
    if (error || target.empty()) {
        target = path;
    }
    constexpr int most_links = 40;
    for (int i = 0; i < most_links && fs::is_symlink(fs::symlink_status(target, error)); ++i) {
        const fs::path link = fs::read_symlink(target, error);
        if (error) {
            break;
        }
        target = target.parent_path() / link; // an absolute link replaces the folder
    }
    return target;
}

} // namespace

void Safe_write(const fs::path& path, std::string_view content, OldTail tail, std::string_view where) {
    std::error_code error;
    const fs::path target = Follow(path);
    if (!target.has_filename() || fs::is_directory(target, error) ||
        fs::is_symlink(fs::symlink_status(target, error))) { // still a link: a ring of them
        Raise(fault_path_access, where);
    }
    const fs::file_status old = fs::status(target, error);
    const bool replaces = fs::is_regular_file(old);
    if (fs::exists(old) && !replaces) {
        Raise(fault_path_access, where); // a device or a pipe is no place for a project
    }
    if (replaces) {
        // What in-place overwriting would refuse is refused here: a rename alone asks only for the folder's permission.
        const File writable{std::fopen(target.c_str(), "r+b")};
        if (!writable) {
            Raise(Number_of(errno), where);
        }
    }

    File file;
    fs::path name;
    for (int attempt = 0; !file && attempt < 100; ++attempt) {
        name = Temporary_name(target, attempt);
        file.reset(std::fopen(name.c_str(), "wbx"));
        if (!file && errno != EEXIST) {
            Raise(Number_of(errno), where);
        }
    }
    if (!file) {
        Raise(fault_path_access, where);
    }
    TemporaryFile temporary{name};
    Write(file.get(), content, where);
    if (replaces && tail == OldTail::keep) {
        Copy_tail(target, static_cast<long>(content.size()), file.get(), where);
    }
    Flush(file.get(), where);
    if (std::fclose(file.release()) != 0) {
        Raise(Number_of(errno), where);
    }
    if (replaces) {
        fs::permissions(temporary.Path(), old.permissions(), error);
    }
    temporary.Rename(target, error);
    if (error) {
        Raise(Number_of(error.value()), where);
    }
}

} // namespace tarnvik
