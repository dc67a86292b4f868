#include "session/Variants.h"

namespace tarnvik {

ConnectionState& Variants::Fresh() {
    static_cast<ConnectionValues&>(*s_) = joint_;
    return *s_;
}

PassResult Variants::Pass() {
    judge_.Begin();
    PassResult result = Run_pass(*s_, nullptr, box_);
    standing_.Note_pass(*s_, result);
    judge_.After_pass(*s_, result, true);
    return result;
}

} // namespace tarnvik
