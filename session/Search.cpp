#include "session/Search.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "session/Variants.h"
#include "spacing/Catalogue.h"

namespace tarnvik {

namespace {

// The rows to try: the given one, or all.
struct Rows {
    std::int16_t first, last;

    [[nodiscard]] std::size_t Count() const { return static_cast<std::size_t>(last - first + 1); }
};

Rows Rows_of(const std::optional<std::int16_t>& given, std::size_t count) {
    return given ? Rows{*given, *given} : Rows{0, static_cast<std::int16_t>(count - 1)};
}

Rows Connectors(const SearchLimits& limits) {
    return !limits.Bulldog_index && !limits.with_connectors
               ? Rows{no_connector, no_connector}
               : Rows{limits.Bulldog_index.value_or(no_connector),
                      limits.Bulldog_index.value_or(static_cast<std::int16_t>(connector_table.size() - 1))};
}

Rows Bolts(const SearchLimits& limits) {
    return Rows_of(limits.Bolt_index, bolt_table.size());
}

Rows Numbers(const SearchLimits& limits) {
    return Rows_of(limits.Ant_index, bolt_numbers.size());
}

Rows Spacings(const SearchLimits& limits) {
    return Rows_of(limits.Avstand_index, spacing_count);
}

std::string_view Layouts(const SearchLimits& limits) {
    constexpr std::string_view layouts{"ab"};
    return limits.Bolt_ab ? layouts.substr(*limits.Bolt_ab == 'b' ? 1 : 0, 1) : layouts;
}

bool Same_results(const FoundFasteners& one, const FoundFasteners& other) {
    const Judgement& a = one.judgement;
    const Judgement& b = other.judgement;
    const auto same = [](const CheckResult& check, const CheckResult& like) { return check.value == like.value; };
    return one.Case_code == other.Case_code && one.Rd_bolt == other.Rd_bolt && one.Rd_for == other.Rd_for &&
           a.governing.mode == b.governing.mode && a.governing.value == b.governing.value &&
           std::equal(a.verdict.checks.begin(), a.verdict.checks.end(), b.verdict.checks.begin(), same);
}

const BoltRow& Bolt(const FoundFasteners& found) {
    return bolt_table[static_cast<std::size_t>(found.fasteners.Bolt_index)];
}

// What tells entries apart, the grade of the bolt left out.
auto But_for_grade(const FoundFasteners& found) {
    const Fasteners& f = found.fasteners;
    return std::tuple{f.Bulldog_index, Bolt(found).d,   f.Ant_index,       found.both_layouts,
                      f.Bolt_ab,       f.Avstand_index, found.last_spacing};
}

bool Ranks_before(const FoundFasteners& one, const FoundFasteners& other) {
    const auto rank = [](const FoundFasteners& found) {
        const Fasteners& f = found.fasteners;
        return std::tuple{f.Ant_index,     Bolt(found).d, found.Utilisation(), Bolt(found).fuk,
                          f.Bulldog_index, f.Bolt_ab,     f.Avstand_index};
    };
    return rank(one) < rank(other);
}

class Search {
public:
    Search(const ConnectionState& joint, bool english) : variants_(joint), english_(english) {
        ConnectionState& s = variants_.Fresh();
        Get_Con_code(s);
        types_ = {static_cast<char>('0' + s.Con_type), s.Con_code.View().front()};
    }

    SearchResult Run(const SearchLimits& limits) {
        const Rows connectors = Connectors(limits);
        const Rows bolts = Bolts(limits);
        const Rows numbers = Numbers(limits);
        Fasteners f;
        for (f.Bulldog_index = connectors.first; f.Bulldog_index <= connectors.last; ++f.Bulldog_index) {
            for (f.Bolt_index = bolts.first; f.Bolt_index <= bolts.last; ++f.Bolt_index) {
                for (f.Ant_index = numbers.first; f.Ant_index <= numbers.last; ++f.Ant_index) {
                    Layouts_and_spacings(f, limits);
                }
            }
        }
        List_grades_once();
        std::sort(result_.found.begin(), result_.found.end(), Ranks_before);
        return std::move(result_);
    }

private:
    // What differs in these alone often gives the same.
    void Layouts_and_spacings(Fasteners f, const SearchLimits& limits) {
        const Rows spacings = Spacings(limits);
        const std::string_view layouts = Layouts(limits);
        const bool both = layouts.size() > 1 && !Has_layouts(f);
        weight_ = both ? layouts.size() : 1;
        for (const char layout : layouts.substr(0, both ? 1 : layouts.size())) {
            f.Bolt_ab = layout;
            const std::size_t begin = result_.found.size();
            for (f.Avstand_index = spacings.first; f.Avstand_index <= spacings.last; ++f.Avstand_index) {
                Try(f, both, begin);
            }
        }
    }

