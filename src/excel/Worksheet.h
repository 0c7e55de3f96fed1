#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "excel/ListObjects.h"
#include "excel/Names.h"
#include "excel/Outline.h"
#include "excel/Protection.h"
#include "excel/Range.h"
#include "excel/Shapes.h"

namespace kestrune::excel {

class Workbook;

class Worksheet : public Facade<Worksheet> {
  public:
    static constexpr std::string_view class_name = "Worksheet";
    static constexpr auto members = std::to_array<MemberRow>({
        {"Activate", Access::method},
        {"Cells", Access::get},
        {"Index", Access::get},
        {"ListObjects", Access::get},
        {"Name", Access::get_put},
        {"Names", Access::get},
        {"Outline", Access::get},
        {"Parent", Access::get},
        {"ProtectContents", Access::get},
        {"Protection", Access::get},
        {"ProtectionMode", Access::get},
        {"Range", Access::get, "Cell1! Cell2"},
        {"Shapes", Access::get},
        {"StandardWidth", Access::get_put},
        {"UsedRange", Access::get},
        {"Visible", Access::get_put},
    });
    using Facade::Facade;

    // Whether an object is a worksheet: an active sheet may as well be a chart.
    static bool is(const ObjectRef& object) { return object && object->type_name() == class_name; }

    void Activate() const { call("Activate"); }
    [[nodiscard]] excel::Range Cells() const { return get<excel::Range>("Cells"); }
    [[nodiscard]] std::int32_t Index() const { return get<std::int32_t>("Index"); }  // from 1
    [[nodiscard]] excel::ListObjects ListObjects() const { return get<excel::ListObjects>("ListObjects"); }
    [[nodiscard]] std::string Name() const { return get<std::string>("Name"); }
    void Name(std::string_view name) const { put("Name", name); }
    [[nodiscard]] excel::Names Names() const { return get<excel::Names>("Names"); }
    [[nodiscard]] excel::Outline Outline() const { return get<excel::Outline>("Outline"); }
    [[nodiscard]] excel::Workbook Parent() const;
    [[nodiscard]] bool ProtectContents() const { return get<bool>("ProtectContents"); }
    [[nodiscard]] excel::Protection Protection() const { return get<excel::Protection>("Protection"); }
    // Whether a protected sheet lets macros do everything.
    [[nodiscard]] bool ProtectionMode() const { return get<bool>("ProtectionMode"); }
    // By address or defined name ("B2:C5,E7").
    [[nodiscard]] excel::Range Range(std::string_view address) const { return get<excel::Range>("Range", address); }
    [[nodiscard]] excel::Shapes Shapes() const { return get<excel::Shapes>("Shapes"); }
    [[nodiscard]] double StandardWidth() const { return get<double>("StandardWidth"); }  // characters
    void StandardWidth(double width) const { put("StandardWidth", width); }
    [[nodiscard]] excel::Range UsedRange() const { return get<excel::Range>("UsedRange"); }
    [[nodiscard]] std::int32_t Visible() const { return get<std::int32_t>("Visible"); }  // XlSheetVisibility
    void Visible(std::int32_t visible) const { put("Visible", visible); }
};

}  // namespace kestrune::excel
