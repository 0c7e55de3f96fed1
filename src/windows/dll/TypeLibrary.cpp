#include "windows/dll/TypeLibrary.h"

#include <map>
#include <memory>

#include "windows/com/Failure.h"
#include "windows/com/Unicode.h"

// Where the linker says this DLL begins.
extern "C" const IMAGE_DOS_HEADER __ImageBase;  // NOLINT(bugprone-reserved-identifier): the linker's name

namespace kestrune::windows {
namespace {

struct FreeString {
    void operator()(BSTR text) const { SysFreeString(text); }
};
using Text = std::unique_ptr<OLECHAR, FreeString>;

struct Library {
    LibraryFacts facts;
    std::map<std::string, ComPtr<ITypeInfo>, std::less<>> interfaces;  // by the class's name
};

TYPEATTR attributes_of(ITypeInfo& info) {
    TYPEATTR* attributes = nullptr;
    check(info.GetTypeAttr(&attributes), "the type library");
    const TYPEATTR copy = *attributes;
    info.ReleaseTypeAttr(attributes);
    return copy;
}

Library read_library() {
    ComPtr<ITypeLib> types;
    check(LoadTypeLibEx(module_path().c_str(), REGKIND_NONE, &types), "the type library");
    Library library;

    TLIBATTR* attributes = nullptr;
    check(types->GetLibAttr(&attributes), "the type library");
    library.facts.id = attributes->guid;
    library.facts.major = attributes->wMajorVerNum;
    library.facts.minor = attributes->wMinorVerNum;
    types->ReleaseTLibAttr(attributes);

    const auto texts_of = [&](INT index) {
        BSTR name = nullptr;
        BSTR title = nullptr;
        check(types->GetDocumentation(index, &name, &title, nullptr, nullptr), "the type library");
        return std::pair(Text(name), Text(title));
    };
    const auto [library_name, library_title] = texts_of(-1);
    library.facts.title = library_title ? library_title.get() : library_name.get();

    for (UINT i = 0; i < types->GetTypeInfoCount(); ++i) {
        ComPtr<ITypeInfo> info;
        check(types->GetTypeInfo(i, &info), "the type library");
        const TYPEATTR type = attributes_of(*info.Get());
        const std::wstring name = texts_of(static_cast<INT>(i)).first.get();
        if (type.typekind == TKIND_COCLASS && (type.wTypeFlags & TYPEFLAG_FCANCREATE)) {
            library.facts.classes.push_back({std::wstring(library_name.get()) + L'.' + name, type.guid});
        } else if (type.typekind == TKIND_DISPATCH) {
            library.facts.interfaces.emplace_back(name, type.guid);
            // The interface's name is the class's behind an underscore, as Visual Basic has it.
            library.interfaces.emplace(to_utf8(name.substr(1)), info);
        }
    }
    return library;
}

const Library& library() {
    static const Library read = read_library();
    return read;
}

}  // namespace

std::wstring module_path() {
    constexpr std::size_t longest_path = 32768;
    const auto* base = reinterpret_cast<const BYTE*>(&__ImageBase);
    std::wstring path(longest_path, L'\0');
    path.resize(GetModuleFileNameW(reinterpret_cast<HMODULE>(const_cast<BYTE*>(base)), path.data(), longest_path));
    return path;
}

std::wstring module_folder() {
    const std::wstring path = module_path();
    return path.substr(0, path.find_last_of(L'\\'));
}

const LibraryFacts& library_facts() { return library().facts; }

ComPtr<ITypeInfo> embedded_type_info(std::string_view class_name) {
    const auto found = library().interfaces.find(class_name);
    return found == library().interfaces.end() ? nullptr : found->second;
}

}  // namespace kestrune::windows
