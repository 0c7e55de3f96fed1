#pragma once

#include <string>

#include "host/objects/HostSession.h"
#include "keys/Key.h"

namespace kestrune::host {

// What pressing a key did.
struct KeyPress {
    enum class Effect {
        Bound,      // ran the macro that OnKey bound to it
        Swallowed,  // nothing: OnKey bound it to nothing
        Excel,      // what it does in Excel
        Unknown,    // nothing: it needs a screen or a person, or Excel has nothing for it either
    };
    Effect effect = Effect::Unknown;
    std::string what;          // the macro, or what the key does in Excel; empty where Excel has nothing for it
    automation::Value answer;  // the macro's; Empty for a Sub
};

// Presses a key as a person at the keyboard. Fails as the macro or Excel does.
KeyPress press_key(HostSession& session, const keys::Key& key);

}  // namespace kestrune::host
