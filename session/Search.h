// All fasteners with which a joint holds and fits.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "calc/GlobalParameter.h"
#include "session/Judge.h"

namespace tarnvik {

inline constexpr std::int16_t no_connector = -1;
inline constexpr std::int16_t spacing_count = 16; // 5d to 20d

// What an engineer chooses for given members, force and classes. Rows of their lists.
struct Fasteners {
    std::int16_t Bulldog_index{no_connector};
    std::int16_t Bolt_index{};
    std::int16_t Ant_index{};
    char Bolt_ab{'a'};
    std::int16_t Avstand_index{};
};

// Writes them as picking each in its list does: dc goes with the connector.
void Set_fasteners(ConnectionValues& s, const Fasteners& fasteners);

// Which of them are given. The rest is searched, connectors only where that is asked for.
struct SearchLimits {
    std::optional<std::int16_t> Bulldog_index, Bolt_index, Ant_index, Avstand_index;
    std::optional<char> Bolt_ab;
    bool with_connectors{};

    // The first choice that is tried, and how many there are.
    [[nodiscard]] Fasteners First() const;
    [[nodiscard]] std::size_t Count() const;
};

// Fasteners that hold and fit, and what is known of them. Choices that give the same results stand here once, with the
// least of them: grades of a bolt, both arrangements, spacings up to a larger one.
struct FoundFasteners {
    Fasteners fasteners;
    std::vector<std::int16_t> other_bolts; // rows of Bolt_index
    bool both_layouts{};
    std::int16_t last_spacing{}; // row of Avstand_index
    FixedText<5> Case_code;
    float Rd_bolt{}, Rd_for{}; // kN
    Judgement judgement;

    // The one of the two utilisations that is the larger.
    [[nodiscard]] Check Governs() const {
        const Verdict& verdict = judgement.verdict;
        return verdict[Check::splitting].value > verdict[Check::utilisation].value ? Check::splitting
                                                                                   : Check::utilisation;
    }
    [[nodiscard]] float Utilisation() const { return judgement.verdict[Governs()].value; }
};

struct SearchResult {
    std::vector<FoundFasteners> found; // fewest bolts first, then the thinnest, then the least utilised
    std::size_t choices{}, holding{};  // tried; with those that `found` lists once
    // Why the others are not among them; one may fail in several checks.
    std::array<std::size_t, check_count> failing{};
    std::size_t not_checked{}; // splitting by a typed he that the member does not have
    struct Stopped {
        std::string_view reason; // as Reason_of
        std::size_t choices;
    };
    std::vector<Stopped> stopped;

    [[nodiscard]] std::size_t Stopped_choices() const;
};

// Checks every choice on the joint as a pass on it and the check of a typed he do; the joint itself stays as it is.
SearchResult Search_fasteners(const ConnectionState& joint, const SearchLimits& limits, bool english);

} // namespace tarnvik
