#include "forms/MsgBox.h"

namespace kestrune::forms {

std::int32_t MsgBox(Presenter& presenter, std::string_view text, std::int32_t buttons, std::string_view caption) {
    return presenter.show({std::string(text), buttons, std::string(caption)});
}

}  // namespace kestrune::forms
