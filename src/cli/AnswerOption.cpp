#include "cli/AnswerOption.h"

#include <fmt/format.h>

#include <iostream>

#include "cli/Failure.h"
#include "forms/ConsolePresenter.h"
#include "forms/ScriptedPresenter.h"

namespace kestrune::cli {

std::unique_ptr<forms::Presenter> presenter_for(const std::string& answer) {
    if (answer == "ask") return std::make_unique<forms::ConsolePresenter>(std::cin, std::cerr);
    const auto policy = forms::answer_policy(answer);
    if (!policy) throw UsageError(fmt::format("--answer {}: is not ok, cancel, yes, no or ask", answer));
    return std::make_unique<forms::ScriptedPresenter>(*policy);
}

}  // namespace kestrune::cli
