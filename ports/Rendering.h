// What the headless tool needs a painter for. The programs pass one in where the build has the front end.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace tarnvik {

class PrintTarget;
struct Moment;

class Rendering {
public:
    Rendering() = default;
    Rendering(const Rendering&) = delete;
    Rendering& operator=(const Rendering&) = delete;
    virtual ~Rendering() = default;

    // Writes every stored picture as PNG and SVG under its key: form as folder, control as file name. Returns how many
    // pictures were written. Errors: throws RuntimeFault (75, 76).
    virtual int Write_pictures(const std::filesystem::path& folder) = 0;

    // Writes a PDF file: `draw` gets its pages as a print target, and date and time as they are to be printed.
    // Errors: throws RuntimeFault (61, 75, 76), and what `draw` throws; the former file stays then.
    virtual void Write_report(const std::filesystem::path& file, const std::string& title,
                              const std::function<void(PrintTarget&, const Moment&)>& draw) = 0;
};

} // namespace tarnvik
