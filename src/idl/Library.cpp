#include "idl/Library.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <stdexcept>

#include "idl/Identities.h"

namespace kestrune::idl {
namespace {

using automation::Member;
using automation::MemberTable;
using automation::MemberType;
using Kind = MemberType::Kind;

std::string type_name(const MemberType& type) {
    if (type.by_reference) return "VARIANT*";
    switch (type.kind) {
        case Kind::None:
            return "void";
        case Kind::Boolean:
            return "VARIANT_BOOL";
        case Kind::Integer:
            return "long";
        case Kind::Double:
            return "double";
        case Kind::Date:
            return "DATE";
        case Kind::Text:
            return "BSTR";
        case Kind::Object:
            return type.table ? fmt::format("_{}*", type.table().class_name()) : "IDispatch*";
        case Kind::Any:
            break;
    }
    return "VARIANT";
}

// The parameters of a member, each with its attributes. An optional one is a VARIANT, the only type that can say that
// nothing was given.
std::vector<std::string> parameters_of(const Member& member) {
    std::vector<std::string> parameters;
    std::string_view list = member.parameters;
    while (!list.empty()) {
        const auto [name, optional] = automation::detail::take_parameter(list);
        const std::size_t place = parameters.size();
        const MemberType type = place < member.parameter_types.size() ? member.parameter_types[place] : MemberType{};
        parameters.push_back(fmt::format("[in{}{}] {} {}", type.by_reference ? ", out" : "",
                                         optional ? ", optional" : "",
                                         type_name(optional ? MemberType{Kind::Any, type.by_reference} : type), name));
    }
    return parameters;
}

void append_member(std::string& text, const Member& member) {
    const auto row = [&](std::string_view attribute, const MemberType& result,
                         const std::vector<std::string>& parameters) {
        fmt::format_to(std::back_inserter(text), "            [id({}){}] {} {}({});\n", member.id, attribute,
                       type_name(result), member.name, fmt::join(parameters, ", "));
    };
    std::vector<std::string> parameters = parameters_of(member);
    row(member.is_method ? "" : ", propget", member.result, parameters);
    if (!member.set) return;
    parameters.push_back(fmt::format("[in] {} NewValue", type_name(member.new_value)));
    row(member.new_value.kind == Kind::Object ? ", propputref" : ", propput", {Kind::None}, parameters);
}

const ClassIdentity& identity_of(const Library& library, const MemberTable& table) {
    const ClassIdentity* identity = class_identity(library.name, table.class_name());
    if (!identity) {
        throw std::runtime_error(
            fmt::format("{}.{} has no identifiers; give it a row of two new ones (uuidgen makes them) in "
                        "src/idl/Identities.cpp",
                        library.name, table.class_name()));
    }
    return *identity;
}

}  // namespace

std::vector<const MemberTable*> classes_of(const Library& library) {
    std::vector<const MemberTable*> found;
    const auto add = [&](const MemberTable& table) {
        if (std::ranges::find(found, &table) != found.end()) return;
        if (std::ranges::find(found, table.class_name(), &MemberTable::class_name) != found.end()) {
            throw std::runtime_error(
                fmt::format("{} has two classes that are called {}", library.name, table.class_name()));
        }
        found.push_back(&table);
    };
    const auto add_type = [&](const MemberType& type) {
        if (type.table) add(type.table());
    };
    add(library.created());
    for (const MembersOf members : library.met) add(members());
    for (std::size_t i = 0; i < found.size(); ++i) {
        for (const Member& member : found[i]->rows()) {
            add_type(member.result);
            std::ranges::for_each(member.parameter_types, add_type);
        }
    }
    return found;
}

std::string idl_of(const Library& library) {
    const LibraryIdentity* identity = library_identity(library.name);
    if (!identity) throw std::runtime_error(fmt::format("the library {} has no identifier", library.name));
    const auto classes = classes_of(library);

    std::string text;
    const auto out = std::back_inserter(text);
    fmt::format_to(out,
                   "// Written by scripts/idl from the classes' member tables; what is to change here changes there.\n"
                   "import \"oaidl.idl\";\n\n"
                   "[uuid({}), version(1.0), helpstring(\"{}\")]\nlibrary {}\n{{\n"
                   "    importlib(\"stdole2.tlb\");\n\n",
                   identity->id, identity->title, identity->name);
    for (const MemberTable* table : classes) fmt::format_to(out, "    dispinterface _{};\n", table->class_name());
    for (const MemberTable* table : classes) {
        const ClassIdentity& ids = identity_of(library, *table);
        fmt::format_to(out,
                       "\n    [uuid({}), hidden]\n    dispinterface _{}\n    {{\n"
                       "        properties:\n        methods:\n",
                       ids.interface_id, ids.name);
        for (const Member& member : table->rows()) append_member(text, member);
        // Only the first class is for clients to create; the others are what its members answer.
        fmt::format_to(
            out, "    }};\n    [uuid({}){}]\n    coclass {}\n    {{\n        [default] dispinterface _{};\n    }};\n",
            ids.class_id, table == classes.front() ? "" : ", noncreatable", ids.name, ids.name);
    }
    text += "};\n";
    return text;
}

}  // namespace kestrune::idl
