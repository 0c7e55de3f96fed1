#pragma once

#include "host/objects/ConditionRule.h"
#include "host/objects/HostObject.h"

namespace kestrune::host {

// One conditional format. Every call fails with error 1004 once it is deleted.
class FormatConditionObject final : public HostObject<FormatConditionObject> {
  public:
    static const MemberTable& members();

    explicit FormatConditionObject(ConditionRule rule) : HostObject(rule.session()), rule_(rule) {}

    [[nodiscard]] ObjectRef parent() const { return applies_to(); }
    [[nodiscard]] ObjectRef applies_to() const;
    void modify_applies_to_range(const ObjectRef& range);
    [[nodiscard]] std::int32_t type() const;
    [[nodiscard]] std::int32_t operation() const;  // error 1004 where the type has no operator
    [[nodiscard]] std::string formula1() const;    // with "="
    [[nodiscard]] std::string formula2() const;    // error 1004 when there is one bound only
    void modify(std::int32_t type, const Value& operation, const Value& formula1, const Value& formula2);
    [[nodiscard]] ObjectRef font() const;
    [[nodiscard]] ObjectRef interior() const;
    [[nodiscard]] ObjectRef borders() const;
    [[nodiscard]] Value number_format() const;  // Null when it changes none
    void set_number_format(const std::string& code);
    [[nodiscard]] std::int32_t priority() const { return rule_.rule().priority; }
    void set_priority(std::int32_t priority) { rule_.set_priority(priority); }
    void set_first_priority() { rule_.set_priority(1); }
    void set_last_priority();
    [[nodiscard]] bool stop_if_true() const { return rule_.rule().stop_if_true; }
    void set_stop_if_true(bool on);
    void remove() { rule_.remove(); }

  private:
    [[nodiscard]] std::string formula(std::size_t position, std::string_view member) const;

    ConditionRule rule_;
};

}  // namespace kestrune::host
