#include "check/Status.h"

#include <array>

namespace tarnvik {

int Status(const ConnectionValues& s, const PassResult& result) {
    if (result.end != PassEnd::normal) {
        return exit_stopped;
    }
    return 1.0F < s.uf || 1.0F < s.Tverr_kontroll ? exit_fails : exit_holds;
}

int Worse(int one, int other) {
    constexpr std::array<int, 4> rank{0, 1, 3, 2};
    return rank[static_cast<std::size_t>(one)] >= rank[static_cast<std::size_t>(other)] ? one : other;
}

} // namespace tarnvik
