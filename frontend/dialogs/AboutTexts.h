// Lines of the About window.
#pragma once

#include <string>

namespace tarnvik {

struct AboutTexts {
    std::string title, version;
};

} // namespace tarnvik
