#pragma once

#include <utility>

#include "forms/Presenter.h"
#include "windows/forms/FormPlaces.h"

namespace kestrune::windows {

// Shows real windows, before Excel's: modal to the window that is active in the calling thread, else to Excel's main
// one. Where Windows cannot show a box, it answers what commits to least.
class Win32Presenter final : public forms::Presenter {
  public:
    // places: where windows that a person resizes are remembered.
    explicit Win32Presenter(FormPlaces places = FormPlaces()) : places_(std::move(places)) {}

    [[nodiscard]] bool has_windows() const override { return true; }
    bool copy(const std::string& text) override;
    std::optional<std::string> choose_file(const forms::FileDialog& dialog) override;

  private:
    forms::MsgBoxResult answer_to(const forms::Message& message) override;
    void work(forms::Form& form) override;

    FormPlaces places_;
};

}  // namespace kestrune::windows
