#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "forms/FileDialog.h"
#include "forms/Message.h"

namespace kestrune::forms {

// What stands between the program and the person at it: real windows, a terminal, or a script.
class Presenter {
  public:
    using Listener = std::function<void(const Message& message, MsgBoxResult answer)>;

    Presenter() = default;
    Presenter(const Presenter&) = delete;
    Presenter& operator=(const Presenter&) = delete;
    virtual ~Presenter() = default;

    // Shows a message box and waits for its answer.
    MsgBoxResult show(const Message& message) {
        const MsgBoxResult answer = answer_to(message);
        if (listener_) listener_(message, answer);
        return answer;
    }

    // Asks for a file: its path, or nothing when the person cancels. A presenter without file dialogs cancels.
    virtual std::optional<std::string> choose_file(const FileDialog& dialog) {
        static_cast<void>(dialog);
        return std::nullopt;
    }

    // Is told of every message box after it was answered, whichever presenter showed it.
    void listen(Listener listener) { listener_ = std::move(listener); }

  private:
    virtual MsgBoxResult answer_to(const Message& message) = 0;

    Listener listener_;
};

}  // namespace kestrune::forms
