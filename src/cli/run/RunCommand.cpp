#include "cli/run/RunCommand.h"

#include <fmt/format.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <optional>
#include <utility>

#include "automation/Conversion.h"
#include "automation/Text.h"
#include "brvblib/CommandTexts.h"
#include "cli/AddIn.h"
#include "cli/AnswerOption.h"
#include "cli/Failure.h"
#include "cli/MessageLine.h"
#include "cli/OpenWorkbook.h"
#include "cli/menu/Menus.h"
#include "cli/prefs/SettingsSession.h"
#include "cli/run/FillOption.h"
#include "cli/run/FormReport.h"
#include "cli/run/HistorySteps.h"
#include "cli/run/KeyStep.h"
#include "cli/run/MenuStep.h"
#include "cli/run/Select.h"
#include "cli/run/Step.h"

namespace kestrune::cli {
namespace {

using nlohmann::ordered_json;

struct ShownMessage {
    forms::Message message;
    forms::MsgBoxResult answer;
};

struct Cost {
    std::int64_t calls;  // automation calls
    double seconds;
};

// What something costs from here on.
class Meter {
  public:
    explicit Meter(const host::HostSession& session) : session_(session), calls_(session.calls()) {}
    [[nodiscard]] Cost read() const {
        const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start_;
        return {session_.calls() - calls_, passed.count()};
    }

  private:
    const host::HostSession& session_;
    std::int64_t calls_;
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

std::string lower_case(std::string_view text) {
    std::string out(text);
    for (char& c : out) c = automation::lower(c);
    return out;
}

// The ending that a file's content asks for. Excel opens no file whose ending says something else.
std::string_view ending_of(host::PackageKind kind) {
    switch (kind) {
        case host::PackageKind::Workbook:
            return ".xlsx";
        case host::PackageKind::MacroWorkbook:
            return ".xlsm";
        case host::PackageKind::Template:
            return ".xltx";
        case host::PackageKind::MacroTemplate:
            return ".xltm";
        case host::PackageKind::AddIn:
            return ".xlam";
    }
    return ".xlsx";
}

void check_output_name(const OpenWorkbook& book, const std::string& input, const std::string& output) {
    const std::string_view wanted = ending_of(book.kind());
    const auto ending = [](const std::string& path) {
        return lower_case(std::filesystem::path(path).extension().string());
    };
    // A workbook that came under another name may leave under it.
    if (ending(output) != wanted && ending(output) != ending(input)) {
        throw UsageError(fmt::format("{}: must end in {}, since that is what the workbook is", output, wanted));
    }
}

class Session {
  public:
    explicit Session(const RunOptions& options) : options_(options), presenter_(presenter_for(options.answer)) {
        for (const std::string& text : options.steps) steps_.push_back(parse_step(text));
        presenter_->listen([this](const forms::Message& message, forms::MsgBoxResult answer) {
            messages_.push_back({message, answer});
        });
        presenter_->listen_to_forms([this](const forms::Form& form) {
            form_lines_.push_back(form_line(form));
            form_facts_.push_back(form_json(form));
        });
        trace_.listen([this](std::string_view line) { skipped(line); });
    }

