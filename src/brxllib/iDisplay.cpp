#include "brxllib/iDisplay.h"

#include "brxllib/ArrayText.h"
#include "forms/MsgBox.h"

namespace kestrune::brxllib {

using automation::MemberTable;

void iDisplay::display_array(const automation::Value& array, const std::string& title) {
    if (!library_->around.presenter) {
        throw automation::AutomationError(automation::hresult::object_required, "iDisplay.DisplayArray",
                                          "nobody can be shown anything here");
    }
    forms::MsgBox(*library_->around.presenter, array_text(array), forms::vbOKOnly, title);
}

const MemberTable& iDisplay::members() {
    static constexpr auto rows =
        automation::member_rows(automation::method<&iDisplay::display_array>("DisplayArray", 1, "Array, Title"));
    static constexpr MemberTable table("iDisplay", rows);
    return table;
}

}  // namespace kestrune::brxllib
