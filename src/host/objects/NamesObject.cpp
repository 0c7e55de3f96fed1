#include "host/objects/NamesObject.h"

#include "formula/SheetName.h"
#include "host/objects/DefinedNames.h"
#include "host/objects/Items.h"
#include "host/objects/NameObject.h"
#include "host/objects/Optional.h"
#include "host/objects/SheetObject.h"

namespace kestrune::host {
namespace {

constexpr std::string_view add_member = "Names.Add";

// The first of two arguments that is given; names have a local twin of each.
const Value& given(const Value& argument, const Value& local) {
    return argument.is(Value::Kind::Missing) ? local : argument;
}

}  // namespace

ObjectRef NamesObject::parent() const {
    return sheet_ ? sheet_object(session(), *sheet_) : workbook_object(session(), workbook_);
}

std::vector<const DefinedName*> NamesObject::list() const {
    std::vector<const DefinedName*> names;
    for (const DefinedName& name : workbook_.names) {
        if (!sheet_ || name.sheet == position_of(*sheet_)) names.push_back(&name);
    }
    return names;
}

ObjectRef NamesObject::object_of(const DefinedName& name) const {
    return std::make_shared<NameObject>(session(), workbook_, name.name, name.sheet);
}

ObjectRef NamesObject::item(const Value& index, const Value& index_local, const Value& refers_to) const {
    constexpr std::string_view member = "Names.Item";
    if (!refers_to.is(Value::Kind::Missing)) {
        std::string wanted = automation::to_text(refers_to);
        if (wanted.starts_with('=')) wanted.erase(0, 1);
        for (const DefinedName* name : list()) {
            if (name->refers_to == wanted) return object_of(*name);
        }
        refuse(member, "no name stands for '" + wanted + "'");
    }
    const Value& key = given(index, index_local);
    if (const auto* text = key.if_is<std::string>()) {
        const DefinedName* name = find_name(workbook_, sheet_, *text);
        if (!name || (sheet_ && name->sheet != position_of(*sheet_)))
            refuse(member, "there is no name '" + *text + "'");
        return object_of(*name);
    }
    const auto names = list();
    const std::int32_t position = automation::to_integer(key);
    if (position < 1 || position > static_cast<std::int32_t>(names.size())) refuse(member, "there is no such name");
    return object_of(*names[static_cast<std::size_t>(position - 1)]);
}

ObjectRef NamesObject::add(const Value& name, const Value& refers_to, const Value& visible, const Value&, const Value&,
                           const Value&, const Value& name_local, const Value& refers_to_local, const Value&,
                           const Value& refers_to_r1c1, const Value& refers_to_r1c1_local) {
    std::string text = automation::to_text(given(name, name_local));
    std::optional<std::int32_t> owner;
    if (sheet_) owner = position_of(*sheet_);
    // "Sheet1!Rate" belongs to the sheet, whichever collection it is added to.
    if (const std::size_t mark = text.rfind('!'); mark != std::string::npos) {
        const auto prefix = formula::parse_sheet_prefix(std::string_view(text).substr(0, mark + 1));
        const Sheet* sheet = workbook_.sheet(prefix.first_sheet);
        if (!sheet) refuse(add_member, "there is no sheet '" + prefix.first_sheet + "'");
        owner = position_of(*sheet);
        text.erase(0, mark + 1);
    }
    if (!is_valid_name(text)) refuse(add_member, "'" + text + "' is no name that Excel takes");
    const bool r1c1 = given(refers_to, refers_to_local).is(Value::Kind::Missing);
    const Value& meaning = r1c1 ? given(refers_to_r1c1, refers_to_r1c1_local) : given(refers_to, refers_to_local);
    if (meaning.is(Value::Kind::Missing)) refuse(add_member, "what the name refers to is missing");
    Sheet* own = sheet_ ? sheet_ : session().active_sheet();
    DefinedName fresh;
    fresh.name = stored_name(text);
    fresh.refers_to = meaning_of_name(add_member, meaning, r1c1, own);
    fresh.sheet = owner;
    fresh.hidden = !value_or(visible, true);
    DefinedName* present = nullptr;
    for (DefinedName& known : workbook_.names) {
        if (known.sheet == owner && automation::same_text(known.name, fresh.name)) present = &known;
    }
    if (present) {
        *present = fresh;
    } else {
        workbook_.names.push_back(fresh);
    }
    workbook_.names_changed = true;
    session().changed(workbook_);
    return object_of(fresh);
}

ObjectRef NamesObject::new_enum() const { return items_of(*this); }

const MemberTable& NamesObject::members() {
    using N = NamesObject;
    static constexpr auto rows = automation::member_rows(
        enumeration<&N::new_enum>(), method<&N::item>("Item", 0, "[Index], [IndexLocal], [RefersTo]"),
        read_only<&N::application>("Application", 1), read_only<&N::parent>("Parent", 2),
        read_only<&N::count>("Count", 3),
        method<&N::add>("Add", 4,
                        "[Name], [RefersTo], [Visible], [MacroType], [ShortcutKey], [Category], [NameLocal], "
                        "[RefersToLocal], [CategoryLocal], [RefersToR1C1], [RefersToR1C1Local]"));
    static constexpr MemberTable table("Names", rows);
    return table;
}

}  // namespace kestrune::host
