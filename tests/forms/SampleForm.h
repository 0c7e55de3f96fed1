#pragma once

#include <array>
#include <string>
#include <vector>

#include "forms/Form.h"

namespace kestrune::forms {

// A form with a control of every kind that writes down what happens to it.
class SampleForm : public Form {
  public:
    SampleForm() : Form(design_of_it) {
        static constexpr std::array<std::pair<Event, const char*>, 14> names{{
            {Event::Initialize, "Initialize"},
            {Event::Activate, "Activate"},
            {Event::QueryClose, "QueryClose"},
            {Event::Terminate, "Terminate"},
            {Event::Resize, "Resize"},
            {Event::Click, "Click"},
            {Event::DblClick, "DblClick"},
            {Event::Change, "Change"},
            {Event::Enter, "Enter"},
            {Event::Exit, "Exit"},
            {Event::BeforeUpdate, "BeforeUpdate"},
            {Event::AfterUpdate, "AfterUpdate"},
            {Event::SpinUp, "SpinUp"},
            {Event::SpinDown, "SpinDown"},
        }};
        for (const auto& [event, name] : names) {
            on(event, [this, name = name](EventCall& call) { note(name, call); });
            for (const ControlDesign& control : controls_of_it) {
                on(control.name, event,
                   [this, what = std::string(control.name) + " " + name](EventCall& call) { note(what, call); });
            }
        }
        on("spnRows", Event::Change,
           [this](EventCall&) { (*this)["txtRows"].Text(std::to_string((*this)["spnRows"].Number())); });
        on("btnOK", Event::Click, [this](EventCall&) {
            if (accepts) Unload();
        });
        on("btnCancel", Event::Click, [this](EventCall&) { Unload(); });
    }
    // What happened since the last time that somebody asked.
    std::vector<std::string> happened() { return std::exchange(log_, {}); }

    std::string cancels;  // "txtName Exit": what its handler cancels
    bool accepts = true;  // OK closes it

    static constexpr std::array<std::string_view, 3> colors{"Red", "Green", "Grey"};
    static constexpr std::array<std::string_view, 2> pages{"General", "Expert"};
    static constexpr auto controls_of_it = std::to_array<ControlDesign>({
        {.name = "lblName", .caption = "Name:", .accelerator = 'N'},
        {.name = "txtName", .kind = Kind::Text, .place = Place::Column, .stretch = Stretch::Across, .width = 80},
        {.name = "fraScope", .kind = Kind::Frame, .caption = "Copy to:"},
        {.name = "optAll", .kind = Kind::Option, .caption = "All rows", .accelerator = 'A', .in = "fraScope"},
        {.name = "optSome", .kind = Kind::Option, .caption = "Some rows", .accelerator = 'S', .in = "fraScope"},
        {.name = "optNone", .kind = Kind::Option, .caption = "No rows", .in = "fraScope"},
        {.name = "lblRows", .caption = "Rows:", .in = "fraScope", .indent = 12},
        {.name = "txtRows", .kind = Kind::Text, .in = "fraScope", .place = Place::Column, .width = 36},
        {.name = "spnRows", .kind = Kind::Spin, .in = "fraScope", .place = Place::Attached, .min = 0, .max = 9},
        {.name = "ckbBold", .kind = Kind::Check, .caption = "Bold", .accelerator = 'B', .tip = "In bold letters"},
        {.name = "cmbColor", .kind = Kind::Combo, .place = Place::Beside, .width = 60, .items = colors},
        {.name = "lblLook", .caption = "Look:"},
        {.name = "lstColors",
         .kind = Kind::List,
         .place = Place::Column,
         .stretch = Stretch::Both,
         .width = 80,
         .height = 40,
         .items = colors},
        {.name = "mpaMore", .kind = Kind::Tabs, .items = pages},
        {.name = "ckbLocked", .kind = Kind::Check, .caption = "Locked", .in = "mpaMore"},
        {.name = "ckbHidden", .kind = Kind::Check, .caption = "Hidden", .in = "mpaMore", .page = 1},
        {.name = "imgLogo", .kind = Kind::Image, .width = 24, .height = 24},
        {.name = "btnOK", .kind = Kind::Push, .caption = "OK", .role = Role::Default},
        {.name = "btnCancel", .kind = Kind::Push, .caption = "Cancel", .place = Place::Beside, .role = Role::Cancel},
    });
    static constexpr FormDesign design_of_it{
        .name = "fSample", .caption = "Sample", .controls = controls_of_it, .sizable = true};

  private:
    void note(const std::string& what, EventCall& call) {
        log_.push_back(what);
        if (what == cancels) call.cancel = true;
    }

    std::vector<std::string> log_;
};

}  // namespace kestrune::forms
