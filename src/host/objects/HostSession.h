#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "automation/Object.h"
#include "host/model/Workbook.h"
#include "host/objects/Constants.h"
#include "host/objects/HeldRange.h"
#include "host/objects/Listeners.h"
#include "host/objects/Macros.h"
#include "host/objects/WorkbookStore.h"
#include "keys/Key.h"

namespace kestrune::host {

struct CommandBars;

// A window's place on the screen, in points from the screen's top-left corner.
struct Rectangle {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

// The screen that the application pretends to be on.
inline constexpr Rectangle screen{0, 0, 1440, 810};

struct WindowPlace {
    std::int32_t state = xlMaximized;
    Rectangle normal;  // where the window is when it is neither maximised nor minimised
};

// A macro that waits to be run by Excel's Undo or Repeat, and what the menu calls it.
struct WaitingMacro {
    std::string text;
    std::string procedure;
};

// A workbook that is open, and what its one window remembers about it besides the sheets' own views.
struct OpenWorkbook {
    Workbook* model = nullptr;
    std::unique_ptr<Workbook> owned;         // the same, unless its owner is elsewhere
    std::unique_ptr<StoredWorkbook> stored;  // its file, when it came from the session's store
    WindowPlace window{xlMaximized, {0, 0, 720, 405}};
    std::string caption;                      // empty: the workbook's name
    bool created = false;                     // made by Workbooks.Add: no file knows it yet
    bool saved = true;                        // whether nothing has changed since it was opened or last called saved
    std::map<const Sheet*, Position> scroll;  // the top-left cell shown; A1 where absent
};

// Name and folder of a workbook; the name alone when it has never been saved.
std::string full_name(const Workbook& workbook);

// One run of the embedded Excel: its workbooks and the state of the application. The objects that it serves are safe
// to call as long as it lives, and keep one alive that is held by shared pointers; those of a closed workbook answer
// that it is gone.
class HostSession : public std::enable_shared_from_this<HostSession> {
  public:
    HostSession() = default;
    HostSession(const HostSession&) = delete;
    HostSession& operator=(const HostSession&) = delete;

    // Takes a filled workbook in and makes it the active one; the events are those of opening a file, or of a new
    // workbook for one that no file holds. One that stays with its owner must outlive the session.
    Workbook& open(std::unique_ptr<Workbook> workbook);
    void open(Workbook& workbook);
    // A file's workbook, made the active one; one that is open already comes to the front as it is. Fails with error
    // 1004 when there is no such file, or another workbook of its name is open.
    Workbook& open_file(const std::string& path);
    // Makes a workbook of one empty sheet under the next free name ("Book2") the active one.
    Workbook& add_workbook();
    // Takes a workbook out without saving it, unless a listener to WorkbookBeforeClose keeps it; the one opened last
    // becomes active.
    void close(const Workbook& workbook);

    // How many automation calls came from outside. What an object calls while it answers counts nothing.
    [[nodiscard]] std::int64_t calls() const { return calls_; }

    [[nodiscard]] const std::vector<std::unique_ptr<OpenWorkbook>>& workbooks() const { return workbooks_; }
    [[nodiscard]] OpenWorkbook& opened(const Workbook& workbook) const;
    [[nodiscard]] bool is_open(const Workbook& workbook) const { return find(workbook) != nullptr; }
    [[nodiscard]] OpenWorkbook* find(const Workbook& workbook) const;  // null when it is not open
    [[nodiscard]] OpenWorkbook* find(std::string_view name) const;     // by name or full name, whatever its case
    [[nodiscard]] OpenWorkbook* active() const { return active_; }     // null when no workbook is open
    void activate(const Workbook& workbook);
    // The sheet on top of the active workbook's window; null without one.
    [[nodiscard]] Sheet* active_sheet() const;
    // Brings a sheet to the top of its workbook's window. A hidden sheet does not come: false.
    bool activate(Sheet& sheet);
    // After sheets were hidden: brings the nearest visible one to the top when the active one is hidden.
    void leave_hidden(Workbook& workbook);
    // Notes that a workbook differs from what was saved. What Undo and Repeat would have run no longer fits.
    void changed(const Workbook& workbook) {
        opened(workbook).saved = false;
        on_undo.reset();
        on_repeat.reset();
    }

