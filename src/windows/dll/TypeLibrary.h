#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

#include "windows/com/TypeInfoSource.h"

namespace kestrune::windows {

// A class that clients may create.
struct CreatableClass {
    std::wstring prog_id;  // "BRVBLib.iPublic"
    CLSID id{};
};

// What the DLL's registration needs to know of its type library.
struct LibraryFacts {
    std::wstring title;
    GUID id{};
    WORD major = 0;
    WORD minor = 0;
    std::vector<CreatableClass> classes;
    std::vector<std::pair<std::wstring, IID>> interfaces;
};

// The full path of this DLL, and the folder in which it lies, without a separator at the end.
std::wstring module_path();
std::wstring module_folder();

// From the type library that is embedded in this DLL, which is read once. Fail with AutomationError when it cannot be.
const LibraryFacts& library_facts();
// The dispinterface of a class ("iGlobal"); null when the library does not describe it.
ComPtr<ITypeInfo> embedded_type_info(std::string_view class_name);

}  // namespace kestrune::windows
