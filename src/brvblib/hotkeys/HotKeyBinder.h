#pragma once

#include <map>
#include <string>

#include "automation/Object.h"
#include "automation/Trace.h"
#include "keys/Key.h"

namespace kestrune::brvblib {

// Binds keys in Excel through Application.OnKey, and gives every key that it bound back to Excel, once: when the key is
// not wanted any more, and all of them when it is let go of. Keys that others bound are left alone. What Excel refuses
// is told to the trace.
class HotKeyBinder {
  public:
    // The macro of each key; an empty one makes the key do nothing.
    using Macros = std::map<keys::Key, std::string>;

    explicit HotKeyBinder(const automation::Trace& trace) : trace_(trace) {}
    HotKeyBinder(const HotKeyBinder&) = delete;
    HotKeyBinder& operator=(const HotKeyBinder&) = delete;
    ~HotKeyBinder() { release(); }

    // Makes exactly these keys bound, in one call for each that differs from what is bound. Another application than
    // before gets its keys back first.
    void bind(const automation::ObjectRef& application, const Macros& wanted);
    // Gives back every key and lets go of the application.
    void release();
    [[nodiscard]] const Macros& bound() const { return bound_; }

  private:
    const automation::Trace& trace_;
    automation::ObjectRef application_;
    Macros bound_;
};

}  // namespace kestrune::brvblib
