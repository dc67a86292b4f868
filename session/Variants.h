// One joint under many inputs, each checked on the joint as it was given: a pass leaves results and rounded sections,
// which the next one is not to see.
#pragma once

#include <memory>

#include "calc/GlobalParameter.h"
#include "calc/pass/Main_beregn.h"
#include "ports/MessageBox.h"
#include "session/Judge.h"

namespace tarnvik {

class Variants {
public:
    // The joint has to outlive them, and stays as it is.
    explicit Variants(const ConnectionState& joint) : s_(std::make_unique<ConnectionState>(joint)), joint_(joint) {}

    // The joint as it was given, to write the inputs of a variant into.
    ConnectionState& Fresh();

    // Checks what has been written, with a typed he. What a pass has to say in a box is in its result.
    PassResult Pass();

    [[nodiscard]] const ConnectionState& State() const { return *s_; }
    [[nodiscard]] Judgement Judge_results() const { return judge_.Judge_results(*s_); }

private:
    class Unheard final : public MessageBox {
    public:
        void Show(std::string_view /*text*/, int /*style*/) override {}
    };

    std::unique_ptr<ConnectionState> s_;
    const ConnectionValues& joint_;
    Unheard box_;
    Standing standing_;
    Judge judge_{standing_};
};

} // namespace tarnvik
