#include "windows/services/RegistryProductStore.h"

#include <windows.h>

#include <cstring>
#include <vector>

#include "windows/com/Unicode.h"

namespace kestrune::windows {
namespace {

using automation::Value;

class Key {
  public:
    Key(HKEY root, const std::wstring& name, REGSAM view) {
        if (::RegOpenKeyExW(root, name.c_str(), 0, KEY_QUERY_VALUE | view, &key_) != ERROR_SUCCESS) key_ = nullptr;
    }
    ~Key() {
        if (key_) ::RegCloseKey(key_);
    }
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;

    [[nodiscard]] Value value(const std::wstring& name) const {
        if (!key_) return {};
        DWORD kind = 0;
        DWORD size = 0;
        if (::RegQueryValueExW(key_, name.c_str(), nullptr, &kind, nullptr, &size) != ERROR_SUCCESS) return {};
        // A text need not end in a zero in the registry; ours shall.
        std::vector<BYTE> data(size + 2 * sizeof(wchar_t));
        if (::RegQueryValueExW(key_, name.c_str(), nullptr, &kind, data.data(), &size) != ERROR_SUCCESS) return {};
        if (kind == REG_DWORD && size == sizeof(DWORD)) {
            std::int32_t number = 0;
            std::memcpy(&number, data.data(), sizeof number);
            return number;
        }
        if (kind != REG_SZ && kind != REG_EXPAND_SZ) return {};
        std::wstring text(size / sizeof(wchar_t), L'\0');
        std::memcpy(text.data(), data.data(), text.size() * sizeof(wchar_t));
        while (!text.empty() && text.back() == L'\0') text.pop_back();
        return to_utf8(kind == REG_EXPAND_SZ ? expanded(text) : text);
    }

  private:
    static std::wstring expanded(const std::wstring& text) {
        const DWORD size = ::ExpandEnvironmentStringsW(text.c_str(), nullptr, 0);
        std::wstring out(size, L'\0');
        const DWORD written = ::ExpandEnvironmentStringsW(text.c_str(), out.data(), size);
        if (written == 0 || written > size) return text;
        out.resize(written - 1);
        return out;
    }

    HKEY key_ = nullptr;
};

}  // namespace

RegistryProductStore::RegistryProductStore(std::string_view key) : key_(to_utf16(key)) {}

Value RegistryProductStore::value(std::string_view name) const {
    const std::wstring wide = to_utf16(name);
    for (const HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) {
        for (const REGSAM view : {REGSAM{0}, REGSAM{KEY_WOW64_64KEY}, REGSAM{KEY_WOW64_32KEY}}) {
            Value value = Key(root, key_, view).value(wide);
            if (!value.is(Value::Kind::Empty)) return value;
        }
    }
    return {};
}

}  // namespace kestrune::windows
