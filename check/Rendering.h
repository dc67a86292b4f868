// What the headless tool needs a painter for. The programs pass one in where the build has the front end.
#pragma once

#include <filesystem>

namespace tarnvik {

class Rendering {
public:
    Rendering() = default;
    Rendering(const Rendering&) = delete;
    Rendering& operator=(const Rendering&) = delete;
    virtual ~Rendering() = default;

    // Writes every stored picture as PNG and SVG under its key: form as folder, control as file name. Returns how many
    // pictures were written. Errors: throws RuntimeFault (75, 76).
    virtual int Write_pictures(const std::filesystem::path& folder) = 0;
};

} // namespace tarnvik
