#include "host/objects/DefinedNames.h"

#include <algorithm>
#include <variant>

#include "automation/Text.h"
#include "formula/A1.h"
#include "formula/R1C1.h"
#include "formula/Selection.h"
#include "formula/SheetName.h"
#include "host/objects/SheetOrder.h"

namespace kestrune::host {
namespace {

constexpr std::string_view built_in_prefix = "_xlnm.";
constexpr std::string_view built_in_names[] = {"Print_Area", "Print_Titles",     "_FilterDatabase", "Criteria",
                                               "Extract",    "Consolidate_Area", "Database",        "Sheet_Title",
                                               "Auto_Open",  "Auto_Close",       "Auto_Activate",   "Auto_Deactivate"};
constexpr std::size_t longest_name = 255;

DefinedName* find_in_scope(Workbook& workbook, std::optional<std::int32_t> sheet, std::string_view plain) {
    for (DefinedName& name : workbook.names) {
        if (name.sheet == sheet && automation::same_text(plain_name(name.name), plain)) return &name;
    }
    return nullptr;
}

bool letter(char c) {
    const auto byte = static_cast<unsigned char>(c);
    // Bytes above ASCII belong to letters of other alphabets.
    return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') || byte >= 0x80;
}

std::optional<Cells> cells_of_selection(Workbook& workbook, Sheet* own, std::string_view text) {
    auto parsed = formula::parse_selection(text);
    auto* selection = std::get_if<formula::Selection>(&parsed);
    if (!selection) return std::nullopt;
    Sheet* sheet = selection->sheet ? workbook.sheet(*selection->sheet) : own;
    if (!sheet) return std::nullopt;
    return Cells{sheet, std::move(selection->areas)};
}

// The pieces of a list at its commas, those inside apostrophes left alone.
std::vector<std::string_view> pieces_of(std::string_view text) {
    std::vector<std::string_view> pieces;
    bool quoted = false;
    std::size_t begin = 0;
    for (std::size_t i = 0; i <= text.size(); ++i) {
        if (i < text.size() && text[i] == '\'') quoted = !quoted;
        if (i < text.size() && (text[i] != ',' || quoted)) continue;
        pieces.push_back(automation::trimmed(text.substr(begin, i - begin)));
        begin = i + 1;
    }
    return pieces;
}

}  // namespace

std::string_view plain_name(std::string_view stored) {
    if (automation::same_text(stored.substr(0, built_in_prefix.size()), built_in_prefix)) {
        return stored.substr(built_in_prefix.size());
    }
    return stored;
}

std::string stored_name(std::string_view plain) {
    for (const std::string_view known : built_in_names) {
        if (automation::same_text(known, plain)) return std::string(built_in_prefix) + std::string(known);
    }
    return std::string(plain);
}

bool is_valid_name(std::string_view name) {
    if (name.empty() || name.size() > longest_name) return false;
    if (!letter(name.front()) && name.front() != '_' && name.front() != '\\') return false;
    const bool allowed = std::ranges::all_of(name, [](char c) {
        return letter(c) || (c >= '0' && c <= '9') || c == '_' || c == '.' || c == '\\' || c == '?';
    });
    if (!allowed) return false;
    formula::Reference reference;
    return formula::match_a1(name, reference) != name.size() && formula::match_r1c1(name, reference) != name.size();
}

DefinedName* find_name(Workbook& workbook, const Sheet* local, std::string_view text) {
    const std::size_t mark = text.rfind('!');
    if (mark != std::string_view::npos) {
        const formula::SheetPrefix prefix = formula::parse_sheet_prefix(text.substr(0, mark + 1));
        const Sheet* sheet = workbook.sheet(prefix.first_sheet);
        if (sheet) return find_in_scope(workbook, position_of(*sheet), text.substr(mark + 1));
        // Book1.xlsx!Rate is the workbook's own name.
        if (!automation::same_text(prefix.first_sheet, workbook.name)) return nullptr;
        return find_in_scope(workbook, std::nullopt, text.substr(mark + 1));
    }
    if (local) {
        if (DefinedName* name = find_in_scope(workbook, position_of(*local), text)) return name;
    }
    return find_in_scope(workbook, std::nullopt, text);
}

std::optional<Cells> cells_of_name(Workbook& workbook, Sheet* own, const DefinedName& name) {
    return cells_of_selection(workbook, own, name.refers_to);
}

std::optional<Cells> cells_of_text(Workbook& workbook, Sheet& own, std::string_view text) {
    text = automation::trimmed(text);
    if (text.starts_with('=')) text.remove_prefix(1);
    if (auto cells = cells_of_selection(workbook, &own, text)) return cells;
    if (const DefinedName* name = find_name(workbook, &own, text)) return cells_of_name(workbook, &own, *name);
    const auto pieces = pieces_of(text);
    if (pieces.size() < 2) return std::nullopt;
    Cells all;
    for (const std::string_view piece : pieces) {
        auto cells = cells_of_text(workbook, own, piece);
        if (!cells || (all.sheet && all.sheet != cells->sheet)) return std::nullopt;
        all.sheet = cells->sheet;
        all.areas.insert(all.areas.end(), cells->areas.begin(), cells->areas.end());
    }
    return all;
}

}  // namespace kestrune::host
