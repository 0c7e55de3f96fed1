#include "windows/dll/Registration.h"

#include <array>
#include <string>
#include <vector>

#include "windows/com/Failure.h"
#include "windows/dll/TypeLibrary.h"

namespace kestrune::windows {
namespace {

// RegisterTypeLib would do a part of this, but into whichever of the two hives has the key already, so that it could
// not be taken back exactly.

constexpr REGSAM other_width = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;
constexpr const wchar_t* width_name = sizeof(void*) == 8 ? L"win64" : L"win32";
constexpr const wchar_t* other_width_name = sizeof(void*) == 8 ? L"win32" : L"win64";
// OLE Automation's own marshaller, for interfaces that are dispinterfaces.
constexpr const wchar_t* dispatch_marshaller = L"{00020420-0000-0000-C000-000000000046}";

// A value below Software\Classes; the empty name is the key's default value.
struct Entry {
    std::wstring key;
    std::wstring name;
    std::wstring value;
};

std::wstring text_of(const GUID& id) {
    std::array<wchar_t, 40> text{};
    StringFromGUID2(id, text.data(), static_cast<int>(text.size()));
    return text.data();
}

std::wstring class_key(const CreatableClass& c) { return L"CLSID\\" + text_of(c.id); }
std::wstring interface_key(const IID& id) { return L"Interface\\" + text_of(id); }
std::wstring library_key(const LibraryFacts& facts) { return L"TypeLib\\" + text_of(facts.id); }
// Registries write a type library's version in hexadecimal; ours stay below ten.
std::wstring version_of(const LibraryFacts& facts) {
    return std::to_wstring(facts.major) + L'.' + std::to_wstring(facts.minor);
}

std::vector<Entry> entries() {
    const LibraryFacts& facts = library_facts();
    const std::wstring path = module_path();
    const std::wstring id = text_of(facts.id);
    const std::wstring version = version_of(facts);
    std::vector<Entry> all;
    for (const CreatableClass& c : facts.classes) {
        const std::wstring key = class_key(c);
        all.push_back({c.prog_id, L"", facts.title});
        all.push_back({c.prog_id + L"\\CLSID", L"", text_of(c.id)});
        all.push_back({key, L"", c.prog_id});
        all.push_back({key + L"\\InprocServer32", L"", path});
        all.push_back({key + L"\\InprocServer32", L"ThreadingModel", L"Apartment"});
        all.push_back({key + L"\\ProgID", L"", c.prog_id});
        all.push_back({key + L"\\Programmable", L"", L""});
        all.push_back({key + L"\\TypeLib", L"", id});
        all.push_back({key + L"\\Version", L"", version});
    }
    const std::wstring library = library_key(facts) + L'\\' + version;
    all.push_back({library, L"", facts.title});
    all.push_back({library + L"\\FLAGS", L"", L"0"});
    all.push_back({library + L"\\HELPDIR", L"", module_folder()});
    all.push_back({library + L"\\0\\" + width_name, L"", path});
    for (const auto& [name, interface_id] : facts.interfaces) {
        const std::wstring key = interface_key(interface_id);
        all.push_back({key, L"", name});
        all.push_back({key + L"\\ProxyStubClsid32", L"", dispatch_marshaller});
        all.push_back({key + L"\\TypeLib", L"", id});
        all.push_back({key + L"\\TypeLib", L"Version", version});
    }
    return all;
}

class Key {
  public:
    // Null, with the reason in status(), when the key cannot be opened.
    Key(HKEY parent, const std::wstring& path, REGSAM access) {
        status_ = RegOpenKeyExW(parent, path.c_str(), 0, access, &key_);
    }
    // Makes the key where it is missing.
    Key(HKEY parent, const std::wstring& path) {
        status_ = RegCreateKeyExW(parent, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key_, nullptr);
    }
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;
    ~Key() {
        if (key_) RegCloseKey(key_);
    }
    [[nodiscard]] HKEY get() const { return key_; }
    [[nodiscard]] LSTATUS status() const { return status_; }

