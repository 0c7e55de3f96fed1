#pragma once

#include "host/objects/ConditionRule.h"
#include "host/objects/HostObject.h"

namespace kestrune::host {

// FormatCondition.Interior: the fill that a conditional format gives. A reading answers Null when it gives none.
class ConditionInteriorObject final : public HostObject<ConditionInteriorObject> {
  public:
    static const MemberTable& members();

    explicit ConditionInteriorObject(ConditionRule rule) : HostObject(rule.session()), rule_(rule) {}

    [[nodiscard]] ObjectRef parent() const;
    [[nodiscard]] Value color() const;  // BGR
    void set_color(std::int32_t bgr);
    [[nodiscard]] Value color_index() const;   // 1..56, xlAutomatic
    void set_color_index(std::int32_t index);  // xlNone takes the fill away
    [[nodiscard]] Value pattern() const;       // XlPattern
    void set_pattern(std::int32_t pattern);
    [[nodiscard]] Value theme_color() const;  // XlThemeColor; error 1004 when it is none of the theme's
    void set_theme_color(std::int32_t color);
    [[nodiscard]] Value tint_and_shade() const;  // -1 to 1
    void set_tint_and_shade(double tint);
    [[nodiscard]] Value pattern_color() const;  // BGR; Null without a pattern's lines
    void set_pattern_color(std::int32_t bgr);

  private:
    void write_color(std::string_view member, const Color& color) const;

    ConditionRule rule_;
};

}  // namespace kestrune::host
