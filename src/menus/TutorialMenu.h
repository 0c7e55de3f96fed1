#pragma once

#include <string>
#include <string_view>

#include "core/bridges/SharedState.h"

namespace kestrune::menus {

inline constexpr std::string_view tutorial_caption = "&BR Tutorial";

// Builds the tutorial menu behind the product's, or takes it away. One that is there stays as it is.
void show_tutorial(const core::SharedState& shared, bool show);

// Opens a lesson of the lessons folder (a path with a separator at its end) by its file name; without one, the lesson
// whose menu item was clicked. What is no lesson of the course, and one that cannot be opened, is told to the user.
void ShowLesson(const core::SharedState& shared, const std::string& folder, std::string file);

// Tells that a lesson could not be opened.
void ShowLessonErrMsg(const core::SharedState& shared);

}  // namespace kestrune::menus
