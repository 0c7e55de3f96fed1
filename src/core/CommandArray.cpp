#include "core/CommandArray.h"

#include <array>
#include <limits>
#include <string>

#include "automation/AutomationError.h"
#include "automation/ResumeNext.h"
#include "core/CommandTable.h"

namespace kestrune::core {
namespace {

using automation::Array;
using automation::Value;

// Where the string table has a command's texts, in the order of an entry: command 7's key stands under 22007.
constexpr std::array<std::int32_t, 5> text_numbers{2000, 12000, 22000, 32000, 42000};

Array entry_of(const SharedState& shared, const Command& command) {
    const automation::ResumeNext attempt(shared.trace);
    Array entry(Array::Bound{0, text_numbers.size() + 2});
    std::size_t place = 0;
    for (const std::int32_t base : text_numbers) {
        std::string text;
        attempt.assign(text, [&] { return shared.general().text(base + command.number); });
        entry.elements()[place++] = text;
    }
    entry.elements()[place++] = "";
    entry.elements()[place] = 0;
    return entry;
}

[[noreturn]] void refuse(std::string_view why) {
    throw automation::AutomationError(automation::hresult::type_mismatch, "AddDefaultMacroArray", why);
}

}  // namespace

void append_command_entries(const SharedState& shared, Value& array) {
    Array::Bound bound{0, 0};
    std::vector<Value> entries;
    if (const Array* given = array.array()) {
        if (given->dimensions() != 1) refuse("the array of commands has one dimension");
        bound = given->bound(0);
        entries = given->elements();
    } else if (!array.is(Value::Kind::Empty)) {
        refuse("is no array");
    }
    const auto added = static_cast<std::int32_t>(commands().size());
    if (bound.count > std::numeric_limits<std::int32_t>::max() - added ||
        bound.lower > std::numeric_limits<std::int32_t>::max() - added - bound.count) {
        refuse("the array has no room for more");
    }
    for (const Command& command : commands()) entries.emplace_back(entry_of(shared, command));
    Array longer(Array::Bound{bound.lower, bound.count + added});
    longer.elements() = std::move(entries);
    array = std::move(longer);
}

}  // namespace kestrune::core
