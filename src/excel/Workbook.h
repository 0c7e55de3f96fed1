#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "excel/Names.h"
#include "excel/Worksheets.h"

namespace kestrune::excel {

class Workbook : public Facade<Workbook> {
  public:
    static constexpr std::string_view class_name = "Workbook";
    static constexpr auto members = std::to_array<MemberRow>({
        {"Activate", Access::method},
        {"ActiveSheet", Access::get},
        {"Colors", Access::get_put, "Index"},
        {"DeleteNumberFormat", Access::method, "NumberFormat!"},
        {"FullName", Access::get},
        {"LinkSources", Access::method, "Type"},
        {"Name", Access::get},
        {"Names", Access::get},
        {"Path", Access::get},
        {"Save", Access::method},
        {"Saved", Access::get_put},
        {"Sheets", Access::get},
        {"Worksheets", Access::get},
    });
    using Facade::Facade;

    void Activate() const { call("Activate"); }
    // A worksheet or a chart; Nothing without a visible sheet.
    [[nodiscard]] ObjectRef ActiveSheet() const { return get<ObjectRef>("ActiveSheet"); }
    // The whole palette, BGR: an array of 56 colours.
    [[nodiscard]] Value Colors() const { return get<Value>("Colors"); }
    // One of the 56 colours of the palette, BGR. Fails outside 1 to 56.
    [[nodiscard]] std::int32_t Colors(Value index) const { return get<std::int32_t>("Colors", std::move(index)); }
    void Colors(std::int32_t index, std::int32_t color) const { put_at("Colors", index, color); }
    // Fails for a format of Excel's own. Cells that show in it are General afterwards.
    void DeleteNumberFormat(std::string_view code) const { call("DeleteNumberFormat", code); }
    [[nodiscard]] std::string FullName() const { return get<std::string>("FullName"); }
    // The workbooks that it links to, as paths (an array), or Empty; type: xlExcelLinks.
    [[nodiscard]] Value LinkSources(std::int32_t type) const { return call("LinkSources", type); }
    [[nodiscard]] std::string Name() const { return get<std::string>("Name"); }
    [[nodiscard]] excel::Names Names() const { return get<excel::Names>("Names"); }
    [[nodiscard]] std::string Path() const { return get<std::string>("Path"); }
    void Save() const { call("Save"); }
    [[nodiscard]] bool Saved() const { return get<bool>("Saved"); }
    void Saved(bool saved) const { put("Saved", saved); }
    // All sheets, charts and macro sheets among them, of which nothing but the name may be asked.
    [[nodiscard]] excel::Worksheets Sheets() const { return get<excel::Worksheets>("Sheets"); }
    [[nodiscard]] excel::Worksheets Worksheets() const { return get<excel::Worksheets>("Worksheets"); }
};

}  // namespace kestrune::excel
