#pragma once

#include <deque>
#include <optional>
#include <string_view>
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

    // Every message shown so far.
    [[nodiscard]] const std::vector<Message>& messages() const { return messages_; }

  private:
    MsgBoxResult answer_to(const Message& message) override;

    AnswerPolicy policy_;
    std::deque<MsgBoxResult> queue_;
    std::vector<Message> messages_;
};

}  // namespace kestrune::forms
