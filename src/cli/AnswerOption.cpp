#include "cli/AnswerOption.h"

#include <fmt/format.h>

#include <iostream>

#include "cli/Failure.h"
#include "forms/ConsolePresenter.h"
#include "forms/ScriptedPresenter.h"

namespace kestrune::cli {
namespace {

// Answers by policy; a command line has no clipboard, so what is copied is written.
class UnattendedPresenter : public forms::ScriptedPresenter {
  public:
    using ScriptedPresenter::ScriptedPresenter;
    bool copy(const std::string& text) override {
        std::cerr << text;
        return true;
    }
};

}  // namespace

std::unique_ptr<forms::Presenter> presenter_for(const std::string& answer) {
    if (answer == "ask") return std::make_unique<forms::ConsolePresenter>(std::cin, std::cerr);
    const auto policy = forms::answer_policy(answer);
    if (!policy) throw UsageError(fmt::format("--answer {}: is not ok, cancel, yes, no or ask", answer));
    return std::make_unique<UnattendedPresenter>(*policy);
}

}  // namespace kestrune::cli
