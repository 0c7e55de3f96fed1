#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "forms/FileDialog.h"
#include "forms/FormFill.h"
#include "forms/Message.h"

namespace kestrune::forms {

class Form;

// What stands between the program and the person at it: real windows, a terminal, or a script.
class Presenter {
  public:
    using Listener = std::function<void(const Message& message, MsgBoxResult answer)>;
    using FormListener = std::function<void(const Form& form)>;

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

    // Has a person work with an activated form until it is closed; Form::Show calls it. FormFillError when the form
    // does not take what is to stand in it.
    void present(Form& form);

    // Whether forms are windows here, which a person can resize where their design has it.
    [[nodiscard]] virtual bool has_windows() const { return false; }

    // Asks for a file: its path, or nothing when the person cancels. A presenter without file dialogs cancels.
    virtual std::optional<std::string> choose_file(const FileDialog& dialog) {
        static_cast<void>(dialog);
        return std::nullopt;
    }

    // Puts a text on the clipboard; false where there is none.
    virtual bool copy(const std::string& text) {
        static_cast<void>(text);
        return false;
    }

    // Is told of every message box after it was answered, and of every form after it was closed, whichever presenter
    // showed it.
    void listen(Listener listener) { listener_ = std::move(listener); }
    void listen_to_forms(FormListener listener) { form_listener_ = std::move(listener); }

    // What is to stand in the forms of a class whenever they are shown, before the person gets them.
    void fill_in(FormFill fill) { fills_.push_back({std::move(fill), false}); }
    // Those whose form has not been shown.
    [[nodiscard]] std::vector<FormFill> unused_fills() const;

  private:
    struct Planned {
        FormFill fill;
        bool used;
    };

    virtual MsgBoxResult answer_to(const Message& message) = 0;
    // May come back before the form is closed: it is closed by its window's means then. A presenter without forms has
    // nobody who could work with one.
    virtual void work(Form& form) { static_cast<void>(form); }

    Listener listener_;
    FormListener form_listener_;
    std::vector<Planned> fills_;
};

}  // namespace kestrune::forms
