#include "session/Search.h"

#include <algorithm>
#include <memory>
#include <tuple>

#include "calc/pass/Main_beregn.h"

namespace tarnvik {

namespace {

// A refused connector is a choice like any other that does not do.
class Unheard final : public MessageBox {
public:
    void Show(std::string_view /*text*/, int /*style*/) override {}
};

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

bool Ranks_before(const FoundFasteners& one, const FoundFasteners& other) {
    const auto rank = [](const FoundFasteners& found) {
        const Fasteners& f = found.fasteners;
        const BoltRow& bolt = bolt_table[static_cast<std::size_t>(f.Bolt_index)];
        return std::tuple{f.Ant_index,     bolt.d,    found.Utilisation(), bolt.fuk,
                          f.Bulldog_index, f.Bolt_ab, f.Avstand_index};
    };
    return rank(one) < rank(other);
}

class Search {
public:
    Search(const ConnectionState& joint, bool english)
        : s_(std::make_unique<ConnectionState>(joint)), joint_(joint), english_(english) {}

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
        std::sort(result_.found.begin(), result_.found.end(), Ranks_before);
        return std::move(result_);
    }

private:
    // What differs in these alone often gives the same.
    void Layouts_and_spacings(Fasteners f, const SearchLimits& limits) {
        const Rows spacings = Spacings(limits);
        const std::size_t first = result_.found.size();
        for (const char layout : Layouts(limits)) {
            f.Bolt_ab = layout;
            const std::size_t begin = result_.found.size();
            for (f.Avstand_index = spacings.first; f.Avstand_index <= spacings.last; ++f.Avstand_index) {
                Try(f, begin);
            }
            if (begin > first) {
                List_layouts_once(first, begin);
            }
        }
    }

    // Both arrangements are one entry where there is nothing to choose.
    void List_layouts_once(std::size_t first, std::size_t second) {
        auto& found = result_.found;
        const auto begin = found.begin() + static_cast<std::ptrdiff_t>(first);
        const auto middle = found.begin() + static_cast<std::ptrdiff_t>(second);
        if (std::equal(begin, middle, middle, found.end(), [](const auto& one, const auto& other) {
                return Same_results(one, other) && one.last_spacing == other.last_spacing;
            })) {
            found.erase(middle, found.end());
            std::for_each(found.begin() + static_cast<std::ptrdiff_t>(first), found.end(),
                          [](FoundFasteners& one) { one.both_layouts = true; });
        }
    }

    // `begin`: where the entries of the same arrangement begin.
    void Try(const Fasteners& fasteners, std::size_t begin) {
        const std::optional<Judgement> judgement = Check_choice(fasteners);
        if (!judgement || !Note(judgement->verdict)) {
            return;
        }
        const FoundFasteners found{fasteners,  false,     fasteners.Avstand_index, s_->Case_code, s_->Rd_bolt,
                                   s_->Rd_for, *judgement};
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
        static_cast<ConnectionValues&>(*s_) = joint_; // a pass leaves results and rounded sections
        Set_fasteners(*s_, fasteners);
        judge_.Begin();
        ++result_.choices;
        const PassResult pass = Run_pass(*s_, nullptr, box_);
        if (pass.end != PassEnd::normal) {
            Note_stopped(Reason_of(pass, *s_, english_));
            return std::nullopt;
        }
        standing_.Note_pass(*s_, pass);
        judge_.After_pass(*s_, pass, true);
        return judge_.Judge_results(*s_);
    }

    void Note_stopped(std::string_view reason) {
        auto& stopped = result_.stopped;
        const auto row =
            std::find_if(stopped.begin(), stopped.end(), [&](const auto& one) { return one.reason == reason; });
        if (row == stopped.end()) {
            stopped.push_back({reason, 1});
        } else {
            ++row->choices;
        }
    }

    // Whether all holds.
    bool Note(const Verdict& verdict) {
        if (verdict.Holds()) {
            ++result_.holding;
            return true;
        }
        for (std::size_t i = 0; i < check_count; ++i) {
            result_.failing[i] += verdict.checks[i].Fails() ? 1 : 0;
        }
        result_.not_checked += verdict[Check::splitting].checked ? 0 : 1;
        return false;
    }

    std::unique_ptr<ConnectionState> s_;
    const ConnectionValues& joint_;
    bool english_;
    Unheard box_;
    Standing standing_;
    Judge judge_{standing_};
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
