#pragma once

#include "host/objects/HostObject.h"

namespace kestrune::host {

// A named cell style.
class StyleObject final : public HostObject<StyleObject> {
  public:
    static const MemberTable& members();

    // position: among the workbook's named styles.
    StyleObject(HostSession& session, Workbook& workbook, std::uint32_t position)
        : HostObject(session), workbook_(workbook), position_(position) {}

    [[nodiscard]] const Workbook& home() const { return workbook_; }
    [[nodiscard]] std::uint32_t position() const { return position_; }
    [[nodiscard]] ObjectRef parent() const;
    [[nodiscard]] std::string name() const;
    [[nodiscard]] std::string number_format() const;

  private:
    [[nodiscard]] const NamedStyle& get() const;

    Workbook& workbook_;
    std::uint32_t position_;
};

}  // namespace kestrune::host
