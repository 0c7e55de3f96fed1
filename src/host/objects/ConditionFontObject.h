#pragma once

#include "host/objects/ConditionRule.h"
#include "host/objects/HostObject.h"

namespace kestrune::host {

// FormatCondition.Font: what a conditional format changes about the font. A reading answers Null for what it
// leaves alone. Name and size cannot be changed by one.
class ConditionFontObject final : public HostObject<ConditionFontObject> {
  public:
    static const MemberTable& members();

    explicit ConditionFontObject(ConditionRule rule) : HostObject(rule.session()), rule_(rule) {}

    [[nodiscard]] ObjectRef parent() const;
    [[nodiscard]] Value nothing() const { return Null{}; }
    [[nodiscard]] Value bold() const;
    void set_bold(bool on);
    [[nodiscard]] Value italic() const;
    void set_italic(bool on);
    [[nodiscard]] Value strikethrough() const;
    void set_strikethrough(bool on);
    [[nodiscard]] Value underline() const;  // XlUnderlineStyle
    void set_underline(const Value& style);
    [[nodiscard]] Value color() const;  // BGR
    void set_color(std::int32_t bgr);
    [[nodiscard]] Value color_index() const;
    void set_color_index(std::int32_t index);
    [[nodiscard]] Value theme_color() const;
    void set_theme_color(std::int32_t color);
    [[nodiscard]] Value tint_and_shade() const;
    void set_tint_and_shade(double tint);

  private:
    ConditionRule rule_;
};

}  // namespace kestrune::host
