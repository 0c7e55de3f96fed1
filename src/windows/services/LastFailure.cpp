#include "windows/services/LastFailure.h"

#include <windows.h>

#include <fmt/format.h>

#include <iterator>

#include "windows/com/Unicode.h"

namespace kestrune::windows {

std::string last_failure() {
    const DWORD code = ::GetLastError();
    wchar_t text[512];
    DWORD length = ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code, 0, text,
                                    static_cast<DWORD>(std::size(text)), nullptr);
    while (length > 0 && (text[length - 1] == L'\n' || text[length - 1] == L'\r')) --length;
    if (length == 0) return fmt::format("Windows error {}", code);
    return to_utf8({text, length});
}

}  // namespace kestrune::windows