    void run() {
        OpenWorkbook book(options_.workbook);
        if (options_.output) check_output_name(book, options_.workbook, *options_.output);
        if (!steps_.empty()) {
            check_preferences();
            const Meter meter(book.session());
            AddIn add_in(book.application(), book.macros(), *presenter_, trace_, &book.formats(), options_.prefs);
            const Cost start = meter.read();
            for (const auto& [message, answer] : messages_) fmt::print(stderr, "{}\n", message_line(message, answer));
            apply_settings(add_in);
            ordered_json report = ordered_json::array();
            if (options_.timing) tell_start(start, report);
            const std::int32_t looked_at = book.model().active_sheet;
            for (std::size_t i = 0; i < steps_.size(); ++i) {
                ordered_json entry = run_step(book, add_in, steps_[i], options_.steps[i]);
                if (options_.json) report.push_back(std::move(entry));
            }
            for (const forms::FormFill& fill : presenter_->unused_fills()) {
                throw Failure(
                    fmt::format("--set {}.{}={}: no step showed this dialog", fill.form, fill.control, fill.value));
            }
            if (options_.json) fmt::print("{}\n", report.dump(1));
            // A selection says where to work; only a command moves a reader to another sheet.
            if (!moved_) book.model().active_sheet = looked_at;
        } else if (options_.json) {
            fmt::print("[]\n");
        }
        if ((options_.in_place || options_.output) && book.breaks_signature()) {
            if (!options_.force) {
                throw Failure(
                    fmt::format("{}: is digitally signed, and the signature does not hold for what was changed; "
                                "--force saves it without the signature",
                                options_.workbook));
            }
            book.give_up_signature();
        }
        if (options_.in_place) {
            book.save(options_.workbook);
        } else if (options_.output) {
            book.save(*options_.output);
        } else {
            fmt::print(stderr, "nothing saved: -o FILE or --in-place saves the workbook\n");
        }
    }

  private:
    // A file that somebody names has to be good: the add-in would go on with the defaults, and replace it.
    void check_preferences() const {
        if (!options_.prefs.empty()) static_cast<void>(SettingsSession(*presenter_, options_.prefs).load());
    }

    void apply_settings(AddIn& add_in) const {
        std::vector<std::string> settings;
        for (const std::string& option : options_.settings) {
            if (auto fill = fill_option(option)) {
                presenter_->fill_in(std::move(*fill));
            } else {
                settings.push_back(option);
            }
        }
        if (!settings.empty()) add_in.set_options(settings);
    }

    ordered_json run_step(OpenWorkbook& book, AddIn& add_in, const Step& step, const std::string& text) {
        try {
            return run_valid_step(book, add_in, step, text);
        } catch (const forms::FormFillError& error) {
            throw UsageError(fmt::format("--set {}", error.what()));
        }
    }

    ordered_json run_valid_step(OpenWorkbook& book, AddIn& add_in, const Step& step, const std::string& text) {
        messages_.clear();
        form_lines_.clear();
        form_facts_ = ordered_json::array();
        refusals_.clear();
        const std::int32_t looked_at = book.model().active_sheet;
        const std::string selected = selection_text(book);
        const Meter meter(book.session());
        bool ran = true;
        std::string what;
        HistoryReport history;
        std::optional<KeyReport> key;
        std::optional<MenuReport> menu;
        if (const auto* select = std::get_if<SelectStep>(&step)) {
            select_cells(book, select->target);
        } else if (const auto* request = std::get_if<RequestStep>(&step)) {
            what = brvblib::command_texts[static_cast<std::size_t>(request->command->number)].name;
            ran = automation::to_boolean(automation::call(add_in.commands(), "RunMacro", {request->request}));
            if (!ran) what += ": a command may not run now";
        } else if (const auto* member = std::get_if<MemberStep>(&step)) {
            if (member->member == "DeleteBRMenus") make_menus(book, add_in);
            automation::call(add_in.commands(), member->member);
            what = member->member;
        } else if (const auto* undo_or_redo = std::get_if<HistoryStep>(&step)) {
            history = run_history_step(add_in, *undo_or_redo);
            what = history.what;
            ran = history.ran;
        } else if (const auto* pressed = std::get_if<KeyStep>(&step)) {
            key = run_key_step(book, pressed->key);
            what = key->did;
            ran = key->ran;
        } else if (const auto* clicked = std::get_if<MenuStep>(&step)) {
            make_menus(book, add_in);
            menu = run_menu_step(book, clicked->path);
            what = fmt::format("{}: {}{}", menu->clicked, menu->runs, menu->ran ? "" : ": a command may not run now");
            ran = menu->ran;
        }
        const Cost cost = meter.read();
        if (std::holds_alternative<SelectStep>(step)) {
            what = fmt::format("selected {}", selection_text(book));
        } else if (!std::holds_alternative<HistoryStep>(step) && book.model().active_sheet != looked_at) {
            moved_ = true;
        }
        // Where the person is now, when the step took them elsewhere.
        std::string gone_to = std::holds_alternative<SelectStep>(step) ? selected : selection_text(book);
        if (gone_to == selected) gone_to.clear();
        tell_refusals(text);
        if (options_.json) {
            ordered_json entry = describe(text, ran, cost);
            if (!gone_to.empty()) entry["selection"] = gone_to;
            entry.update(history.facts);
            if (key) entry.update({{"key", key->key}, {"did", key->did}});
            if (menu) entry.update({{"clicked", menu->clicked}, {"did", menu->runs}});
            return entry;
        }
        if (!gone_to.empty()) what += fmt::format(", to {}", gone_to);
        tell(text, what, cost);
        for (const std::string& line : history.lines) fmt::print("             {}\n", line);
        return {};
    }

