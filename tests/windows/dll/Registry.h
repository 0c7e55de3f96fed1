#pragma once

#include <windows.h>

#include <map>
#include <string>

namespace kestrune::windows {

// Everything below a key: "Path\Name" with the value's bytes, "Path\" for the key itself.
using RegistryPicture = std::map<std::wstring, std::wstring>;

// What COM reads of a hive, HKEY_LOCAL_MACHINE or HKEY_CURRENT_USER.
RegistryPicture classes_of(HKEY hive);

// Below Software\Classes of a hive.
std::wstring text_at(HKEY hive, const std::wstring& key, const wchar_t* name = nullptr);
bool is_there(HKEY hive, const std::wstring& key);
void write_text(HKEY hive, const std::wstring& key, const std::wstring& text);
// A key that is gone at the next start, below which no lasting key can be made.
void make_volatile(HKEY hive, const std::wstring& key);
void remove_tree(HKEY hive, const std::wstring& key);

}  // namespace kestrune::windows
