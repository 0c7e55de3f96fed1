#include "brxllib/FormatParts.h"

#include <algorithm>
#include <optional>
#include <span>
#include <utility>

#include "brxllib/autocolor/ClassReader.h"
#include "brxllib/autocolor/Parting.h"
#include "brxllib/autocolor/Rectangles.h"
#include "excel/Worksheet.h"
#include "formula/A1.h"

namespace kestrune::brxllib {
namespace {

using automation::Value;
using formula::Area;

// What lies over what.
enum class Layer : std::uint8_t { Columns, Rows, Cells };

struct Group {
    Layer layer;
    Value value;
    std::vector<Area> areas;
};

class Parter {
  public:
    Parter(const excel::Range& range, FormatReader read) : sheet_(range.Worksheet()), read_(read) {}

    void add(const std::vector<Area>& areas) {
        for (const Area& area : areas) part(area, nullptr);
        if (!torn_ || !layered_) return;
        // A cell that differs within itself is in no part, and nothing below it may be written.
        layered_ = false;
        groups_.clear();
        for (const Area& area : areas) part(area, nullptr);
    }

    [[nodiscard]] std::vector<FormatPart> parts() {
        std::ranges::stable_sort(groups_, {}, &Group::layer);
        std::vector<FormatPart> parts;
        for (const Group& group : groups_) {
            for (std::span<const Area> left = group.areas; !left.empty();) {
                AddressText address = address_of(left);
                left = left.subspan(address.areas);
                parts.push_back({std::move(address.text), group.value});
            }
        }
        return parts;
    }

  private:
    // below: what the cells under the area have already, where something covers all of them.
    void part(const Area& area, const Value* below) {
        if (layered_ && area.whole_columns() && used().last_row < formula::max_rows) {
            visit({used().last_row + 1, area.first_column, area.last_row, area.last_column},
                  [&](Area strip, const Value& value) {
                      strip.first_row = 1;
                      keep(Layer::Columns, value, strip);
                      strip.last_row = used().last_row;
                      part(strip, &value);
                  });
        } else if (layered_ && area.whole_rows() && used().last_column < formula::max_columns) {
            visit({area.first_row, used().last_column + 1, area.last_row, area.last_column},
                  [&](Area strip, const Value& value) {
                      strip.first_column = 1;
                      if (!below || value != *below) keep(Layer::Rows, value, strip);
                      strip.last_column = used().last_column;
                      part(strip, &value);
                  });
        } else {
            visit(area, [&](const Area& cells, const Value& value) {
                if (!below || value != *below) keep(Layer::Cells, value, cells);
            });
        }
    }

    template <class Visit>
    void visit(const Area& area, Visit&& visit) {
        visit_uniform_parts(
            area,
            [&](const Area& part) {
                Value value = read_(sheet_.Range(formula::area_text(part)));
                if (part.single_cell() && value.is(Value::Kind::Null)) torn_ = true;
                return value;
            },
            visit);
    }

    void keep(Layer layer, const Value& value, const Area& area) {
        auto known = std::ranges::find_if(
            groups_, [&](const Group& group) { return group.layer == layer && group.value == value; });
        if (known == groups_.end()) known = groups_.insert(known, {layer, value, {}});
        known->areas.push_back(area);
    }

    const Area& used() {
        if (!used_) used_ = areas_of(sheet_.UsedRange()).front();
        return *used_;
    }

    excel::Worksheet sheet_;
    FormatReader read_;
    std::optional<Area> used_;
    bool layered_ = true;
    bool torn_ = false;  // a single cell answered Null
    std::vector<Group> groups_;
};

}  // namespace

std::vector<FormatPart> format_parts(const excel::Range& range, FormatReader read) {
    Parter parter(range, read);
    parter.add(areas_of(range));
    return parter.parts();
}

}  // namespace kestrune::brxllib
