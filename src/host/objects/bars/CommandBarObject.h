#pragma once

#include "host/objects/HostObject.h"
#include "host/objects/bars/CommandBars.h"

namespace kestrune::host {

// A bar. Every call fails once it is deleted.
class CommandBarObject final : public HostObject<CommandBarObject> {
  public:
    static const MemberTable& members();

    CommandBarObject(HostSession& session, std::shared_ptr<CommandBar> bar)
        : HostObject(session), bar_(std::move(bar)) {}

    [[nodiscard]] const std::shared_ptr<CommandBar>& bar() const { return bar_; }

    [[nodiscard]] ObjectRef parent() const;  // the application, or the popup that opens the bar
    [[nodiscard]] std::string name() const { return get("Name").name; }
    [[nodiscard]] std::string name_local() const { return get("NameLocal").name; }
    void set_name_local(const std::string& name);
    [[nodiscard]] ObjectRef controls() const;
    [[nodiscard]] std::int32_t index() const;
    [[nodiscard]] bool built_in() const { return get("BuiltIn").built_in; }
    [[nodiscard]] std::int32_t type() const { return get("Type").type; }              // MsoBarType
    [[nodiscard]] std::int32_t position() const { return get("Position").position; }  // MsoBarPosition
    void set_position(std::int32_t position) { get("Position").position = position; }
    [[nodiscard]] bool enabled() const { return get("Enabled").enabled; }
    void set_enabled(bool on) { get("Enabled").enabled = on; }
    [[nodiscard]] bool visible() const { return get("Visible").visible; }
    void set_visible(bool on) { get("Visible").visible = on; }
    // The first control with this type, id and tag; in popups as well when recursive. Nothing when there is none.
    [[nodiscard]] ObjectRef find_control(const Value& type, const Value& id, const Value& tag, const Value& visible,
                                         const Value& recursive) const;
    void remove();  // not one of Excel's own
    void reset();   // one of Excel's own, back to what it holds by itself

  private:
    [[nodiscard]] CommandBar& get(std::string_view member) const;

    std::shared_ptr<CommandBar> bar_;
};

// What a control is looked for by; what is left out matches all.
struct ControlSearch {
    ControlSearch(const Value& type, const Value& id, const Value& tag, const Value& visible, bool recursive);

    [[nodiscard]] std::shared_ptr<BarControl> find(const CommandBar& bar) const;  // null when there is none

  private:
    [[nodiscard]] bool matches(const BarControl& control) const;

    std::optional<std::int32_t> type_;
    std::optional<std::int32_t> id_;
    std::optional<std::string> tag_;
    bool visible_only_ = false;
    bool recursive_ = false;
};

}  // namespace kestrune::host
