#pragma once

#include <fmt/format.h>

#include <cstdio>
#include <cstdlib>

namespace kestrune::histories {

// Tells what a history does on standard error, for who asks (UNDO_HISTORIES_TELL=1).
template <class... Arguments>
void tell(fmt::format_string<Arguments...> text, Arguments&&... arguments) {
    static const bool asked = std::getenv("UNDO_HISTORIES_TELL") != nullptr;
    if (asked) fmt::print(stderr, "{}\n", fmt::format(text, std::forward<Arguments>(arguments)...));
}

}  // namespace kestrune::histories
