#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune::cli {

// Changes of whole rows, or of whole columns, gathered from the first to the last: neighbours with the same
// change become one.
class LineChanges {
  public:
    void add(std::int32_t first, std::int32_t last, std::string_view property, const std::string& before,
             const std::string& after) {
        if (before == after) return;
        for (auto line = lines_.rbegin(); line != lines_.rend(); ++line) {
            if (line->property == property && line->last == first - 1 && line->before == before &&
                line->after == after) {
                line->last = last;
                return;
            }
            if (line->last < first - 1) break;
        }
        lines_.push_back({first, last, std::string(property), before, after});
    }

    struct Line {
        std::int32_t first, last;
        std::string property, before, after;
    };
    [[nodiscard]] const std::vector<Line>& lines() const { return lines_; }

  private:
    std::vector<Line> lines_;  // by where they begin
};

}  // namespace kestrune::cli
