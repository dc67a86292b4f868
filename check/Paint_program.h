// Painting by another program, so that a check starts without the toolkit: tarnvik-paint, which lies beside the tool
// where the build has the window.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <utility>

#include "ports/Rendering.h"

namespace tarnvik {

inline constexpr const char* paint_program_name = "tarnvik-paint";
// It has the ending of the program that it paints for, if there is any.
std::filesystem::path Paint_program_beside(const std::filesystem::path& program);

// What it is asked for, its first argument; the folder, or file and title, follow.
inline constexpr const char* paint_pictures = "pictures";
inline constexpr const char* paint_report = "report";

class PaintProgram final : public Rendering {
public:
    explicit PaintProgram(std::filesystem::path program) : program_(std::move(program)) {}

    // The program is there.
    [[nodiscard]] bool Found() const;

    int Write_pictures(const std::filesystem::path& folder) override;
    void Write_report(const std::filesystem::path& file, const std::string& title,
                      const std::function<void(PrintTarget&, const Moment&)>& draw) override;

private:
    std::filesystem::path program_;
};

} // namespace tarnvik
