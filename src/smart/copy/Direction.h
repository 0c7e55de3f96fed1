#pragma once

#include <cstdint>
#include <string_view>

#include "core/bridges/Messages.h"
#include "core/bridges/Product.h"
#include "settings/SettingValues.h"
#include "smart/CellGroups.h"

namespace kestrune::smart {

// The two directions of Smart Copy: one selected line (a row, or a column) copied along those that follow it.
struct CopyDirection {
    bool down;  // rows are copied down; else columns right
    std::string_view title;
    std::string_view word;   // "down"
    std::string_view line;   // "row"
    std::string_view lines;  // "rows"
    std::string_view Line;   // "Row"
    settings::SmartCopyOptions settings::SettingValues::*options;
    core::Text needs_one_line;
    core::Text no_label;
    std::string_view no_label_caption;

    // A rectangle of lines, and of places along a line; both from 1 on.
    [[nodiscard]] Rectangle rectangle(std::int32_t first_line, std::int32_t first_place, std::int32_t last_line,
                                      std::int32_t last_place) const {
        return down ? Rectangle{first_line, first_place, last_line, last_place}
                    : Rectangle{first_place, first_line, last_place, last_line};
    }
};

inline constexpr CopyDirection copy_down{.down = true,
                                         .title = "Smart Copy Down",
                                         .word = "down",
                                         .line = "row",
                                         .lines = "rows",
                                         .Line = "Row",
                                         .options = &settings::SettingValues::SmartCopyDown,
                                         .needs_one_line = core::Text::DownNeedsOneRow,
                                         .no_label = core::Text::NoRowLabel,
                                         .no_label_caption = "Brannoch Kestrune -- Smart Copy Down"};

inline constexpr CopyDirection copy_right{.down = false,
                                          .title = "Smart Copy Right",
                                          .word = "right",
                                          .line = "column",
                                          .lines = "columns",
                                          .Line = "Column",
                                          .options = &settings::SettingValues::SmartCopyRight,
                                          .needs_one_line = core::Text::RightNeedsOneColumn,
                                          .no_label = core::Text::NoColumnLabel,
                                          .no_label_caption = core::product_title};

}  // namespace kestrune::smart
