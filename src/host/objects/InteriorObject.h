#pragma once

#include <functional>

#include "host/objects/CellRange.h"
#include "host/objects/HostObject.h"

namespace kestrune::host {

// Range.Interior: the fill. A reading answers Null when the cells differ, and for a gradient's colours.
class InteriorObject final : public HostObject<InteriorObject> {
  public:
    static const MemberTable& members();

    explicit InteriorObject(CellRange cells) : HostObject(cells.session()), cells_(std::move(cells)) {}

    [[nodiscard]] ObjectRef parent() const;
    [[nodiscard]] Value color() const;         // BGR; 0xFFFFFF without a fill
    void set_color(std::int32_t bgr);          // makes the pattern solid when there is none
    [[nodiscard]] Value color_index() const;   // 1..56, xlNone without a fill, xlAutomatic
    void set_color_index(std::int32_t index);  // 1..56; xlNone and 0 take the fill away
    [[nodiscard]] Value theme_color() const;
    void set_theme_color(std::int32_t color);
    [[nodiscard]] Value tint_and_shade() const;  // -1 to 1
    void set_tint_and_shade(double tint);
    [[nodiscard]] Value pattern() const;  // XlPattern
    void set_pattern(std::int32_t pattern);
    [[nodiscard]] Value pattern_color() const;  // BGR, of the pattern's lines
    void set_pattern_color(std::int32_t bgr);
    [[nodiscard]] Value pattern_color_index() const;
    void set_pattern_color_index(std::int32_t index);
    [[nodiscard]] Value pattern_theme_color() const;  // XlThemeColor; error 1004 when it is none of the theme's
    void set_pattern_theme_color(std::int32_t color);
    [[nodiscard]] Value pattern_tint_and_shade() const;  // -1 to 1
    void set_pattern_tint_and_shade(double tint);

  private:
    template <class Read>
    [[nodiscard]] Value read(Read&& read_fill) const {
        return cells_.uniform([&](StyleId id) { return Value(read_fill(cells_.styles().fill_of(id))); });
    }
    void write(std::string_view member, const std::function<void(Fill&)>& change) const {
        cells_.restyle(member, [&](StyleId id) { return cells_.styles().with_fill(id, change); });
    }

    CellRange cells_;
};

}  // namespace kestrune::host
