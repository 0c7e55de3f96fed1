#pragma once

#include <optional>
#include <vector>

#include "host/model/Hyperlink.h"
#include "host/objects/CellRange.h"
#include "host/objects/HostObject.h"

namespace kestrune::host {

// The links of a sheet, or those that touch a range. Counted from 1, in the order in which they were made.
class HyperlinksObject final : public HostObject<HyperlinksObject> {
  public:
    static const MemberTable& members();

    HyperlinksObject(HostSession& session, Sheet& sheet) : HostObject(session), sheet_(sheet) {}
    explicit HyperlinksObject(CellRange cells)
        : HostObject(cells.session()), sheet_(cells.sheet()), cells_(std::move(cells)) {}

    [[nodiscard]] ObjectRef parent() const;
    [[nodiscard]] std::int32_t count() const { return static_cast<std::int32_t>(list().size()); }
    [[nodiscard]] ObjectRef item(std::int32_t index) const;
    [[nodiscard]] ObjectRef new_enum() const;

  private:
    [[nodiscard]] std::vector<const Hyperlink*> list() const;

    Sheet& sheet_;
    std::optional<CellRange> cells_;
};

}  // namespace kestrune::host
