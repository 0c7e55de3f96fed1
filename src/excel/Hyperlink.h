#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "excel/Facade.h"

namespace kestrune::excel {

class Range;

// A link to click.
class Hyperlink : public Facade<Hyperlink> {
  public:
    static constexpr std::string_view class_name = "Hyperlink";
    static constexpr auto members = std::to_array<MemberRow>({
        {"Address", Access::get_put},
        {"Range", Access::get},
        {"SubAddress", Access::get_put},
    });
    using Facade::Facade;

    // A file or web address; empty for a place in the workbook itself.
    [[nodiscard]] std::string Address() const { return get<std::string>("Address"); }
    // The cells that carry it; fails for the link of a shape.
    [[nodiscard]] excel::Range Range() const;
    // The place that it leads to in the file: "Sheet1!A1".
    [[nodiscard]] std::string SubAddress() const { return get<std::string>("SubAddress"); }
};

// The links of a sheet or of a range; positions from 1.
class Hyperlinks : public Facade<Hyperlinks> {
  public:
    static constexpr std::string_view class_name = "Hyperlinks";
    static constexpr auto members = std::to_array<MemberRow>({
        {"Count", Access::get},
        {"Item", Access::get, "Index!"},
    });
    using Facade::Facade;

    [[nodiscard]] std::int32_t Count() const { return get<std::int32_t>("Count"); }
    [[nodiscard]] Hyperlink Item(std::int32_t index) const { return get<Hyperlink>("Item", index); }
};

}  // namespace kestrune::excel