  private:
    HKEY key_ = nullptr;
    LSTATUS status_ = ERROR_SUCCESS;
};

HKEY hive(Scope scope) { return scope == Scope::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER; }
constexpr const wchar_t* classes_path = L"Software\\Classes";

LSTATUS write(HKEY classes, const Entry& entry) {
    const Key key(classes, entry.key);
    if (key.status() != ERROR_SUCCESS) return key.status();
    return RegSetValueExW(key.get(), entry.name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(entry.value.c_str()),
                          static_cast<DWORD>((entry.value.size() + 1) * sizeof(wchar_t)));
}

bool is_there(HKEY classes, const std::wstring& path, REGSAM view = 0) {
    return Key(classes, path, KEY_READ | view).status() == ERROR_SUCCESS;
}

bool is_empty(HKEY classes, const std::wstring& path) {
    const Key key(classes, path, KEY_READ);
    DWORD keys = 0;
    DWORD values = 0;
    return key.get() &&
           RegQueryInfoKeyW(key.get(), nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values, nullptr, nullptr,
                            nullptr, nullptr) == ERROR_SUCCESS &&
           keys == 0 && values == 0;
}

// The text of a key's default value; empty when there is none.
std::wstring text_at(HKEY classes, const std::wstring& path) {
    std::array<wchar_t, 64> text{};
    DWORD size = static_cast<DWORD>(sizeof text);
    if (RegGetValueW(classes, path.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, text.data(), &size) != ERROR_SUCCESS) {
        return {};
    }
    return text.data();
}

// Takes keys away, whole trees, and remembers the first failure.
class Removal {
  public:
    explicit Removal(HKEY classes) : classes_(classes) {}

    void remove(const std::wstring& path) {
        const LSTATUS status = RegDeleteTreeW(classes_, path.c_str());
        if (status != ERROR_SUCCESS && status != ERROR_FILE_NOT_FOUND && first_ == ERROR_SUCCESS) first_ = status;
    }
    [[nodiscard]] HRESULT result() const { return HRESULT_FROM_WIN32(first_); }

  private:
    HKEY classes_;
    LSTATUS first_ = ERROR_SUCCESS;
};

void remove_class(Removal& removal, HKEY classes, const CreatableClass& c) {
    removal.remove(class_key(c));
    if (is_there(classes, class_key(c) + L"\\InprocServer32", other_width)) return;
    const std::wstring named = text_at(classes, c.prog_id + L"\\CLSID");
    if (named.empty() || lstrcmpiW(named.c_str(), text_of(c.id).c_str()) == 0) removal.remove(c.prog_id);
}

void remove_library(Removal& removal, HKEY classes, const LibraryFacts& facts) {
    const std::wstring library = library_key(facts);
    const std::wstring version = library + L'\\' + version_of(facts);
    removal.remove(version + L"\\0\\" + width_name);
    if (is_there(classes, version + L"\\0\\" + other_width_name)) return;
    removal.remove(version);
    if (is_empty(classes, library)) removal.remove(library);
}

HRESULT remove_all(HKEY classes) {
    const LibraryFacts& facts = library_facts();
    Removal removal(classes);
    for (const CreatableClass& c : facts.classes) remove_class(removal, classes, c);
    for (const auto& [name, interface_id] : facts.interfaces) removal.remove(interface_key(interface_id));
    remove_library(removal, classes, facts);
    // A person's hive may have had none of these before.
    for (const auto* folder : {L"CLSID", L"Interface", L"TypeLib"}) {
        if (is_empty(classes, folder)) removal.remove(folder);
    }
    return removal.result();
}

}  // namespace

HRESULT register_module(Scope scope) noexcept {
    return guarded([&]() -> HRESULT {
        const std::vector<Entry> all = entries();
        const Key classes(hive(scope), classes_path);
        LSTATUS status = classes.status();
        if (status != ERROR_SUCCESS) return HRESULT_FROM_WIN32(status);
        for (auto entry = all.begin(); entry != all.end() && status == ERROR_SUCCESS; ++entry) {
            status = write(classes.get(), *entry);
        }
        if (status != ERROR_SUCCESS) remove_all(classes.get());
        return HRESULT_FROM_WIN32(status);
    });
}

HRESULT unregister_module(Scope scope) noexcept {
    return guarded([&]() -> HRESULT {
        const Key classes(hive(scope), classes_path, KEY_ALL_ACCESS);
        if (classes.status() == ERROR_FILE_NOT_FOUND) return S_OK;
        if (classes.status() != ERROR_SUCCESS) return HRESULT_FROM_WIN32(classes.status());
        return remove_all(classes.get());
    });
}

}  // namespace kestrune::windows
