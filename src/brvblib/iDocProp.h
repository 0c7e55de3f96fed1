#pragma once

#include <string>

#include "automation/MemberTable.h"

namespace kestrune::brvblib {

// The properties that a workbook carries about itself: "Title", "Author", "Comments" ...
class iDocProp : public automation::Served<iDocProp> {
  public:
    static const automation::MemberTable& members();

  private:
    // Fails as the workbook does, and with object-required for Nothing.
    [[nodiscard]] automation::Value value(const automation::ObjectRef& workbook, const std::string& name) const;
    void set_value(const automation::ObjectRef& workbook, const std::string& name, const automation::Value& value);
};

}  // namespace kestrune::brvblib
