#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "number_format/FormatSection.h"

namespace kestrune::number_format {

// What a cell shows.
struct Rendered {
    std::string text;                    // UTF-8; "_x" is one space, a fill is left out
    std::optional<int> colour;           // 1 to 56, the palette entry that the format asks for
    std::optional<std::size_t> fill_at;  // the byte of the text where the fill goes
    std::string fill;                    // the character that fills
    bool overflow = false;               // the value cannot be shown: the text is all "#"
};

struct RenderOptions {
    bool date1904 = false;
    std::optional<int> width;  // characters that fit into the cell; without it there is room for everything
};

enum class FormatKind : std::uint8_t { general, number, currency, percent, scientific, fraction, date, time, text };

// A number format code, read once and then used for any number of cells.
class NumberFormat {
  public:
    // Reads a code as the object model and files spell it in English. One that Excel refuses shows values as General
    // does.
    explicit NumberFormat(std::string_view code);

    // Why Excel refuses the code, in one line; empty for a good one.
    [[nodiscard]] const std::string& error() const { return error_; }

    [[nodiscard]] Rendered render(double value, const RenderOptions& options = {}) const;
    [[nodiscard]] Rendered render_text(std::string_view value) const;
    // TRUE and FALSE are shown as they are, whatever the format; so are errors, which need no format at all.
    [[nodiscard]] Rendered render_boolean(bool value) const;

    // What the first section shows; dates with a time are dates.
    [[nodiscard]] FormatKind kind() const;
    // Whether a number in such a cell reads as a Date: dates and times, elapsed ones too.
    [[nodiscard]] bool is_date_or_time() const;

  private:
    struct Choice {
        const FormatSection* section = nullptr;  // none: General
        bool minus = false;                      // the sign is up to us
        bool overflow = false;                   // no section is for this number
    };
    [[nodiscard]] Choice choose(double value) const;

    std::vector<FormatSection> sections_;
    std::optional<std::size_t> text_section_;
    std::size_t number_sections_ = 0;
    std::string error_;
};

// Whether Range.NumberFormat takes the code.
[[nodiscard]] bool is_valid_format(std::string_view code);

}  // namespace kestrune::number_format
