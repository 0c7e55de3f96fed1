#pragma once

#include "forms/Presenter.h"

namespace kestrune::windows {

// Shows real windows, before Excel's: modal to the window that is active in the calling thread, else to Excel's main
// one. Where Windows cannot show a box, it answers what commits to least.
class Win32Presenter final : public forms::Presenter {
  public:
    std::optional<std::string> choose_file(const forms::FileDialog& dialog) override;

  private:
    forms::MsgBoxResult answer_to(const forms::Message& message) override;
    void work(forms::Form& form) override;
};

}  // namespace kestrune::windows
