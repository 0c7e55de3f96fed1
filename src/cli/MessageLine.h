#pragma once

#include <fmt/format.h>

#include <string>

#include "forms/Message.h"

namespace kestrune::cli {

// A message box and its answer as one line.
inline std::string message_line(const forms::Message& message, forms::MsgBoxResult answer) {
    return fmt::format("{}: {} [{}]", message.caption, message.text, forms::choice_name(answer));
}

}  // namespace kestrune::cli
