#pragma once

#include <memory>
#include <string>

#include "forms/Presenter.h"

namespace kestrune::cli {

// Who answers questions, by the option --answer: a script, or for "ask" the person at the terminal. UsageError for any
// other word.
std::unique_ptr<forms::Presenter> presenter_for(const std::string& answer);

}  // namespace kestrune::cli
