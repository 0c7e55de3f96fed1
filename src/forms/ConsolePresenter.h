#pragma once

#include <iosfwd>

#include "forms/Presenter.h"

namespace kestrune::forms {

// Asks on a terminal: writes the question and its choices, reads a line. A choice is its name or the beginning of
// its name, a plain Enter the default. Asks again when it cannot make sense of the line; at the end of the input
// takes the answer that commits to least. A box with nothing to choose is only written.
//
// A form is written line by line, what can be changed in it with a number: "2" ticks or chooses what has that number,
// "3=12" enters a value, a button's caption or the beginning of it presses the button, a plain Enter the default one.
class ConsolePresenter : public Presenter {
  public:
    // Both streams outlive the presenter.
    ConsolePresenter(std::istream& input, std::ostream& output) : input_(input), output_(output) {}

    // A plain Enter takes the proposed name where there is one and cancels otherwise, as does the end of the input. A
    // file to open must be there; before one that is there is written over, it asks.
    std::optional<std::string> choose_file(const FileDialog& dialog) override;
    // A terminal has no clipboard: the text is written.
    bool copy(const std::string& text) override;

  private:
    [[nodiscard]] std::optional<std::string> next_line();
    MsgBoxResult answer_to(const Message& message) override;
    void work(Form& form) override;

    std::istream& input_;
    std::ostream& output_;
};

}  // namespace kestrune::forms
