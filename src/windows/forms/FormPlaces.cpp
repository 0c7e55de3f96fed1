#include "windows/forms/FormPlaces.h"

#include <windows.h>

#include <fmt/format.h>
#include <fmt/xchar.h>

#include <array>
#include <cmath>
#include <cwchar>

#include "windows/com/Unicode.h"

namespace kestrune::windows {

FormPlaces::FormPlaces(std::string_view key) : key_(to_utf16(key)) {}

std::optional<FormPlace> FormPlaces::place_of(std::string_view form) const {
    if (key_.empty()) return std::nullopt;
    std::array<wchar_t, 128> text{};
    DWORD size = sizeof text - sizeof(wchar_t);
    if (RegGetValueW(HKEY_CURRENT_USER, key_.c_str(), to_utf16(form).c_str(), RRF_RT_REG_SZ, nullptr, text.data(),
                     &size) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    constexpr double largest = 10'000;  // points
    FormPlace place;
    if (std::swscanf(text.data(), L"%ld %ld %lf %lf", &place.left, &place.top, &place.width, &place.height) != 4 ||
        !(place.width > 0 && place.width < largest && place.height > 0 && place.height < largest) ||
        std::abs(place.left) > 100'000 || std::abs(place.top) > 100'000) {
        return std::nullopt;
    }
    return place;
}

void FormPlaces::keep(std::string_view form, const FormPlace& place) const {
    if (key_.empty()) return;
    const std::wstring text = fmt::format(L"{} {} {:.2f} {:.2f}", place.left, place.top, place.width, place.height);
    static_cast<void>(RegSetKeyValueW(HKEY_CURRENT_USER, key_.c_str(), to_utf16(form).c_str(), REG_SZ, text.c_str(),
                                      static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))));
}

}  // namespace kestrune::windows
