#include "forms/ScriptedPresenter.h"

#include <algorithm>
#include <array>

#include "automation/Text.h"
#include "forms/Form.h"

namespace kestrune::forms {
namespace {

struct PolicyRow {
    std::string_view word;
    // From the button meant to the last resort; every button set offers one of them.
    std::array<MsgBoxResult, 4> wanted;
};

// In the order of AnswerPolicy.
constexpr std::array<PolicyRow, 4> policies{{
    {"ok", {vbOK, vbYes, vbIgnore, vbCancel}},
    {"cancel", {vbCancel, vbNo, vbAbort, vbOK}},
    {"yes", {vbYes, vbOK, vbIgnore, vbCancel}},
    {"no", {vbNo, vbCancel, vbAbort, vbOK}},
}};

bool offers(std::int32_t buttons, MsgBoxResult answer) {
    const auto offered = choices(buttons);
    return std::ranges::find(offered, answer) != offered.end();
}

}  // namespace

std::optional<AnswerPolicy> answer_policy(std::string_view word) {
    for (std::size_t i = 0; i < policies.size(); ++i) {
        if (automation::same_text(policies[i].word, word)) return static_cast<AnswerPolicy>(i);
    }
    return std::nullopt;
}

MsgBoxResult policy_answer(AnswerPolicy policy, std::int32_t buttons) {
    for (const MsgBoxResult wanted : policies[static_cast<std::size_t>(policy)].wanted) {
        if (offers(buttons, wanted)) return wanted;
    }
    return safe_choice(buttons);
}

MsgBoxResult ScriptedPresenter::answer_to(const Message& message) {
    messages_.push_back(message);
    if (!queue_.empty()) {
        const MsgBoxResult answer = queue_.front();
        queue_.pop_front();
        if (offers(message.buttons, answer)) return answer;
    }
    return policy_answer(policy_, message.buttons);
}

void ScriptedPresenter::work(Form& form) {
    forms_.push_back(form.Caption());
    if (!scripts_.empty()) {
        const FormScript script = std::move(scripts_.front());
        scripts_.pop_front();
        script(form);
    }
    const bool agrees = policy_ == AnswerPolicy::Ok || policy_ == AnswerPolicy::Yes;
    Control* button = form.button(agrees ? Role::Default : Role::Cancel);
    if (form.Visible() && button) form.click(*button);
    if (form.Visible()) form.press(Key::Escape);
}

std::optional<std::string> ScriptedPresenter::choose_file(const FileDialog& dialog) {
    file_dialogs_.push_back(dialog);
    if (files_.empty()) return std::nullopt;
    const auto answer = std::move(files_.front());
    files_.pop_front();
    return answer;
}

}  // namespace kestrune::forms
