#include "host/objects/NameObject.h"

#include "formula/Convert.h"
#include "formula/FormulaCheck.h"
#include "formula/Selection.h"
#include "formula/SheetName.h"
#include "host/objects/DefinedNames.h"
#include "host/objects/RangeObject.h"
#include "host/objects/SheetObject.h"
#include "number_format/GeneralText.h"

namespace kestrune::host {

using number_format::full_number_text;
namespace {

// A text constant as a formula spells it.
std::string quoted(std::string_view text) {
    std::string spelt = "\"";
    for (const char c : text) spelt.append(c == '"' ? 2 : 1, c);
    return spelt + '"';
}

std::string with_sheet(const std::string& text, Sheet* own) {
    auto parsed = formula::parse_selection(text);
    auto* selection = std::get_if<formula::Selection>(&parsed);
    if (!selection || selection->sheet || !own) return text;
    // Relative addresses stay relative; only the sheet that they lie on is added.
    return formula::quoted_sheet(own->name()) + "!" + text;
}

}  // namespace

std::string meaning_of_name(std::string_view member, const Value& meaning, bool r1c1, Sheet* own) {
    if (meaning.is(Value::Kind::Object)) {
        const auto range = range_argument(member, meaning);
        return formula::selection_text({range->cell_range().sheet().name(), range->cell_range().areas()}, true);
    }
    const auto* text = meaning.if_is<std::string>();
    if (!text) {
        if (const bool* truth = meaning.if_is<bool>()) return *truth ? "TRUE" : "FALSE";
        return full_number_text(automation::to_double(meaning));
    }
    if (!text->starts_with('=')) return quoted(*text);
    const auto notation = r1c1 ? formula::Notation::r1c1 : formula::Notation::a1;
    if (const auto error = formula::check_formula(*text, notation)) {
        refuse(member, "the formula '" + *text + "' is wrong: " + error->message);
    }
    const std::string formula = text->substr(1);
    return with_sheet(r1c1 ? formula::to_a1(formula, Position{}) : formula, own);
}

DefinedName& NameObject::get() const {
    for (DefinedName& name : workbook_.names) {
        if (name.sheet == sheet_ && automation::same_text(name.name, stored_name_)) return name;
    }
    refuse("Name", "the name '" + std::string(plain_name(stored_name_)) + "' has been deleted");
}

DefinedName& NameObject::change() const {
    DefinedName& name = get();
    name.source.clear();
    workbook_.names_changed = true;
    session().changed(workbook_);
    return name;
}

Sheet* NameObject::owner() const {
    if (!sheet_ || *sheet_ < 0 || *sheet_ >= static_cast<std::int32_t>(workbook_.sheets().size())) return nullptr;
    return workbook_.sheets()[static_cast<std::size_t>(*sheet_)].get();
}

ObjectRef NameObject::parent() const {
    Sheet* sheet = owner();
    return sheet ? sheet_object(session(), *sheet) : workbook_object(session(), workbook_);
}

std::string NameObject::name() const {
    const std::string plain(plain_name(get().name));
    const Sheet* sheet = owner();
    return sheet ? formula::quoted_sheet(sheet->name()) + "!" + plain : plain;
}

void NameObject::set_name(const std::string& name) {
    const std::string plain = name.substr(name.rfind('!') + 1);
    if (!is_valid_name(plain)) refuse("Name.Name", "'" + plain + "' is no name that Excel takes");
    for (const DefinedName& known : workbook_.names) {
        const bool same_place = known.sheet == sheet_ && &known != &get();
        if (same_place && automation::same_text(known.name, plain)) {
            refuse("Name.Name", "there is a name '" + plain + "' already");
        }
    }
    DefinedName& changed = change();
    changed.name = stored_name_ = stored_name(plain);
}

std::int32_t NameObject::index() const { return static_cast<std::int32_t>(&get() - workbook_.names.data()) + 1; }

std::string NameObject::refers_to() const { return "=" + get().refers_to; }

void NameObject::set_refers_to(const Value& meaning) {
    std::string stored = meaning_of_name("Name.RefersTo", meaning, false, session().active_sheet());
    change().refers_to = std::move(stored);
}

std::string NameObject::refers_to_r1c1() const { return "=" + formula::to_r1c1(get().refers_to, Position{}); }

void NameObject::set_refers_to_r1c1(const Value& meaning) {
    std::string stored = meaning_of_name("Name.RefersToR1C1", meaning, true, session().active_sheet());
    change().refers_to = std::move(stored);
}

ObjectRef NameObject::refers_to_range() const {
    auto cells = cells_of_name(workbook_, owner(), get());
    if (!cells) refuse("Name.RefersToRange", "the name '" + name() + "' stands for no cells");
    return std::make_shared<RangeObject>(CellRange(session(), *cells->sheet, std::move(cells->areas)));
}

void NameObject::set_visible(bool on) { change().hidden = !on; }
void NameObject::set_comment(const std::string& text) { change().comment = text; }

void NameObject::remove() {
    const auto position = index() - 1;
    workbook_.names.erase(workbook_.names.begin() + position);
    workbook_.names_changed = true;
    session().changed(workbook_);
}

const MemberTable& NameObject::members() {
    using N = NameObject;
    static constexpr auto rows = automation::member_rows(
        read_only<&N::refers_to>("_Default", 0), read_only<&N::application>("Application", 1),
        read_only<&N::parent>("Parent", 2), property<&N::name, &N::set_name>("Name", 3),
        read_only<&N::index>("Index", 4), property<&N::refers_to, &N::set_refers_to>("RefersTo", 5),
        property<&N::refers_to, &N::set_refers_to>("Value", 6),
        property<&N::refers_to_r1c1, &N::set_refers_to_r1c1>("RefersToR1C1", 7),
        read_only<&N::refers_to_range>("RefersToRange", 8), property<&N::visible, &N::set_visible>("Visible", 9),
        property<&N::comment, &N::set_comment>("Comment", 10), method<&N::remove>("Delete", 11));
    static constexpr MemberTable table("Name", rows);
    return table;
}

}  // namespace kestrune::host
