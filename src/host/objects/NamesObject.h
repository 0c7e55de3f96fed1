#pragma once

#include "host/objects/HostObject.h"

namespace kestrune::host {

// The names of a workbook, those that its sheets own included, or of one sheet. Counted from 1.
class NamesObject final : public HostObject<NamesObject> {
  public:
    static const MemberTable& members();

    NamesObject(HostSession& session, Workbook& workbook) : HostObject(session), workbook_(workbook) {}
    NamesObject(HostSession& session, Sheet& sheet)
        : HostObject(session), workbook_(sheet.workbook()), sheet_(&sheet) {}

    [[nodiscard]] ObjectRef parent() const;
    [[nodiscard]] std::int32_t count() const { return static_cast<std::int32_t>(list().size()); }
    [[nodiscard]] ObjectRef item(const Value& index, const Value& index_local, const Value& refers_to) const;
    [[nodiscard]] ObjectRef new_enum() const;
    // A name that exists already in the same place is defined anew.
    ObjectRef add(const Value& name, const Value& refers_to, const Value& visible, const Value& macro_type,
                  const Value& shortcut_key, const Value& category, const Value& name_local,
                  const Value& refers_to_local, const Value& category_local, const Value& refers_to_r1c1,
                  const Value& refers_to_r1c1_local);

  private:
    [[nodiscard]] std::vector<const DefinedName*> list() const;
    [[nodiscard]] ObjectRef object_of(const DefinedName& name) const;

    Workbook& workbook_;
    Sheet* sheet_ = nullptr;
};

}  // namespace kestrune::host
