#include "cli/keys/KeyList.h"

#include "automation/Conversion.h"

namespace kestrune::cli {

std::vector<ListedKey> listed_keys(automation::Object& registry) {
    const automation::Value answer = automation::get(registry, "Table");
    std::vector<ListedKey> keys;
    const automation::Array* table = answer.array();
    if (!table) return keys;
    for (std::int32_t row = 1; row <= table->bound(0).count; ++row) {
        const auto text = [&](std::int32_t column) { return automation::to_text(table->at(row, column)); };
        keys.push_back({text(1), text(2), text(3), text(4), text(5), text(6), text(7), text(8), text(9), text(10)});
    }
    return keys;
}

}  // namespace kestrune::cli
