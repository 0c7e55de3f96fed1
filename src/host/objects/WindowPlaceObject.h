#pragma once

#include "host/objects/HostObject.h"

namespace kestrune::host {

// Where a window is, in points: what Application and Window have in common. A maximised window covers the
// space there is for it and cannot be moved or sized (error 1004); nor can a minimised one.
template <class Derived>
class WindowPlaceObject : public HostObject<Derived> {
  public:
    [[nodiscard]] std::int32_t window_state() const { return place().state; }  // XlWindowState
    void set_window_state(std::int32_t state) {
        if (state != xlMaximized && state != xlMinimized && state != xlNormal) {
            refuse(member("WindowState"), "there is no such window state");
        }
        place().state = state;
    }
    [[nodiscard]] double left() const { return shown().left; }
    void set_left(double points) { movable("Left").left = points; }
    [[nodiscard]] double top() const { return shown().top; }
    void set_top(double points) { movable("Top").top = points; }
    [[nodiscard]] double width() const { return shown().width; }
    void set_width(double points) { sized("Width", points).width = points; }
    [[nodiscard]] double height() const { return shown().height; }
    void set_height(double points) { sized("Height", points).height = points; }

  protected:
    using HostObject<Derived>::HostObject;

    [[nodiscard]] WindowPlace& place() const { return static_cast<const Derived*>(this)->window_place(); }
    [[nodiscard]] Rectangle shown() const {
        return place().state == xlMaximized ? static_cast<const Derived*>(this)->space() : place().normal;
    }

  private:
    [[nodiscard]] std::string member(std::string_view name) const {
        return std::string(this->type_name()) + "." + std::string(name);
    }
    Rectangle& movable(std::string_view name) const {
        if (place().state != xlNormal) refuse(member(name), "a maximised or minimised window stays where it is");
        return place().normal;
    }
    Rectangle& sized(std::string_view name, double points) const {
        if (!(points > 0)) refuse(member(name), "a window has a size above 0");
        return movable(name);
    }
};

}  // namespace kestrune::host
