#pragma once

#include <span>

#include "host/objects/WindowPlaceObject.h"

namespace kestrune::host {

// Excel's Application. Without an open workbook what is active is Nothing.
class ApplicationObject final : public WindowPlaceObject<ApplicationObject>, public automation::EventSource {
  public:
    static const MemberTable& members();

    explicit ApplicationObject(HostSession& session) : WindowPlaceObject(session) {}

    // NewWorkbook, WorkbookOpen, WorkbookActivate and WorkbookDeactivate (a workbook); SheetActivate (a sheet);
    // SheetChange and SheetSelectionChange (a sheet and a range).
    std::unique_ptr<automation::Subscription> subscribe(automation::EventListener listener) override {
        return session().subscribe(std::move(listener));
    }

    [[nodiscard]] std::string name() const { return "Microsoft Excel"; }
    [[nodiscard]] std::string version() const { return "16.0"; }
    [[nodiscard]] ObjectRef workbooks() const;
    [[nodiscard]] ObjectRef windows() const;
    [[nodiscard]] ObjectRef command_bars() const;
    [[nodiscard]] ObjectRef active_workbook() const;
    [[nodiscard]] ObjectRef active_window() const;
    [[nodiscard]] ObjectRef active_sheet() const;
    [[nodiscard]] ObjectRef active_cell() const;
    [[nodiscard]] ObjectRef selection() const;

    // Of the active workbook or sheet; error 1004 without one.
    [[nodiscard]] ObjectRef worksheets() const;
    [[nodiscard]] ObjectRef sheets() const;
    [[nodiscard]] ObjectRef names() const;
    [[nodiscard]] ObjectRef range(const Value& cell1, const Value& cell2) const;
    [[nodiscard]] ObjectRef cells() const;
    [[nodiscard]] ObjectRef rows() const;
    [[nodiscard]] ObjectRef columns() const;
    [[nodiscard]] ObjectRef unite(std::span<const Value> ranges) const;
    [[nodiscard]] ObjectRef intersect(std::span<const Value> ranges) const;  // Nothing when they share no cell
    // Selects cells, an address or a name, on whatever sheet they are.
    void go_to(const Value& reference, const Value& scroll);
    // Runs a macro by its name with up to thirty arguments; what it answers.
    [[nodiscard]] Value run(std::span<const Value> arguments);
    // Binds a key to a macro, to nothing (an empty text), or, left out, gives it back to Excel. Error 1004 for a key
    // that there is not.
    void on_key(const std::string& key, const std::optional<std::string>& procedure);

    // What Undo and Repeat run the next time, if nothing changes until then; an empty procedure takes it away.
    void on_undo(const std::string& text, const std::string& procedure);
    void on_repeat(const std::string& text, const std::string& procedure);
    // Without a macro that waits, error 1004: the embedded Excel keeps no list of its own.
    void undo() { session().run_waiting("Application.Undo", session().on_undo); }
    void repeat() { session().run_waiting("Application.Repeat", session().on_repeat); }

    [[nodiscard]] bool screen_updating() const { return session().screen_updating; }
    void set_screen_updating(bool on) { session().screen_updating = on; }
    [[nodiscard]] bool enable_events() const { return session().enable_events; }
    void set_enable_events(bool on) { session().enable_events = on; }
    [[nodiscard]] bool display_alerts() const { return session().display_alerts; }
    void set_display_alerts(bool on) { session().display_alerts = on; }
    [[nodiscard]] bool interactive() const { return session().interactive; }
    void set_interactive(bool on) { session().interactive = on; }
    [[nodiscard]] bool visible() const { return session().visible; }
    void set_visible(bool on) { session().visible = on; }
    [[nodiscard]] bool ready() const { return true; }
    [[nodiscard]] std::int32_t calculation() const { return session().calculation; }  // XlCalculation
    void set_calculation(std::int32_t mode);
    [[nodiscard]] Value status_bar() const { return session().status_bar; }  // False: Excel's own texts
    void set_status_bar(const Value& text);
    [[nodiscard]] Value cut_copy_mode() const;  // XlCutCopyMode, or False
    void set_cut_copy_mode(const Value& mode);
    [[nodiscard]] std::int32_t cursor() const { return session().cursor; }
    void set_cursor(std::int32_t pointer) { session().cursor = pointer; }
    [[nodiscard]] std::int32_t reference_style() const { return session().reference_style; }
    void set_reference_style(std::int32_t style);
    [[nodiscard]] std::string caption() const;
    void set_caption(const Value& caption);                                     // Empty brings Excel's own back
    [[nodiscard]] double usable_width() const { return window_space().width; }  // points, for workbook windows
    [[nodiscard]] double usable_height() const { return window_space().height; }

    [[nodiscard]] WindowPlace& window_place() const { return session().window; }
    [[nodiscard]] Rectangle space() const { return screen; }
    // What title bar, ribbon and formula bar leave of the window for those of workbooks.
    [[nodiscard]] Rectangle window_space() const;

  private:
    [[nodiscard]] Workbook& workbook(std::string_view member) const;
    [[nodiscard]] Sheet& worksheet(std::string_view member) const;
    [[nodiscard]] ObjectRef whole_sheet(std::string_view member, bool rows, bool columns) const;
};

}  // namespace kestrune::host
