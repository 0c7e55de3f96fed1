#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace kestrune::menus {

// A chapter (level 1), a section of it (2) or a lesson (3), which is a workbook in the lessons folder.
struct LessonRow {
    std::int32_t level = 1;
    std::string_view caption;
    std::string_view file = {};  // of a lesson
};

// The course, in the order of its menu.
std::span<const LessonRow> lesson_tree();

// Whether a text is the file name of a lesson, as the tree spells it.
bool is_lesson(std::string_view file);

}  // namespace kestrune::menus
