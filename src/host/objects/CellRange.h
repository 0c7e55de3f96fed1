#pragma once

#include <functional>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "automation/Value.h"
#include "formula/Edit.h"
#include "host/model/Workbook.h"
#include "host/objects/HostSession.h"

namespace kestrune::host {

// The cells that a served object stands for: areas of one sheet. Reads formats over all areas and
// changes them, both once for every distinct format, however many cells there are.
class CellRange : private HeldRange {
  public:
    CellRange(HostSession& session, Sheet& sheet, std::vector<Area> areas)
        : HeldRange(session.held_ranges), session_(&session), sheet_(&sheet), areas_(std::move(areas)) {}

    [[nodiscard]] HostSession& session() const { return *session_; }
    [[nodiscard]] Sheet& sheet() const { return *sheet_; }
    [[nodiscard]] Workbook& workbook() const { return sheet_->workbook(); }
    [[nodiscard]] StyleTable& styles() const { return sheet_->workbook().styles; }
    // Error 424 once all its cells have been deleted.
    [[nodiscard]] const std::vector<Area>& areas() const { return present(), areas_; }
    [[nodiscard]] const Area& first() const { return present(), areas_.front(); }

    // Rows or columns of a sheet have come or gone: every range of the session that somebody holds there follows.
    static void follow(HostSession& session, const Sheet& sheet, const formula::Edit& edit);

    // The distinct formats of all areas, that of the first cell first.
    [[nodiscard]] std::vector<StyleId> formats() const;

    // What read answers for every format; Null when the formats differ in it.
    template <class Read>
    [[nodiscard]] automation::Value uniform(Read&& read) const {
        std::optional<automation::Value> common;
        for (const StyleId id : formats()) {
            automation::Value answer = read(id);
            if (common && !(*common == answer)) return automation::Null{};
            common = std::move(answer);
        }
        return common.value_or(automation::Value());
    }

    // Replaces every format by map's answer. Refused on a protected sheet that does not allow it.
    void restyle(std::string_view member, const std::function<StyleId(StyleId)>& map) const;

    // Error 1004 when the sheet is protected and one of these cells is locked. Formatting may be allowed all the same.
    void require_format_allowed(std::string_view member) const;
    void require_content_allowed(std::string_view member) const;

    // Notes a change of the workbook.
    void changed() const { session_->changed(workbook()); }
    // The same for a change of values or formulas, of which Excel tells the world.
    void content_changed() const;

  private:
    void present() const;

    HostSession* session_;
    Sheet* sheet_;
    std::vector<Area> areas_;
};

}  // namespace kestrune::host
