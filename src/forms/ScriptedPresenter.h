#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/Presenter.h"

namespace kestrune::forms {

// How to answer when nobody is asked.
enum class AnswerPolicy { Ok, Cancel, Yes, No };

// "ok", "cancel", "yes", "no"; nothing for any other word.
std::optional<AnswerPolicy> answer_policy(std::string_view word);

// The offered answer that a policy means: the button of that name, or the one of the same sense where the box has
// other buttons. Never Retry, which would come back for ever.
MsgBoxResult policy_answer(AnswerPolicy policy, std::int32_t buttons);

// Answers without a person: first from a queue, then by policy.
class ScriptedPresenter : public Presenter {
  public:
    explicit ScriptedPresenter(AnswerPolicy policy = AnswerPolicy::Ok) : policy_(policy) {}

    // Answers the next box that is not spoken for; several queue up. Where the box does not offer the answer,
    // the policy decides.
    void answer_next(MsgBoxResult answer) { queue_.push_back(answer); }

    // Answers the next file dialog that is not spoken for with a path, or cancels it. With no answer left a dialog is
    // cancelled: there is no file that a script could mean.
    void choose_next(std::optional<std::string> path) { files_.push_back(std::move(path)); }
    std::optional<std::string> choose_file(const FileDialog& dialog) override;
    // Every file dialog shown so far.
    [[nodiscard]] const std::vector<FileDialog>& file_dialogs() const { return file_dialogs_; }

    bool copy(const std::string& text) override {
        clipboard_ = text;
        return true;
    }
    [[nodiscard]] const std::string& clipboard() const { return clipboard_; }

    // What a person would do with the next form that is not spoken for. When it is still shown afterwards, and for
    // every other form, the policy decides: its default button or its cancel button; a form that then stays is closed.
    using FormScript = std::function<void(Form& form)>;
    void work_next(FormScript script) { scripts_.push_back(std::move(script)); }
    // The captions of every form shown so far.
    [[nodiscard]] const std::vector<std::string>& forms() const { return forms_; }

    // Every message shown so far.
    [[nodiscard]] const std::vector<Message>& messages() const { return messages_; }

  protected:
    MsgBoxResult answer_to(const Message& message) override;

  private:
    void work(Form& form) override;

    AnswerPolicy policy_;
    std::deque<MsgBoxResult> queue_;
    std::vector<Message> messages_;
    std::deque<std::optional<std::string>> files_;
    std::vector<FileDialog> file_dialogs_;
    std::deque<FormScript> scripts_;
    std::string clipboard_;
    std::vector<std::string> forms_;
};

}  // namespace kestrune::forms
