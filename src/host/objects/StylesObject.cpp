#include "host/objects/StylesObject.h"

#include "automation/Text.h"
#include "host/objects/Items.h"
#include "host/objects/SheetObject.h"
#include "host/objects/StyleObject.h"

namespace kestrune::host {
namespace {

// Formats of cells (cellStyleXfs) that no style of the user's has stand in the list without a name.
std::vector<std::uint32_t> named(const Workbook& workbook) {
    std::vector<std::uint32_t> positions;
    const auto& styles = workbook.styles.named_styles;
    for (std::uint32_t i = 0; i < styles.size(); ++i) {
        if (!styles[i].name.empty()) positions.push_back(i);
    }
    return positions;
}

}  // namespace

std::uint32_t style_argument(std::string_view member, const Workbook& workbook, const Value& argument) {
    if (const auto* object = argument.if_is<ObjectRef>()) {
        const auto style = std::dynamic_pointer_cast<StyleObject>(*object);
        if (!style || &style->home() != &workbook) refuse(member, "a style of the workbook is required");
        return style->position();
    }
    const auto positions = named(workbook);
    if (const auto* text = argument.if_is<std::string>()) {
        for (const std::uint32_t position : positions) {
            if (automation::same_text(workbook.styles.named_styles[position].name, *text)) return position;
        }
        refuse(member, "there is no style '" + *text + "'");
    }
    const std::int32_t index = automation::to_integer(argument);
    if (index < 1 || index > std::ssize(positions)) refuse(member, "there is no such style");
    return positions[static_cast<std::size_t>(index - 1)];
}

ObjectRef StylesObject::parent() const { return workbook_object(session(), workbook_); }
std::int32_t StylesObject::count() const { return static_cast<std::int32_t>(named(workbook_).size()); }
ObjectRef StylesObject::item(const Value& index) const {
    return std::make_shared<StyleObject>(session(), workbook_, style_argument("Styles.Item", workbook_, index));
}
ObjectRef StylesObject::new_enum() const { return items_of(*this); }

const MemberTable& StylesObject::members() {
    using S = StylesObject;
    static constexpr auto rows =
        automation::member_rows(enumeration<&S::new_enum>(), read_only<&S::item>("Item", 0, "Index"),
                                read_only<&S::application>("Application", 1), read_only<&S::parent>("Parent", 2),
                                read_only<&S::count>("Count", 3));
    static constexpr MemberTable table("Styles", rows);
    return table;
}

}  // namespace kestrune::host