    // A mode of failure in which the bolt stays straight does not ask for its grade.
    void List_grades_once() {
        auto& found = result_.found;
        std::sort(found.begin(), found.end(), [](const auto& one, const auto& other) {
            return std::pair{But_for_grade(one), Bolt(one).fuk} < std::pair{But_for_grade(other), Bolt(other).fuk};
        });
        std::size_t kept = 0;
        for (std::size_t i = 1; i < found.size(); ++i) {
            if (But_for_grade(found[i]) == But_for_grade(found[kept]) && Same_results(found[i], found[kept])) {
                found[kept].other_bolts.push_back(found[i].fasteners.Bolt_index);
            } else if (++kept != i) {
                found[kept] = std::move(found[i]);
            }
        }
        found.resize(std::min(found.size(), kept + 1));
    }

    // The arrangement counts for a pass by way of the case alone: whether the catalogue has one of each for the number.
    [[nodiscard]] bool Has_layouts(const Fasteners& f) const {
        const int number = bolt_numbers[static_cast<std::size_t>(f.Ant_index)];
        return std::any_of(types_.begin(), types_.end(), [number](char type) {
            return Find_case(type, number, 'a') != Find_case(type, number, 'b');
        });
    }

    // `begin`: where the entries of the same arrangement begin.
    void Try(const Fasteners& fasteners, bool both_layouts, std::size_t begin) {
        const std::optional<Judgement> judgement = Check_choice(fasteners);
        if (!judgement || !Note(judgement->verdict)) {
            return;
        }
        const ConnectionState& s = variants_.State();
        const FoundFasteners found{fasteners,   {},        both_layouts, fasteners.Avstand_index,
                                   s.Case_code, s.Rd_bolt, s.Rd_for,     *judgement};
        auto& list = result_.found;
        if (list.size() > begin && list.back().last_spacing == found.last_spacing - 1 &&
            Same_results(list.back(), found)) {
            list.back().last_spacing = found.last_spacing;
        } else {
            list.push_back(found);
        }
    }

    // Nothing where the pass is stopped.
    std::optional<Judgement> Check_choice(const Fasteners& fasteners) {
        Set_fasteners(variants_.Fresh(), fasteners);
        result_.choices += weight_;
        if (const PassResult pass = variants_.Pass(); pass.end != PassEnd::normal) {
            Note_stopped(Reason_of(pass, variants_.State(), english_));
            return std::nullopt;
        }
        return variants_.Judge_results();
    }

    void Note_stopped(std::string_view reason) {
        auto& stopped = result_.stopped;
        const auto row =
            std::find_if(stopped.begin(), stopped.end(), [&](const auto& one) { return one.reason == reason; });
        if (row == stopped.end()) {
            stopped.push_back({reason, weight_});
        } else {
            row->choices += weight_;
        }
    }

    // Whether all holds.
    bool Note(const Verdict& verdict) {
        if (verdict.Holds()) {
            result_.holding += weight_;
            return true;
        }
        for (std::size_t i = 0; i < check_count; ++i) {
            result_.failing[i] += verdict.checks[i].Fails() ? weight_ : 0;
        }
        result_.not_checked += verdict[Check::splitting].checked ? 0 : weight_;
        return false;
    }

    Variants variants_;
    bool english_;
    std::array<char, 2> types_{}; // by which a pass takes its case: of the connection and of its code
    std::size_t weight_{1};       // choices that a pass stands for
    SearchResult result_;
};

} // namespace

void Set_fasteners(ConnectionValues& s, const Fasteners& fasteners) {
    s.Med_bulldog = fasteners.Bulldog_index != no_connector;
    s.Kun_bolt = !s.Med_bulldog;
    if (s.Med_bulldog) {
        s.Bulldog_index = fasteners.Bulldog_index;
        Get_dc(s);
    }
    s.Bolt_index = fasteners.Bolt_index;
    s.Ant_index = fasteners.Ant_index;
    s.Bolt_ab = std::string_view{&fasteners.Bolt_ab, 1};
    s.Avstand_index = fasteners.Avstand_index;
}

Fasteners SearchLimits::First() const {
    return {Connectors(*this).first, Bolts(*this).first, Numbers(*this).first, Layouts(*this).front(),
            Spacings(*this).first};
}

std::size_t SearchLimits::Count() const {
    return Connectors(*this).Count() * Bolts(*this).Count() * Numbers(*this).Count() * Layouts(*this).size() *
           Spacings(*this).Count();
}

std::size_t SearchResult::Stopped_choices() const {
    std::size_t count = 0;
    for (const Stopped& one : stopped) {
        count += one.choices;
    }
    return count;
}

SearchResult Search_fasteners(const ConnectionState& joint, const SearchLimits& limits, bool english) {
    return Search{joint, english}.Run(limits);
}

} // namespace tarnvik
