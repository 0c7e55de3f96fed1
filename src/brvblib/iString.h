#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "automation/MemberTable.h"
#include "brvblib/Library.h"

namespace kestrune::brvblib {

// The string table, and services on strings.
class iString : public automation::Served<iString> {
  public:
    explicit iString(std::shared_ptr<Library> library) : library_(std::move(library)) {}
    static const automation::MemberTable& members();

  private:
    // For command n: 2000 + n its name, 12000 + n what it does, 22000 + n its default key, 32000 + n its group in the
    // menus, 42000 + n its topic in the examples workbook. The numbers of messages give their English texts. Any other
    // number is a bad index.
    [[nodiscard]] std::string_view text(std::int32_t number) const;

    // The key of a style in a collection: its name as it stands.
    [[nodiscard]] std::string style_key(const std::string& style_name) const { return style_name; }

    // The sections of a number format, an array of texts from 1 on.
    [[nodiscard]] automation::Value sections(const std::string& number_format) const;
    // A number format with one decimal place more or less (step 1 or -1), or showing numbers a thousand times smaller
    // or larger: an array of what became of it (FormatChange) and the format. See NumberFormatDisplay.h.
    [[nodiscard]] automation::Value adjust_decimals(const std::string& number_format, std::int32_t step,
                                                    const std::string& general_shows) const;
    [[nodiscard]] automation::Value adjust_scale(const std::string& number_format, std::int32_t step) const;
    // Where the ")" stands that closes an expression whose "(" stands before it, from 1 on; 0 when it is not closed.
    [[nodiscard]] std::int32_t closing_parenthesis(const std::string& expression) const;
    // Whether an application's version text ("16.0", "9.0a") is a major version or a later one. A text that begins
    // with no number is no version at all.
    [[nodiscard]] bool version_at_least(const std::string& version, std::int32_t major) const;

    // Whether a text is a number as a person types it in en-US, and that number. Number fails with type-mismatch.
    [[nodiscard]] bool is_numeric(const std::string& text) const;
    [[nodiscard]] double number(const std::string& text) const;
    // The same question for a box of a dialog: when the answer is no, a message names the box.
    [[nodiscard]] bool check_numeric_field(const std::string& text, const std::string& field_name,
                                           const std::string& caption) const;

    // A text made fit to be part of a defined name: letters, digits, full stops and underscores stay, anything else
    // becomes an underscore.
    [[nodiscard]] std::string name_text(const std::string& text) const;

    std::shared_ptr<Library> library_;
};

}  // namespace kestrune::brvblib
