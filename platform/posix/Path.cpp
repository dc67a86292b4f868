#include "platform/Path.h"

#include <system_error>

namespace tarnvik {

namespace fs = std::filesystem;

fs::path Absolute_path(const fs::path& path) {
    return fs::absolute(path);
}

fs::path Plain_path(const fs::path& path) {
    std::error_code error;
    fs::path plain = fs::weakly_canonical(path, error);
    return error || plain.empty() ? path : plain;
}

fs::path Target_of(const fs::path& path) {
    std::error_code error;
    fs::path target = Plain_path(path);
    constexpr int most_links = 40;
    for (int i = 0; i < most_links && fs::is_symlink(fs::symlink_status(target, error)); ++i) {
        const fs::path link = fs::read_symlink(target, error);
        if (error) {
            break;
        }
        target = (target.has_parent_path() ? target.parent_path() : fs::path{"."}) /
                 link; // an absolute link replaces the folder
    }
    return target;
}

} // namespace tarnvik
