#pragma once

#include <cstdint>
#include <string>

#include "host/model/Hyperlink.h"
#include "host/objects/CellRange.h"
#include "host/objects/HostObject.h"

namespace kestrune::host {

// A link of a cell or of several.
class HyperlinkObject final : public HostObject<HyperlinkObject> {
  public:
    static const MemberTable& members();

    HyperlinkObject(HostSession& session, Sheet& sheet, const Hyperlink& link)
        : HostObject(session), cells_(session, sheet, {link.area}), link_(link) {}

    [[nodiscard]] ObjectRef range() const;
    [[nodiscard]] std::string address() const { return link_.address; }
    [[nodiscard]] std::string sub_address() const { return link_.sub_address; }
    [[nodiscard]] std::string screen_tip() const { return link_.screen_tip; }
    [[nodiscard]] std::string text_to_display() const;     // the cell's own text, however the link was made
    [[nodiscard]] std::string name() const;                // where it leads, as Excel names a link
    [[nodiscard]] std::int32_t type() const { return 0; }  // msoHyperlinkRange: links of shapes are not listed

  private:
    CellRange cells_;
    Hyperlink link_;
};

}  // namespace kestrune::host
