#pragma once

#include <optional>

#include "host/objects/HostObject.h"

namespace kestrune::host {

// A defined name. Every call fails with error 1004 once the name is deleted.
class NameObject final : public HostObject<NameObject> {
  public:
    static const MemberTable& members();

    NameObject(HostSession& session, Workbook& workbook, std::string stored_name, std::optional<std::int32_t> sheet)
        : HostObject(session), workbook_(workbook), stored_name_(std::move(stored_name)), sheet_(sheet) {}

    [[nodiscard]] ObjectRef parent() const;  // the workbook, or the sheet that owns the name
    [[nodiscard]] std::string name() const;  // a sheet's with the sheet in front: "Sheet1!Rate"
    void set_name(const std::string& name);
    [[nodiscard]] std::int32_t index() const;
    [[nodiscard]] std::string refers_to() const;  // "=Sheet1!$A$1"
    void set_refers_to(const Value& meaning);
    [[nodiscard]] std::string refers_to_r1c1() const;
    void set_refers_to_r1c1(const Value& meaning);
    [[nodiscard]] ObjectRef refers_to_range() const;  // error 1004 when it stands for no cells
    [[nodiscard]] bool visible() const { return !get().hidden; }
    void set_visible(bool on);
    [[nodiscard]] std::string comment() const { return get().comment; }
    void set_comment(const std::string& text);
    void remove();

  private:
    [[nodiscard]] DefinedName& get() const;
    DefinedName& change() const;
    [[nodiscard]] Sheet* owner() const;

    Workbook& workbook_;
    std::string stored_name_;
    std::optional<std::int32_t> sheet_;
};

// What a name shall stand for, as it is stored: a formula without its "=", a range's external address, or a constant.
// A bad formula is error 1004. own: the sheet that addresses without one are on.
std::string meaning_of_name(std::string_view member, const Value& meaning, bool r1c1, Sheet* own);

}  // namespace kestrune::host
