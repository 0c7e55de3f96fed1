#include "brxllib/iRange.h"

#include <type_traits>

#include "brxllib/ContentKind.h"
#include "brxllib/FormatParts.h"
#include "brxllib/FormulaBlocks.h"
#include "brxllib/Links.h"
#include "brxllib/TextParts.h"
#include "excel/Worksheet.h"

namespace kestrune::brxllib {

using automation::Array;
using automation::MemberTable;
using automation::method;
using automation::ObjectRef;
using automation::Value;

Value iRange::content_kind(const ObjectRef& object) const {
    const excel::Range all(object);
    // What stands in several rectangles reads as the first of them.
    const excel::Range range = all.Areas().Item(1);
    const auto kinds = content_kinds(range);
    if (kinds.size() == 1) return static_cast<std::int32_t>(kinds.front());
    const std::int32_t rows = range.Rows().Count();
    Array answer(Array::Bound{1, rows}, Array::Bound{1, static_cast<std::int32_t>(kinds.size()) / rows});
    for (std::size_t i = 0; i < kinds.size(); ++i) answer.elements()[i] = static_cast<std::int32_t>(kinds[i]);
    return answer;
}

ObjectRef iRange::in_use(const ObjectRef& object) const {
    const excel::Range range(object);
    return library_->application.Intersect(range, range.Worksheet().UsedRange()).object();
}

Value iRange::precedents(const ObjectRef& cell) const {
    return array_of(brxllib::precedents(library_->application, excel::Range(cell)));
}

Value iRange::dependents(const ObjectRef& cell) const {
    return array_of(brxllib::dependents(library_->application, excel::Range(cell)));
}

namespace {

// A table of what each address has; Empty when there are none.
template <class Parts>
Value table_of(const Parts& parts) {
    if (parts.empty()) return {};
    Array answer(Array::Bound{1, static_cast<std::int32_t>(parts.size())}, Array::Bound{1, 2});
    auto element = answer.elements().begin();
    for (const auto& [address, value] : parts) {
        *element++ = address;
        if constexpr (std::is_enum_v<std::remove_cvref_t<decltype(value)>>) {
            *element++ = static_cast<std::int32_t>(value);
        } else {
            *element++ = value;
        }
    }
    return answer;
}

Value parts_of(const ObjectRef& object, FormatReader read) {
    return table_of(format_parts(excel::Range(object), read));
}

}  // namespace

Value iRange::number_formats(const ObjectRef& range) const {
    return parts_of(range, [](const excel::Range& cells) { return cells.NumberFormat(); });
}

Value iRange::font_sizes(const ObjectRef& range) const {
    return parts_of(range, [](const excel::Range& cells) { return cells.Font().Size(); });
}

Value iRange::text_parts(const ObjectRef& range, const std::string& text) const {
    return table_of(brxllib::text_parts(excel::Range(range), text));
}

Value iRange::formula_blocks(const ObjectRef& range) const {
    return table_of(brxllib::formula_blocks(library_->application, excel::Range(range)));
}

const MemberTable& iRange::members() {
    static constexpr auto rows = automation::member_rows(
        method<&iRange::content_kind>("ContentKind", 1, "Range"), method<&iRange::in_use>("InUse", 2, "Range"),
        method<&iRange::precedents>("Precedents", 3, "Cell"), method<&iRange::dependents>("Dependents", 4, "Cell"),
        method<&iRange::number_formats>("NumberFormats", 5, "Range"),
        method<&iRange::font_sizes>("FontSizes", 6, "Range"),
        method<&iRange::text_parts>("TextParts", 7, "Range, Text"),
        method<&iRange::formula_blocks>("FormulaBlocks", 8, "Range"));
    static constexpr MemberTable table("iRange", rows);
    return table;
}

}  // namespace kestrune::brxllib
