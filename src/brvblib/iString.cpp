#include "brvblib/iString.h"

#include <fmt/format.h>

#include <array>

#include "brvblib/CommandTexts.h"

namespace kestrune::brvblib {

using automation::MemberTable;
using automation::method;

std::string_view iString::text(std::int32_t number) const {
    // By the number's ten thousands.
    static constexpr std::array columns{&CommandText::name, &CommandText::description, &CommandText::group,
                                        &CommandText::key, &CommandText::topic};
    const std::int32_t column = number / 10000;
    const std::int32_t command = number % 10000 - 2000;
    if (number < 0 || static_cast<std::size_t>(column) >= columns.size() || command < 0 ||
        static_cast<std::size_t>(command) >= command_texts.size()) {
        throw automation::AutomationError(automation::hresult::bad_index, "iString.Text",
                                          fmt::format("there is no text {}", number));
    }
    return command_texts[static_cast<std::size_t>(command)].*columns[static_cast<std::size_t>(column)];
}

const MemberTable& iString::members() {
    static constexpr auto rows = automation::member_rows(method<&iString::text>("Text", 1, "Number"),
                                                         method<&iString::style_key>("StyleKey", 2, "StyleName"));
    static constexpr MemberTable table("iString", rows);
    return table;
}

}  // namespace kestrune::brvblib
