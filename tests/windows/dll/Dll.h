#pragma once

#include <windows.h>

#include <array>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace kestrune::windows {

// One of our DLLs, loaded without COM's help.
class Dll {
  public:
    explicit Dll(const std::filesystem::path& path) : path_(path), module_(LoadLibraryW(path.c_str())) {
        if (!module_) throw std::runtime_error("cannot load " + path.string());
    }
    Dll(const Dll&) = delete;
    Dll& operator=(const Dll&) = delete;
    ~Dll() { FreeLibrary(module_); }

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    [[nodiscard]] HRESULT add_for_machine() const { return call("DllRegisterServer"); }
    [[nodiscard]] HRESULT remove_for_machine() const { return call("DllUnregisterServer"); }
    [[nodiscard]] HRESULT can_unload_now() const { return call("DllCanUnloadNow"); }
    [[nodiscard]] HRESULT install(bool install, const wchar_t* command_line) const {
        using Install = HRESULT(STDAPICALLTYPE*)(BOOL, LPCWSTR);
        return function<Install>("DllInstall")(install ? TRUE : FALSE, command_line);
    }

  private:
    template <class F>
    F function(const char* name) const {
        return reinterpret_cast<F>(reinterpret_cast<void*>(GetProcAddress(module_, name)));
    }
    HRESULT call(const char* name) const { return function<HRESULT(STDAPICALLTYPE*)()>(name)(); }

    std::filesystem::path path_;
    HMODULE module_;
};

// The build's own DLLs; the folder comes from the build.
inline std::filesystem::path dll_path(const std::string& name) {
    return (std::filesystem::path(KESTRUNE_DLL_FOLDER) / (name + ".dll")).make_preferred();
}

// Registered for the machine as long as it lives.
class Registered {
  public:
    explicit Registered(const Dll& dll) : dll_(dll) {
        if (FAILED(dll_.add_for_machine())) throw std::runtime_error("cannot register " + dll_.path().string());
    }
    Registered(const Registered&) = delete;
    Registered& operator=(const Registered&) = delete;
    ~Registered() { static_cast<void>(dll_.remove_for_machine()); }

  private:
    const Dll& dll_;
};

}  // namespace kestrune::windows
