#include "smart/CellGroups.h"

#include <algorithm>
#include <cstddef>

#include "automation/ResumeNext.h"
#include "excel/Application.h"

namespace kestrune::smart {
namespace {

using automation::ResumeNext;
using automation::Value;

// Excel takes no longer address.
constexpr std::size_t longest_address = 255;

void append_column(std::string& text, std::int32_t column) {
    if (column > 26) append_column(text, (column - 1) / 26);
    text += static_cast<char>('A' + (column - 1) % 26);
}

void append_cell(std::string& text, std::int32_t row, std::int32_t column) {
    append_column(text, column);
    text += std::to_string(row);
}

}  // namespace

std::string address_of(const Rectangle& rectangle) {
    std::string text;
    append_cell(text, rectangle.top, rectangle.left);
    if (rectangle.single_cell()) return text;
    text += ':';
    append_cell(text, rectangle.bottom, rectangle.right);
    return text;
}

void RectangleBuilder::add(std::int32_t row, std::int32_t column) {
    if (!row_.empty() && row_.back().top != row) end_row();
    if (!row_.empty() && row_.back().right == column - 1) {
        row_.back().right = column;
    } else {
        row_.push_back({row, column, row, column});
    }
}

void RectangleBuilder::end_row() {
    std::vector<Rectangle> next;
    for (Rectangle& part : row_) {
        const auto above = std::ranges::find_if(open_, [&](const Rectangle& one) {
            return one.bottom == part.top - 1 && one.left == part.left && one.right == part.right;
        });
        if (above != open_.end()) {
            part.top = above->top;
            open_.erase(above);
        }
        next.push_back(part);
    }
    done_.insert(done_.end(), open_.begin(), open_.end());
    open_ = std::move(next);
    row_.clear();
}

std::vector<Rectangle> RectangleBuilder::rectangles() && {
    end_row();
    end_row();
    return std::move(done_);
}

CellGroups::CellGroups(const core::SharedState& shared, const excel::Worksheet& sheet,
                       std::vector<Rectangle> rectangles)
    : shared_(shared), sheet_(sheet), rectangles_(std::move(rectangles)) {
    const ResumeNext attempt(shared.trace);
    attempt.assign(protected_, [&] { return sheet_.ProtectContents(); });
    attempt.assign(groups_, [&] { return groups_of(rectangles_); });
}

std::vector<CellGroups::Group> CellGroups::groups_of(std::span<const Rectangle> rectangles) const {
    const excel::Application application(shared_.application);
    std::vector<Group> groups;
    std::vector<excel::Range> parts;
    std::size_t first = 0;
    std::size_t begin_of_group = 0;
    std::string address;
    const auto end_part = [&](std::size_t end) {
        parts.push_back(sheet_.Range(address));
        address.clear();
        first = end;
    };
    const auto end_group = [&](std::size_t end) {
        groups.push_back({parts.size() == 1 ? parts.front() : application.Union(parts),
                          rectangles.subspan(begin_of_group, end - begin_of_group)});
        parts.clear();
        begin_of_group = end;
    };
    for (std::size_t i = 0; i < rectangles.size(); ++i) {
        const std::string next = address_of(rectangles[i]);
        if (!address.empty() && address.size() + 1 + next.size() > longest_address) {
            end_part(i);
            if (parts.size() == excel::Application::most_united) end_group(i);
        }
        address += (address.empty() ? "" : ",") + next;
    }
    if (!address.empty()) end_part(rectangles.size());
    if (!parts.empty()) end_group(rectangles.size());
    return groups;
}

void CellGroups::each(const std::function<void(const excel::Range& cells)>& statement) const {
    for (const Group& group : groups_) run(group, statement);
}

void CellGroups::put(const CellProperty& property, const Value& value) const {
    each([&](const excel::Range& cells) {
        if (property.get(cells) != value) property.set(cells, value);
    });
}

bool CellGroups::is_locked(const excel::Range& cells) const {
    if (!protected_) return false;
    Value locked;
    ResumeNext(shared_.trace).assign(locked, [&] { return cells.Locked(); });
    return locked == Value(true);
}

void CellGroups::run(const Group& group, const std::function<void(const excel::Range& cells)>& statement) const {
    const ResumeNext attempt(shared_.trace);
    const bool divisible = group.rectangles.size() > 1 || !group.rectangles.front().single_cell();
    if (!divisible || is_locked(group.cells)) {
        attempt([&] { statement(group.cells); });
        return;
    }
    const automation::Trace nobody;
    if (ResumeNext(nobody)([&] { statement(group.cells); })) return;
    attempt([&] {
        const std::size_t count = group.rectangles.size();
        if (count > 1) {
            for (const auto half : {group.rectangles.first(count / 2), group.rectangles.subspan(count / 2)}) {
                for (const Group& part : groups_of(half)) run(part, statement);
            }
            return;
        }
        Rectangle one = group.rectangles.front();
        Rectangle other = one;
        if (one.bottom > one.top) {
            one.bottom = one.top + (one.bottom - one.top) / 2;
            other.top = one.bottom + 1;
        } else {
            one.right = one.left + (one.right - one.left) / 2;
            other.left = one.right + 1;
        }
        for (const Rectangle& half : {one, other}) {
            run(Group{sheet_.Range(address_of(half)), {&half, 1}}, statement);
        }
    });
}

}  // namespace kestrune::smart
