#include "windows/dll/Registry.h"

#include <array>
#include <vector>

namespace kestrune::windows {
namespace {

std::wstring path_of(const std::wstring& key) { return L"Software\\Classes" + (key.empty() ? L"" : L"\\" + key); }

void add_tree(HKEY parent, const std::wstring& name, const std::wstring& path, RegistryPicture& picture) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(parent, name.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return;
    picture[path + L"\\"];
    std::array<wchar_t, 512> text{};
    std::vector<BYTE> data(65536);
    for (DWORD i = 0;; ++i) {
        auto length = static_cast<DWORD>(text.size());
        auto size = static_cast<DWORD>(data.size());
        if (RegEnumValueW(key, i, text.data(), &length, nullptr, nullptr, data.data(), &size) != ERROR_SUCCESS) break;
        picture[path + L"\\" + text.data()] = std::wstring(data.begin(), data.begin() + size);
    }
    for (DWORD i = 0;; ++i) {
        auto length = static_cast<DWORD>(text.size());
        if (RegEnumKeyExW(key, i, text.data(), &length, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) break;
        add_tree(key, text.data(), path + L"\\" + text.data(), picture);
    }
    RegCloseKey(key);
}

}  // namespace

RegistryPicture classes_of(HKEY hive) {
    // A person who has logged on to Windows has this key; the user of a fresh Wine prefix has none.
    HKEY classes = nullptr;
    if (RegCreateKeyExW(hive, path_of({}).c_str(), 0, nullptr, 0, KEY_READ, nullptr, &classes, nullptr) ==
        ERROR_SUCCESS) {
        RegCloseKey(classes);
    }
    RegistryPicture picture;
    add_tree(hive, path_of({}), {}, picture);
    return picture;
}

std::wstring text_at(HKEY hive, const std::wstring& key, const wchar_t* name) {
    std::array<wchar_t, 1024> text{};
    auto size = static_cast<DWORD>(sizeof text);
    const auto status = RegGetValueW(hive, path_of(key).c_str(), name, RRF_RT_REG_SZ, nullptr, text.data(), &size);
    return status == ERROR_SUCCESS ? text.data() : L"(no text)";
}

bool is_there(HKEY hive, const std::wstring& key) {
    HKEY opened = nullptr;
    if (RegOpenKeyExW(hive, path_of(key).c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS) return false;
    RegCloseKey(opened);
    return true;
}

void write_text(HKEY hive, const std::wstring& key, const std::wstring& text) {
    RegSetKeyValueW(hive, path_of(key).c_str(), nullptr, REG_SZ, text.c_str(),
                    static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

void make_volatile(HKEY hive, const std::wstring& key) {
    HKEY made = nullptr;
    RegCreateKeyExW(hive, path_of(key).c_str(), 0, nullptr, REG_OPTION_VOLATILE, KEY_ALL_ACCESS, nullptr, &made,
                    nullptr);
    RegCloseKey(made);
}

void remove_tree(HKEY hive, const std::wstring& key) { RegDeleteTreeW(hive, path_of(key).c_str()); }

}  // namespace kestrune::windows
