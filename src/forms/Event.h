#pragma once

#include <cstdint>
#include <functional>

namespace kestrune::forms {

// What happens to a form and its controls, under MSForms' names.
//
// A form that is shown: Initialize, the first control's Enter, Activate. One that is unloaded: QueryClose, which may
// cancel it, the focused control's Exit, Terminate. One that is hidden: nothing.
//
// A person who goes to another control: BeforeUpdate and AfterUpdate of the one that is left when its text changed, its
// Exit, the other's Enter; BeforeUpdate and Exit may cancel the move. Texts change key by key (Change). What is chosen
// changes at once: Change, Click, BeforeUpdate, AfterUpdate; a spin button has SpinUp or SpinDown behind its Change.
//
// Code that changes a value fires Change, and Click for what is chosen; a button of a group that goes off has Change
// alone, before the one that goes on.
enum class Event : std::uint8_t {
    Initialize,
    Activate,
    QueryClose,
    Terminate,
    Resize,
    Click,
    DblClick,
    Change,
    Enter,
    Exit,
    BeforeUpdate,
    AfterUpdate,
    SpinUp,
    SpinDown,
};

// Why a form is asked to close.
enum class CloseMode : std::uint8_t {
    FormControlMenu = 0,  // the person closes the window
    FormCode = 1,         // code unloads it
};

struct EventCall {
    Event event = Event::Click;
    CloseMode close_mode = CloseMode::FormCode;  // of QueryClose
    bool cancel = false;                         // for QueryClose, Exit and BeforeUpdate to set
};

using Handler = std::function<void(EventCall& call)>;

}  // namespace kestrune::forms
