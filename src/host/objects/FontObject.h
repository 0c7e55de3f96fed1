#pragma once

#include <functional>

#include "host/objects/CellRange.h"
#include "host/objects/HostObject.h"

namespace kestrune::host {

// Range.Font. A reading answers Null when the cells differ.
class FontObject final : public HostObject<FontObject> {
  public:
    static const MemberTable& members();

    explicit FontObject(CellRange cells) : HostObject(cells.session()), cells_(std::move(cells)) {}

    [[nodiscard]] ObjectRef parent() const;
    [[nodiscard]] Value name() const;
    void set_name(const std::string& name);  // 1 to 31 characters
    [[nodiscard]] Value size() const;        // points
    void set_size(double points);            // 1 to 409
    [[nodiscard]] Value bold() const;
    void set_bold(bool on);
    [[nodiscard]] Value italic() const;
    void set_italic(bool on);
    [[nodiscard]] Value font_style() const;  // "Regular", "Bold", "Italic", "Bold Italic"
    void set_font_style(const std::string& style);
    [[nodiscard]] Value strikethrough() const;
    void set_strikethrough(bool on);
    [[nodiscard]] Value subscript() const;
    void set_subscript(bool on);
    [[nodiscard]] Value superscript() const;
    void set_superscript(bool on);
    [[nodiscard]] Value underline() const;     // XlUnderlineStyle
    void set_underline(const Value& style);    // XlUnderlineStyle, or a Boolean for single and none
    [[nodiscard]] Value color() const;         // BGR; 0 when automatic
    void set_color(std::int32_t bgr);          // a true colour
    [[nodiscard]] Value color_index() const;   // 1..56, the nearest of the palette; xlAutomatic
    void set_color_index(std::int32_t index);  // 1..56, xlAutomatic
    [[nodiscard]] Value theme_color() const;   // XlThemeColor; error 1004 when it is none of the theme's
    void set_theme_color(std::int32_t color);
    [[nodiscard]] Value theme_font() const;  // XlThemeFont
    void set_theme_font(std::int32_t font);
    [[nodiscard]] Value tint_and_shade() const;  // -1 to 1
    void set_tint_and_shade(double tint);

  private:
    template <class Read>
    [[nodiscard]] Value read(Read&& read_font) const {
        return cells_.uniform([&](StyleId id) { return Value(read_font(cells_.styles().font_of(id))); });
    }
    void write(std::string_view member, const std::function<void(Font&)>& change) const {
        cells_.restyle(member, [&](StyleId id) { return cells_.styles().with_font(id, change); });
    }

    CellRange cells_;
};

}  // namespace kestrune::host
