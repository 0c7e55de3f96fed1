#include "cli/cell/CellFacts.h"

#include <fmt/format.h>

#include <cmath>
#include <cstdint>

#include "excel/Constants.h"
#include "excel/FormatCondition.h"
#include "excel/Worksheet.h"
#include "formula/SheetName.h"
#include "host/objects/ErrorValues.h"

namespace kestrune::cli {
namespace {

using automation::Value;
using nlohmann::ordered_json;

// Whole numbers without a fraction: 11, not 11.0.
ordered_json number(double value) {
    constexpr double exact = 9007199254740992;  // 2^53
    if (std::trunc(value) == value && std::abs(value) < exact) return static_cast<std::int64_t>(value);
    return value;
}

// A reading that fails leaves null, as for a property that the cell does not have.
template <class Reading>
ordered_json read(Reading reading) {
    try {
        return to_json(Value(reading()));
    } catch (const automation::AutomationError&) {
        return nullptr;
    }
}

ordered_json font_facts(const excel::Font& font) {
    return {{"Name", read([&] { return font.Name(); })},
            {"Size", read([&] { return font.Size(); })},
            {"Bold", read([&] { return font.Bold(); })},
            {"Italic", read([&] { return font.Italic(); })},
            {"Underline", read([&] { return font.Underline(); })},
            {"Color", read([&] { return font.Color(); })},
            {"ColorIndex", read([&] { return font.ColorIndex(); })},
            {"Strikethrough", read([&] { return font.Strikethrough(); })}};
}

ordered_json border_facts(const excel::Border& border) {
    return {{"LineStyle", read([&] { return border.LineStyle(); })},
            {"Weight", read([&] { return border.Weight(); })},
            {"ColorIndex", read([&] { return border.ColorIndex(); })}};
}

ordered_json condition_facts(const excel::Range& cell) {
    ordered_json conditions = ordered_json::array();
    const excel::FormatConditions all = cell.FormatConditions();
    const std::int32_t count = all.Count();
    for (std::int32_t i = 1; i <= count; ++i) {
        const excel::FormatCondition condition = all.Item(i);
        conditions.push_back({{"Type", read([&] { return condition.Type(); })},
                              {"Operator", read([&] { return condition.Operator(); })},
                              {"Formula1", read([&] { return condition.Formula1(); })},
                              {"Formula2", read([&] { return condition.Formula2(); })},
                              {"Font", {{"Color", read([&] { return condition.Font().Color(); })}}}});
    }
    return conditions;
}

}  // namespace

ordered_json to_json(const Value& value) {
    using Kind = Value::Kind;
    switch (value.kind()) {
        case Kind::Boolean:
            return *value.if_is<bool>();
        case Kind::Integer:
            return *value.if_is<std::int32_t>();
        case Kind::Double:
            return number(*value.if_is<double>());
        case Kind::Date:
            return number(value.if_is<automation::Date>()->serial);
        case Kind::String:
            return *value.if_is<std::string>();
        case Kind::Error:
            return std::string(host::text_of_error(host::error_of_code(value.if_is<automation::Error>()->code)));
        default:
            return nullptr;
    }
}

ordered_json cell_facts(const excel::Range& cell) {
    const excel::Interior interior = cell.Interior();
    const std::string sheet = formula::quoted_sheet(cell.Worksheet().Name());
    ordered_json borders;
    const std::pair<const char*, std::int32_t> edges[] = {{"xlEdgeLeft", excel::xlEdgeLeft},
                                                          {"xlEdgeTop", excel::xlEdgeTop},
                                                          {"xlEdgeBottom", excel::xlEdgeBottom},
                                                          {"xlEdgeRight", excel::xlEdgeRight}};
    for (const auto& [name, index] : edges) borders[name] = border_facts(cell.Borders(index));
    return {{"Address", fmt::format("{}!{}", sheet, cell.Address())},
            {"Value", read([&] { return cell.Value(); })},
            {"Formula", read([&] { return cell.Formula(); })},
            {"Text", read([&] { return cell.Text(); })},
            {"NumberFormat", read([&] { return cell.NumberFormat(); })},
            {"Font", font_facts(cell.Font())},
            {"Interior", {{"Color", read([&] { return interior.Color(); })}, {"ColorIndex", read([&] {
                                                                                  return interior.ColorIndex();
                                                                              })}}},
            {"HorizontalAlignment", read([&] { return cell.HorizontalAlignment(); })},
            {"VerticalAlignment", read([&] { return cell.VerticalAlignment(); })},
            {"Orientation", read([&] { return cell.Orientation(); })},
            {"IndentLevel", read([&] { return cell.IndentLevel(); })},
            {"ShrinkToFit", read([&] { return cell.ShrinkToFit(); })},
            {"WrapText", read([&] { return cell.WrapText(); })},
            {"MergeCells", read([&] { return cell.MergeCells(); })},
            {"Borders", borders},
            {"RowHeight", read([&] { return cell.RowHeight(); })},
            {"ColumnWidth", read([&] { return cell.ColumnWidth(); })},
            {"RowHidden", read([&] { return cell.EntireRow().Hidden(); })},
            {"ColumnHidden", read([&] { return cell.EntireColumn().Hidden(); })},
            {"RowOutlineLevel", read([&] { return cell.EntireRow().OutlineLevel(); })},
            {"ColumnOutlineLevel", read([&] { return cell.EntireColumn().OutlineLevel(); })},
            {"FormatConditions", condition_facts(cell)}};
}

}  // namespace kestrune::cli
