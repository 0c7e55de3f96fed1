#include "host/objects/Macros.h"

#include <utility>

#include "automation/Text.h"

namespace kestrune::host {

using automation::same_text;

MacroName MacroName::parse(std::string_view text) {
    if (!text.starts_with('\'')) {
        const std::size_t mark = text.rfind('!');
        if (mark == std::string_view::npos) return {{}, std::string(text)};
        return {std::string(text.substr(0, mark)), std::string(text.substr(mark + 1))};
    }
    MacroName name;
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (text[i] != '\'') {
            name.workbook += text[i];
        } else if (i + 1 < text.size() && text[i + 1] == '\'') {
            name.workbook += '\'';
            ++i;
        } else if (i + 1 < text.size() && text[i + 1] == '!') {
            name.macro = text.substr(i + 2);
            return name;
        } else {
            break;
        }
    }
    return {{}, std::string(text)};  // the quotes do not close before a "!": no workbook is named
}

void Macros::add(std::string workbook, std::string macro, Macro function) {
    for (Entry& entry : entries_) {
        if (same_text(entry.workbook, workbook) && same_text(entry.name, macro)) {
            entry.function = std::move(function);
            return;
        }
    }
    entries_.push_back({std::move(workbook), std::move(macro), std::move(function)});
}

const Macro* Macros::find(std::string_view workbook, std::string_view macro) const {
    const Entry* by_last_part = nullptr;
    bool several = false;
    for (const Entry& entry : entries_) {
        if (!same_text(entry.workbook, workbook)) continue;
        if (same_text(entry.name, macro)) return &entry.function;
        if (same_text(std::string_view(entry.name).substr(entry.name.rfind('.') + 1), macro)) {
            several = by_last_part != nullptr;
            by_last_part = &entry;
        }
    }
    return by_last_part && !several ? &by_last_part->function : nullptr;
}

}  // namespace kestrune::host
