#include "brvblib/hotkeys/HotKeyBinder.h"

#include "automation/ResumeNext.h"
#include "keys/OnKeyText.h"

namespace kestrune::brvblib {

void HotKeyBinder::bind(const automation::ObjectRef& application, const Macros& wanted) {
    if (application_ != application) release();
    application_ = application;
    if (!application_) return;
    const automation::ResumeNext attempt(trace_);
    // Given back first: a key that moves from one command to another is never bound twice.
    for (auto key = bound_.begin(); key != bound_.end();) {
        const bool gone = !wanted.contains(key->first) &&
                          attempt([&] { automation::call(*application_, "OnKey", {keys::on_key_text(key->first)}); });
        key = gone ? bound_.erase(key) : std::next(key);
    }
    for (const auto& [key, macro] : wanted) {
        const auto now = bound_.find(key);
        if (now != bound_.end() && now->second == macro) continue;
        if (attempt([&] { automation::call(*application_, "OnKey", {keys::on_key_text(key), macro}); })) {
            bound_.insert_or_assign(key, macro);
        }
    }
}

void HotKeyBinder::release() {
    if (!application_) return;
    const automation::ResumeNext attempt(trace_);
    for (const auto& [key, macro] : bound_) {
        attempt([&] { automation::call(*application_, "OnKey", {keys::on_key_text(key)}); });
    }
    bound_.clear();
    application_ = nullptr;
}

}  // namespace kestrune::brvblib
