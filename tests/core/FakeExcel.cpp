#include "core/FakeExcel.h"

#include <fmt/format.h>

namespace kestrune::core::fake {

using automation::Arguments;
using automation::AutomationError;
using automation::Call;
using automation::MemberTable;
using automation::property;
using automation::read_only;

namespace {

constexpr std::string_view side_names[] = {"Left", "Top", "Width", "Height"};

[[noreturn]] void refuse(std::string_view member) {
    throw AutomationError(automation::hresult::excel_error, member, "refused");
}

}  // namespace

void Window::set_zoom(std::int32_t percent) {
    log_.push_back(fmt::format("Zoom={}", percent));
    zoom = percent;
    if (on_zoom) on_zoom();
}

void Window::set_state(std::int32_t state) {
    log_.push_back(fmt::format("ActiveWindow.WindowState={}", state));
    state_ = state;
}

const MemberTable& Window::members() {
    static constexpr auto rows =
        automation::member_rows(property<&Window::get_zoom, &Window::set_zoom>("Zoom", 1),
                                property<&Window::get_gridlines, &Window::set_gridlines>("DisplayGridlines", 2),
                                property<&Window::get_state, &Window::set_state>("WindowState", 3));
    static constexpr MemberTable table("Window", rows);
    return table;
}

Value Workbook::get_colors() {
    ++palette_reads;
    automation::Array all(automation::Array::Bound{1, static_cast<std::int32_t>(colors.size())});
    all.elements() = colors;
    return all;
}

const MemberTable& Workbook::members() {
    static constexpr auto rows = automation::member_rows(read_only<&Workbook::get_colors>("Colors", 1),
                                                         read_only<&Workbook::get_name>("Name", 2));
    static constexpr MemberTable table("Workbook", rows);
    return table;
}

Value Application::invoke(std::string_view member, Call kind, Arguments& arguments) {
    if (refused.contains(std::string(member))) refuse(member);
    return members().invoke(*this, member, kind, arguments);
}

void Application::on_key(const std::string& key, const std::optional<std::string>& procedure) {
    if (procedure) {
        keys[key] = *procedure;
    } else {
        ++given_back[key];
        keys.erase(key);
    }
}

void Application::set_updating(bool updating) {
    log_.push_back(fmt::format("ScreenUpdating={}", updating));
    screen_updating = updating;
}

void Application::set_state(std::int32_t to) {
    log_.push_back(fmt::format("WindowState={}", to));
    state = to;
}

template <int side>
void Application::set_side(double points) {
    if (state == -4137) refuse(side_names[side]);
    log_.push_back(fmt::format("{}={}", side_names[side], points));
    box[side] = points;
}

const MemberTable& Application::members() {
    using A = Application;
    static constexpr auto rows = automation::member_rows(
        read_only<&A::get_ready>("Ready", 1), property<&A::get_updating, &A::set_updating>("ScreenUpdating", 2),
        read_only<&A::get_window>("ActiveWindow", 3), read_only<&A::get_workbook>("ActiveWorkbook", 4),
        property<&A::get_state, &A::set_state>("WindowState", 5), property<&A::get_side<0>, &A::set_side<0>>("Left", 6),
        property<&A::get_side<1>, &A::set_side<1>>("Top", 7), property<&A::get_side<2>, &A::set_side<2>>("Width", 8),
        property<&A::get_side<3>, &A::set_side<3>>("Height", 9),
        automation::method<&A::on_key>("OnKey", 10, "Key, [Procedure]"));
    static constexpr MemberTable table("Application", rows);
    return table;
}

Value Spy::invoke(std::string_view member, Call kind, Arguments& arguments) {
    std::string line = fmt::format("{}.{}", path_, member);
    std::string given;
    for (const Value& argument : arguments.positional) {
        given += fmt::format("{}{}", given.empty() ? "" : ",",
                             argument.if_is<automation::ObjectRef>() ? "object"
                             : argument.array()                      ? "array"
                                                                     : automation::to_text(argument));
    }
    if (member == "RegisterCallback") callbacks_[path_] = automation::to_object(arguments.positional.at(1));
    Value answer = real_->invoke(member, kind, arguments);
    // The nodes of a document go back to the service that made them, which knows only its own.
    const auto* object = answer.if_is<automation::ObjectRef>();
    if (object && *object && !(*object)->type_name().starts_with("IXMLDOM")) {
        return std::make_shared<Spy>(*object, line, log_, callbacks_);
    }
    if (!path_.ends_with(".iXML")) log_.push_back(fmt::format("{}({})", line, given));
    return answer;
}

}  // namespace kestrune::core::fake
