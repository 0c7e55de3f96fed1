#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kestrune::windows {

// Where a person left a window, and how large.
struct FormPlace {
    long left = 0;  // pixels of the screen
    long top = 0;
    double width = 0;  // of the inside, points, so that it fits screens of any scale
    double height = 0;
};

// The places of windows that a person can resize, by the names of their forms. They belong to the user on this machine,
// whose screens they are about, and so lie in the registry and not among the preferences.
class FormPlaces {
  public:
    // Under HKEY_CURRENT_USER; an empty key remembers nothing.
    explicit FormPlaces(std::string_view key = "Software\\Brannoch\\Kestrune\\Dialogs");

    // Nothing where there is none that makes sense.
    [[nodiscard]] std::optional<FormPlace> place_of(std::string_view form) const;
    // What cannot be kept is lost; nobody has to know.
    void keep(std::string_view form, const FormPlace& place) const;

  private:
    std::wstring key_;
};

}  // namespace kestrune::windows
