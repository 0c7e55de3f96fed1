#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>

#include "excel/CommandBars.h"
#include "excel/Range.h"
#include "excel/Window.h"
#include "excel/Workbooks.h"

namespace kestrune::excel {

class Application : public Facade<Application> {
  public:
    static constexpr std::string_view class_name = "Application";
    static constexpr auto members = std::to_array<MemberRow>({
        {"ActiveCell", Access::get},
        {"ActiveSheet", Access::get},
        {"ActiveWindow", Access::get},
        {"ActiveWorkbook", Access::get},
        {"Calculation", Access::get_put},
        {"CutCopyMode", Access::get_put},
        {"CommandBars", Access::get},
        {"EnableEvents", Access::get_put},
        {"Goto", Access::method, "Reference Scroll"},
        {"Height", Access::get_put},
        {"Intersect", Access::method,
         "Arg1! Arg2! Arg3 Arg4 Arg5 Arg6 Arg7 Arg8 Arg9 Arg10 Arg11 Arg12 Arg13 Arg14 Arg15 Arg16 Arg17 Arg18 Arg19 "
         "Arg20 Arg21 Arg22 Arg23 Arg24 Arg25 Arg26 Arg27 Arg28 Arg29 Arg30"},
        {"Left", Access::get_put},
        {"Name", Access::get},
        {"OnRepeat", Access::method, "Text! Procedure!"},
        {"OnUndo", Access::method, "Text! Procedure!"},
        {"Ready", Access::get},
        {"Run", Access::method,
         "Macro Arg1 Arg2 Arg3 Arg4 Arg5 Arg6 Arg7 Arg8 Arg9 Arg10 Arg11 Arg12 Arg13 Arg14 Arg15 Arg16 Arg17 Arg18 "
         "Arg19 Arg20 Arg21 Arg22 Arg23 Arg24 Arg25 Arg26 Arg27 Arg28 Arg29 Arg30"},
        {"ScreenUpdating", Access::get_put},
        {"Selection", Access::get},
        {"Top", Access::get_put},
        {"Union", Access::method,
         "Arg1! Arg2! Arg3 Arg4 Arg5 Arg6 Arg7 Arg8 Arg9 Arg10 Arg11 Arg12 Arg13 Arg14 Arg15 Arg16 Arg17 Arg18 Arg19 "
         "Arg20 Arg21 Arg22 Arg23 Arg24 Arg25 Arg26 Arg27 Arg28 Arg29 Arg30"},
        {"Union", Access::method,
         "Arg1! Arg2! Arg3 Arg4 Arg5 Arg6 Arg7 Arg8 Arg9 Arg10 Arg11 Arg12 Arg13 Arg14 Arg15 Arg16 Arg17 Arg18 Arg19 "
         "Arg20 Arg21 Arg22 Arg23 Arg24 Arg25 Arg26 Arg27 Arg28 Arg29 Arg30"},
        {"Version", Access::get},
        {"Width", Access::get_put},
        {"WindowState", Access::get_put},
        {"Workbooks", Access::get},
    });
    using Facade::Facade;

    // Nothing when no worksheet is active.
    [[nodiscard]] Range ActiveCell() const { return get<Range>("ActiveCell"); }
    // A worksheet, a chart or Nothing.
    [[nodiscard]] ObjectRef ActiveSheet() const { return get<ObjectRef>("ActiveSheet"); }
    [[nodiscard]] Window ActiveWindow() const { return get<Window>("ActiveWindow"); }
    [[nodiscard]] Workbook ActiveWorkbook() const { return get<Workbook>("ActiveWorkbook"); }
    [[nodiscard]] std::int32_t Calculation() const { return get<std::int32_t>("Calculation"); }  // XlCalculation
    void Calculation(std::int32_t mode) const { put("Calculation", mode); }
    // Whether copied or cut cells wait to be pasted, with a moving border around them.
    [[nodiscard]] bool CutCopyMode() const { return get<bool>("CutCopyMode"); }
    [[nodiscard]] excel::CommandBars CommandBars() const { return get<excel::CommandBars>("CommandBars"); }
    [[nodiscard]] bool EnableEvents() const { return get<bool>("EnableEvents"); }
    void EnableEvents(bool on) const { put("EnableEvents", on); }
    void Goto(const Range& reference) const { call("Goto", reference.object()); }
    // The cells that two ranges of one sheet share; Nothing when they share none.
    [[nodiscard]] Range Intersect(const Range& one, const Range& other) const {
        return call<Range>("Intersect", one.object(), other.object());
    }
    // All the cells of ranges of one sheet: 2 to 30 of them.
    static constexpr std::size_t most_united = 30;
    [[nodiscard]] Range Union(std::span<const Range> ranges) const;
    [[nodiscard]] std::string Name() const { return get<std::string>("Name"); }
    // The macro that Excel's Undo (Repeat) runs next, and what the menu calls it. Any later change takes it away.
    void OnUndo(std::string_view text, std::string_view procedure) const { call("OnUndo", text, procedure); }
    void OnRepeat(std::string_view text, std::string_view procedure) const { call("OnRepeat", text, procedure); }
    // Runs a macro of an open workbook ("mPublic.Init").
    template <class... A>
    Value Run(std::string_view macro, A&&... arguments) const {
        return call("Run", macro, std::forward<A>(arguments)...);
    }
    [[nodiscard]] bool ScreenUpdating() const { return get<bool>("ScreenUpdating"); }
    void ScreenUpdating(bool updating) const { put("ScreenUpdating", updating); }
    // Whether Excel takes calls: not while a cell is edited or a dialog is open.
    [[nodiscard]] bool Ready() const { return get<bool>("Ready"); }
    // A range, another object (a chart, a shape) or Nothing.
    [[nodiscard]] ObjectRef Selection() const { return get<ObjectRef>("Selection"); }
    // The cells of two ranges of one sheet together.
    [[nodiscard]] Range Union(const Range& one, const Range& other) const {
        return call<Range>("Union", one.object(), other.object());
    }
    [[nodiscard]] std::string Version() const { return get<std::string>("Version"); }
    [[nodiscard]] std::int32_t WindowState() const { return get<std::int32_t>("WindowState"); }  // XlWindowState
    void WindowState(std::int32_t state) const { put("WindowState", state); }
    // Place and size of Excel's window, points; a write to a maximised or minimised window fails.
    [[nodiscard]] double Left() const { return get<double>("Left"); }
    void Left(double points) const { put("Left", points); }
    [[nodiscard]] double Top() const { return get<double>("Top"); }
    void Top(double points) const { put("Top", points); }
    [[nodiscard]] double Width() const { return get<double>("Width"); }
    void Width(double points) const { put("Width", points); }
    [[nodiscard]] double Height() const { return get<double>("Height"); }
    void Height(double points) const { put("Height", points); }
    [[nodiscard]] excel::Workbooks Workbooks() const { return get<excel::Workbooks>("Workbooks"); }
};

inline Range Application::Union(std::span<const Range> ranges) const {
    constexpr detail::Checked<Application, Access::method, most_united> member("Union");
    automation::Arguments arguments;
    for (const Range& range : ranges) arguments.positional.emplace_back(range.object());
    return Range(automation::to_object(invoke(member.name, automation::Call::Method, std::move(arguments))));
}

}  // namespace kestrune::excel