    // They cost more than most steps: the first one that is about them has them made. What a step then takes away stays
    // away.
    void make_menus(OpenWorkbook& book, AddIn& add_in) {
        if (!std::exchange(menus_made_, true)) Menus(book).make(add_in);
    }

    void skipped(std::string_view line) {
        if (options_.trace) fmt::print(stderr, "skipped: {}\n", line);
        refusals_.emplace_back(line);
    }

    // Commands pass over what the host refuses; a person should know all the same.
    void tell_refusals(const std::string& text) const {
        if (options_.trace || refusals_.empty()) return;
        const std::size_t more = refusals_.size() - 1;
        fmt::print(stderr, "{}: refused: {}{}\n", text, refusals_.front(),
                   more == 0 ? "" : fmt::format(" (and {} more; --trace tells all)", more));
    }

    void tell_start(Cost cost, ordered_json& report) const {
        if (options_.json) {
            report.push_back(describe("start", true, cost));
        } else {
            tell("start", "the add-in", cost);
        }
    }

    void tell(const std::string& text, const std::string& what, Cost cost) const {
        const std::string seconds = options_.timing ? fmt::format(", {:.3f} s", cost.seconds) : "";
        fmt::print("{:<12} {}  ({} call{}{})\n", text, what, cost.calls, cost.calls == 1 ? "" : "s", seconds);
        for (const std::string& line : form_lines_) fmt::print("             {}\n", line);
        for (const ShownMessage& shown : messages_) {
            fmt::print("             {}\n", message_line(shown.message, shown.answer));
        }
    }

    [[nodiscard]] ordered_json describe(const std::string& text, bool ran, Cost cost) const {
        ordered_json shown = ordered_json::array();
        for (const auto& [message, answer] : messages_) {
            shown.push_back({{"text", message.text},
                             {"caption", message.caption},
                             {"buttons", message.buttons},
                             {"answer", lower_case(forms::choice_name(answer))}});
        }
        ordered_json entry = {{"step", text}, {"ran", ran}, {"messages", shown}, {"calls", cost.calls}};
        if (options_.timing) entry["seconds"] = cost.seconds;
        if (!form_facts_.empty()) entry["forms"] = form_facts_;
        return entry;
    }

    const RunOptions& options_;
    std::unique_ptr<forms::Presenter> presenter_;
    automation::Trace trace_;
    std::vector<Step> steps_;
    std::vector<ShownMessage> messages_;   // of the step that runs
    std::vector<std::string> form_lines_;  // of the dialogs of the step that runs
    ordered_json form_facts_;
    std::vector<std::string> refusals_;  // of the step that runs
    bool moved_ = false;                 // a command went to another sheet
    bool menus_made_ = false;
};

}  // namespace

void run(const RunOptions& options) {
    if (options.output && options.in_place) throw UsageError("-o and --in-place do not go together");
    Session(options).run();
}

}  // namespace kestrune::cli
