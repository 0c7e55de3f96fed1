#include "windows/com/Failure.h"

#include <fmt/format.h>

#include <exception>
#include <memory>
#include <new>

#include "windows/com/Unicode.h"

namespace kestrune::windows {

using automation::AutomationError;
using automation::WrongCall;

void check(HRESULT result, std::string_view what) {
    if (result == E_OUTOFMEMORY) throw std::bad_alloc();
    if (FAILED(result)) throw AutomationError(result, what, system_text(result));
}

std::string system_text(HRESULT code) {
    wchar_t* text = nullptr;
    const DWORD length =
        FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                       nullptr, static_cast<DWORD>(code), MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US),
                       reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    const std::unique_ptr<wchar_t, decltype(&LocalFree)> owned(text, &LocalFree);
    std::wstring_view line(text ? text : L"", length);
    while (!line.empty() && (line.back() <= L' ' || line.back() == L'.')) line.remove_suffix(1);
    if (line.empty()) return fmt::format("the call failed with 0x{:08X}", static_cast<std::uint32_t>(code));
    return to_utf8(line);
}

Caught caught() noexcept {
    try {
        try {
            throw;
        } catch (const WrongCall& error) {
            return {error.code(), error.member(), error.description(), true, error.argument()};
        } catch (const AutomationError& error) {
            return {FAILED(error.code()) ? error.code() : E_FAIL, error.member(), error.description(), false, {}};
        } catch (const std::bad_alloc&) {
            return {E_OUTOFMEMORY, {}, {}, false, {}};
        } catch (const std::exception& error) {
            return {E_UNEXPECTED, {}, error.what(), false, {}};
        }
    } catch (const std::bad_alloc&) {
        return {E_OUTOFMEMORY, {}, {}, false, {}};
    } catch (...) {
        return {};
    }
}

}  // namespace kestrune::windows
