#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "forms/Message.h"
#include "forms/Presenter.h"

namespace kestrune::forms {

// Shows a message box and waits for its answer, one of the vbOK .. vbNo of the buttons asked for.
std::int32_t MsgBox(Presenter& presenter, std::string_view text, std::int32_t buttons = vbOKOnly,
                    std::string_view caption = {});

}  // namespace kestrune::forms
