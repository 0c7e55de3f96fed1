#include "host/objects/HostSession.h"

#include <algorithm>
#include <utility>

#include "automation/Text.h"
#include "host/objects/MacroCall.h"
#include "host/objects/Refusal.h"
#include "host/objects/SheetObject.h"
#include "host/objects/SheetOrder.h"

namespace kestrune::host {

using automation::Value;

namespace {

[[noreturn]] void refuse_macro(std::string_view name) {
    refuse("Application.Run", "Cannot run the macro '" + std::string(name) +
                                  "'. The macro may not be available in this workbook or all macros may be disabled.");
}

}  // namespace

std::string full_name(const Workbook& workbook) {
    if (workbook.path.empty()) return workbook.name;
    // A path keeps the separator of the system that it comes from.
    const char separator = workbook.path.find('\\') != std::string::npos ? '\\' : '/';
    return workbook.path + separator + workbook.name;
}

OpenWorkbook& HostSession::take_in(Workbook& workbook) {
    auto opened = std::make_unique<OpenWorkbook>();
    opened->model = &workbook;
    workbooks_.push_back(std::move(opened));
    return *workbooks_.back();
}

void HostSession::welcome(OpenWorkbook& newcomer) {
    raise_of(newcomer.model->path.empty() ? "NewWorkbook" : "WorkbookOpen", *newcomer.model);
    come_to_front(newcomer);
}

Workbook& HostSession::open(std::unique_ptr<Workbook> workbook) {
    OpenWorkbook& newcomer = take_in(*workbook);
    newcomer.owned = std::move(workbook);
    welcome(newcomer);
    return *newcomer.model;
}

void HostSession::open(Workbook& workbook) { welcome(take_in(workbook)); }

Workbook& HostSession::open_file(const std::string& path) {
    constexpr std::string_view member = "Workbooks.Open";
    auto stored = store ? store->open(path) : nullptr;
    if (!stored) {
        refuse(member, "Sorry, we couldn't find " + path + ". Is it possible it was moved, renamed or deleted?");
    }
    Workbook& model = stored->workbook();
    if (const OpenWorkbook* same = find(full_name(model))) {
        activate(*same->model);
        return *same->model;
    }
    if (find(model.name)) {
        refuse(member, "Sorry, Excel can't open two workbooks with the same name at the same time: " + model.name);
    }
    OpenWorkbook& newcomer = take_in(model);
    newcomer.stored = std::move(stored);
    welcome(newcomer);
    return model;
}

Workbook& HostSession::add_workbook() {
    auto fresh = std::make_unique<Workbook>();
    do fresh->name = "Book" + std::to_string(++added_);
    while (find(fresh->name));
    fresh->add_sheet("Sheet1");
    Workbook& workbook = open(std::move(fresh));
    opened(workbook).created = true;
    return workbook;
}

void HostSession::close(const Workbook& workbook) {
    if (!is_open(workbook)) refuse("Workbook.Close", "the workbook is not open");
    Workbook& model = *opened(workbook).model;
    if (heard()) {
        // A listener keeps the workbook open by setting Cancel.
        const auto told = raise("WorkbookBeforeClose", {workbook_object(*this, model), false});
        if (automation::to_boolean(told.positional[1]) || !is_open(workbook)) return;
    }
    if (active_ && active_->model == &workbook) raise_of("WorkbookDeactivate", model);
    const auto place =
        std::ranges::find_if(workbooks_, [&](const auto& candidate) { return candidate->model == &workbook; });
    if (place == workbooks_.end()) return;
    closed_.push_back(std::move(*place));
    workbooks_.erase(place);
    if (active_ != closed_.back().get()) return;
    active_ = workbooks_.empty() ? nullptr : workbooks_.back().get();
    if (active_) raise_of("WorkbookActivate", *active_->model);
}

void HostSession::come_to_front(OpenWorkbook& workbook) {
    if (active_ == &workbook) return;
    if (active_) raise_of("WorkbookDeactivate", *active_->model);
    active_ = &workbook;
    raise_of("WorkbookActivate", *workbook.model);
}

void HostSession::activate(const Workbook& workbook) { come_to_front(opened(workbook)); }

automation::Arguments HostSession::raise(std::string_view event, automation::Arguments arguments) {
    if (!heard()) return arguments;
    const Outside outside(*this);
    listeners_.tell(event, arguments);
    return arguments;
}

void HostSession::raise_of(std::string_view event, Workbook& workbook) {
    if (heard()) raise(event, {workbook_object(*this, workbook)});
}

void HostSession::raise_of(std::string_view event, Sheet& sheet) {
    if (heard()) raise(event, {sheet_object(*this, sheet)});
}

OpenWorkbook* HostSession::find(const Workbook& workbook) const {
    for (const auto& candidate : workbooks_) {
        if (candidate->model == &workbook) return candidate.get();
    }
    return nullptr;
}

OpenWorkbook* HostSession::find(std::string_view name) const {
    for (const auto& candidate : workbooks_) {
        if (automation::same_text(candidate->model->name, name)) return candidate.get();
        if (automation::same_text(full_name(*candidate->model), name)) return candidate.get();
    }
    return nullptr;
}

OpenWorkbook& HostSession::opened(const Workbook& workbook) const {
    OpenWorkbook* open = find(workbook);
    if (!open) refuse("Workbook", "the workbook is not open");
    return *open;
}

Value HostSession::run_macro(std::string_view name, std::span<const Value> arguments) {
    const MacroName wanted = MacroName::parse(name);
    const Macro* macro = nullptr;
    if (!wanted.workbook.empty()) {
        const OpenWorkbook* home = find(wanted.workbook);
        if (home) macro = macros.find(home->model->name, wanted.macro);
    } else {
        if (active_) macro = macros.find(active_->model->name, wanted.macro);
        if (!macro) macro = macros.find({}, wanted.macro);
        for (std::size_t i = 0; !macro && i < workbooks_.size(); ++i) {
            macro = macros.find(workbooks_[i]->model->name, wanted.macro);
        }
    }
    if (!macro) refuse_macro(name);
    // A copy, since the macro may replace itself.
    const Macro function = *macro;
    const Outside outside(*this);
    return function(arguments);
}

void HostSession::run_waiting(std::string_view member, std::optional<WaitingMacro>& waiting) {
    const auto macro = std::exchange(waiting, std::nullopt);
    if (!macro) refuse(member, "there is nothing that a macro could take back or repeat");
    run_call(macro->procedure);
}

Value HostSession::run_call(std::string_view text) {
    const auto call = MacroCall::parse(text);
    if (!call) refuse_macro(text);
    return run_macro(call->name, call->arguments);
}

Sheet* HostSession::active_sheet() const {
    if (!active_) return nullptr;
    const auto& sheets = active_->model->sheets();
    const std::int32_t position = active_->model->active_sheet;
    if (position < 0 || position >= static_cast<std::int32_t>(sheets.size())) return nullptr;
    return sheets[static_cast<std::size_t>(position)].get();
}

bool HostSession::activate(Sheet& sheet) {
    if (sheet.visibility != Visibility::Visible) return false;
    const bool moved = bring_up(sheet);
    activate(sheet.workbook());
    if (moved) raise_of("SheetActivate", sheet);
    return true;
}

void HostSession::leave_hidden(Workbook& workbook) {
    const auto& sheets = workbook.sheets();
    const auto count = static_cast<std::int32_t>(sheets.size());
    const std::int32_t active = workbook.active_sheet;
    // The next sheet to the right, and at the end the last one to the left.
    for (std::int32_t distance = 0; distance < count; ++distance) {
        const std::int32_t position = active + distance < count ? active + distance : count - 1 - distance;
        Sheet& sheet = *sheets[static_cast<std::size_t>(position)];
        if (sheet.visibility != Visibility::Visible) continue;
        if (bring_up(sheet) && active_ && active_->model == &workbook) raise_of("SheetActivate", sheet);
        return;
    }
}

bool HostSession::bring_up(Sheet& sheet) {
    Workbook& workbook = sheet.workbook();
    const std::int32_t position = position_of(sheet);
    if (workbook.active_sheet == position) return false;
    workbook.active_sheet = position;
    workbook.active_sheet_changed = true;
    return true;
}

}  // namespace kestrune::host
