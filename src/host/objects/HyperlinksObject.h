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
    // What the list was made of: links come, go and move with these.
    struct Seen {
        const Hyperlink* links = nullptr;
        std::size_t count = 0;
        std::size_t edits = 0;
        bool operator==(const Seen&) const = default;
    };
    [[nodiscard]] const std::vector<const Hyperlink*>& list() const;

    Sheet& sheet_;
    std::optional<CellRange> cells_;
    // Clients go through by number: the list is kept, or each number would cost all links.
    mutable Seen seen_{nullptr, static_cast<std::size_t>(-1), 0};
    mutable std::vector<const Hyperlink*> list_;
};

}  // namespace kestrune::host