    // Runs a macro as Application.Run does. Without a workbook in its name the active workbook's macros come first,
    // then those of add-ins, then those of the other workbooks. Error 1004 when there is none.
    automation::Value run_macro(std::string_view name, std::span<const automation::Value> arguments);
    // Runs what a key or a control is to run (MacroCall.h), with its arguments.
    automation::Value run_call(std::string_view text);

    // Runs what waits in on_undo or on_repeat, once. Error 1004 when nothing does.
    void run_waiting(std::string_view member, std::optional<WaitingMacro>& waiting);

    // The application's events: whoever listens is told at once, unless EnableEvents is off. Gives the arguments back
    // as the listeners left them.
    [[nodiscard]] std::unique_ptr<automation::Subscription> subscribe(automation::EventListener listener) {
        return listeners_.add(std::move(listener));
    }
    [[nodiscard]] bool heard() const { return enable_events && listeners_.any(); }
    automation::Arguments raise(std::string_view event, automation::Arguments arguments);

    HeldRange held_ranges;  // the ring of all ranges that somebody holds
    Macros macros;
    std::optional<WaitingMacro> on_undo;
    std::optional<WaitingMacro> on_repeat;
    // What Application.OnKey bound: the macro of a key, or nothing for one that does nothing.
    std::map<keys::Key, std::string> bound_keys;
    std::shared_ptr<CommandBars> command_bars;  // null until somebody asks for them
    WorkbookStore* store = nullptr;  // what Workbooks.Open opens; without one it finds nothing. Outlives the session

    WindowPlace window{xlMaximized, {180, 101.25, 1080, 607.5}};
    std::string caption;  // empty: the application's name
    std::int32_t calculation = xlAutomatic;
    std::int32_t cut_copy_mode = 0;
    std::int32_t cursor = xlDefault;
    std::int32_t reference_style = xlA1;
    bool screen_updating = true;
    bool enable_events = true;
    bool display_alerts = true;
    bool interactive = true;
    bool visible = true;
    automation::Value status_bar = false;  // false: Excel writes its own texts there

    static constexpr std::int32_t xlDefault = -4143;

    // Counts a call for as long as it lasts; calls inside it are the host's own.
    class Entry {
      public:
        explicit Entry(HostSession& session) : session_(session) {
            if (session_.depth_++ == 0) ++session_.calls_;
        }
        ~Entry() { --session_.depth_; }
        Entry(const Entry&) = delete;
        Entry& operator=(const Entry&) = delete;

      private:
        HostSession& session_;
    };

    // Marks code that the host runs for somebody else while it answers a call: what that code calls counts again.
    class Outside {
      public:
        explicit Outside(HostSession& session) : session_(session), depth_(session.depth_) { session_.depth_ = 0; }
        ~Outside() { session_.depth_ = depth_; }
        Outside(const Outside&) = delete;
        Outside& operator=(const Outside&) = delete;

      private:
        HostSession& session_;
        int depth_;
    };

  private:
    [[nodiscard]] static bool bring_up(Sheet& sheet);  // whether another sheet was on top
    OpenWorkbook& take_in(Workbook& workbook);
    void welcome(OpenWorkbook& newcomer);
    void come_to_front(OpenWorkbook& workbook);
    void raise_of(std::string_view event, Workbook& workbook);
    void raise_of(std::string_view event, Sheet& sheet);

    std::vector<std::unique_ptr<OpenWorkbook>> workbooks_;
    std::vector<std::unique_ptr<OpenWorkbook>> closed_;  // kept, since objects of theirs may still be held
    OpenWorkbook* active_ = nullptr;
    Listeners listeners_;
    std::int32_t added_ = 0;
    std::int64_t calls_ = 0;
    int depth_ = 0;
};

// Excel's Application object for a session.
automation::ObjectRef make_application(HostSession& session);

}  // namespace kestrune::host
