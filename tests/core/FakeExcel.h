#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "automation/MemberTable.h"

// As much of Excel's object model as the add-in's core calls, with what it wrote written down.
namespace kestrune::core::fake {

using automation::Value;

using Log = std::vector<std::string>;

class Window : public automation::Served<Window> {
  public:
    explicit Window(Log& log) : log_(log) {}
    static const automation::MemberTable& members();

    std::int32_t zoom = 100;
    bool gridlines = true;
    std::function<void()> on_zoom;  // what happens while a command writes the zoom

  private:
    [[nodiscard]] std::int32_t get_zoom() const { return zoom; }
    void set_zoom(std::int32_t percent);
    [[nodiscard]] bool get_gridlines() const { return gridlines; }
    void set_gridlines(bool shown) { gridlines = shown; }
    [[nodiscard]] std::int32_t get_state() const { return state_; }
    void set_state(std::int32_t state);

    Log& log_;
    std::int32_t state_ = -4143;
};

class Workbook : public automation::Served<Workbook> {
  public:
    Workbook(std::string name, Log& log) : name_(std::move(name)), log_(log) {}
    ~Workbook() override { log_.push_back(name_ + " released"); }
    static const automation::MemberTable& members();

    std::vector<Value> colors;  // the palette
    int palette_reads = 0;

  private:
    [[nodiscard]] Value get_colors();
    [[nodiscard]] std::string get_name() const { return name_; }

    std::string name_;
    Log& log_;
};

class Application : public automation::Served<Application> {
  public:
    explicit Application(Log& log) : log_(log) {}
    static const automation::MemberTable& members();

    bool ready = true;
    bool screen_updating = true;
    std::shared_ptr<Window> window;
    std::shared_ptr<Workbook> workbook;
    std::map<std::string, std::string> keys;         // what OnKey bound, by Excel's text for the key
    std::map<std::string, std::int32_t> given_back;  // how often OnKey gave a key back
    std::set<std::string> refused;                   // members that fail with Excel's error 1004
    std::int32_t state = -4143;
    double box[4] = {40, 50, 600, 400};         // left, top, width and height while normal, points
    double maximised[4] = {-6, -6, 1452, 872};  // and while maximised

    Value invoke(std::string_view member, automation::Call kind, automation::Arguments& arguments) override;

  private:
    void on_key(const std::string& key, const std::optional<std::string>& procedure);
    [[nodiscard]] bool get_ready() const { return ready; }
    [[nodiscard]] bool get_updating() const { return screen_updating; }
    void set_updating(bool updating);
    [[nodiscard]] automation::ObjectRef get_window() const { return window; }
    [[nodiscard]] automation::ObjectRef get_workbook() const { return workbook; }
    [[nodiscard]] std::int32_t get_state() const { return state; }
    void set_state(std::int32_t to);
    template <int side>
    [[nodiscard]] double get_side() const {
        return state == -4137 ? maximised[side] : box[side];
    }
    template <int side>
    void set_side(double points);

    Log& log_;
};

// What a client handed to libraries to be called back, by the object that took it ("BRXLLib.iUndoRedo").
using Callbacks = std::map<std::string, automation::ObjectRef>;

// Stands before a library and writes down every call to it and to its sub-objects; keeps callbacks for tests to call.
class Spy : public automation::Object {
  public:
    Spy(automation::ObjectRef real, std::string path, Log& log, Callbacks& callbacks)
        : real_(std::move(real)), path_(std::move(path)), log_(log), callbacks_(callbacks) {}
    Value invoke(std::string_view member, automation::Call kind, automation::Arguments& arguments) override;
    [[nodiscard]] std::string_view type_name() const override { return real_->type_name(); }

  private:
    automation::ObjectRef real_;
    std::string path_;
    Log& log_;
    Callbacks& callbacks_;
};

}  // namespace kestrune::core::fake
