#include "brvblib/hotkeys/HotKeys.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "automation/AutomationError.h"
#include "brvblib/hotkeys/ClientCommands.h"
#include "brvblib/hotkeys/SuitableKey.h"
#include "keys/KeyText.h"

namespace kestrune::brvblib {
namespace {

using automation::AutomationError;
using automation::ObjectRef;
using automation::same_text;

[[noreturn]] void refuse(std::string_view what) {
    throw AutomationError(automation::hresult::exception, "HotKeys", what);
}

// A command's macro as Application.OnKey takes it. What has an argument stands in apostrophes of its own:
//   'My book.xla'!'mDOM.RunMacro "20"'      'My book.xla'!mDOM.BRRedo
std::string macro_text(const std::string& workbook, const std::string& module, const HotKeyCommand& command) {
    std::string text;
    if (!workbook.empty()) {
        text = "'";
        for (const char c : workbook) text.append(c == '\'' ? 2 : 1, c);
        text += "'!";
    }
    if (command.is_member) return text + module + "." + command.id;
    return text + fmt::format("'{}.RunMacro \"{}\"'", module, command.id);
}

}  // namespace

HotKeys::HotKeys(const Services& services)
    : trace_(services.trace), file_(services.files, services.xml, services.data_folder), binder_(services.trace) {}

keys::Key HotKeys::hot_key(const std::string& text) {
    const keys::KeyReading reading = keys::read_key(text);
    if (!reading.ok()) refuse(keys::problem_line(text, reading));
    if (const std::string_view why = unsuitable(reading.key); !why.empty()) {
        refuse(fmt::format("{}: {}", keys::key_text(reading.key), why));
    }
    return reading.key;
}

HotKeys::Client* HotKeys::find(std::string_view name) {
    const auto found =
        std::ranges::find_if(clients_, [&](const Client& client) { return same_text(client.name, name); });
    return found == clients_.end() ? nullptr : &*found;
}

void HotKeys::add_client(const std::string& name, const ObjectRef& callback) {
    if (Client* known = find(name))
        known->callback = callback;
    else
        clients_.push_back({name, callback, {}, {}, {}});
    refresh();
}

bool HotKeys::remove_client(std::string_view name) {
    const Client* known = find(name);
    if (!known) return false;
    // Held until the table is rid of it: the last reference to a call-back may end more than itself.
    const ObjectRef held = known->callback;
    std::erase_if(clients_, [&](const Client& client) { return &client == known; });
    if (clients_.empty()) release();
    refresh();
    return true;
}

ObjectRef HotKeys::callback(std::string_view name) const {
    for (const Client& client : clients_) {
        if (same_text(client.name, name)) return client.callback;
    }
    return nullptr;
}

void HotKeys::set_macros(const std::string& name, const std::string& workbook, const std::string& module) {
    Client* client = find(name);
    if (!client) refuse(fmt::format("{}: is not registered", name));
    client->workbook = workbook;
    client->module = module;
    refresh();
}

void HotKeys::add_member(const std::string& name, HotKeyCommand command) {
    Client* client = find(name);
    if (!client) refuse(fmt::format("{}: is not registered", name));
    command.client = client->name;
    command.is_member = true;
    std::erase_if(client->members, [&](const HotKeyCommand& known) { return same_text(known.id, command.id); });
    client->members.push_back(std::move(command));
    refresh();
}

void HotKeys::bind(const ObjectRef& application) {
    application_ = application;
    refresh();
}

const std::vector<HotKeyRow>& HotKeys::rows() {
    if (rows_known_) return rows_;
    load();
    automation::Value array;
    std::vector<HotKeyCommand> commands;
    // A copy, since a call-back may register or unregister somebody while it answers.
    for (const Client& client : std::vector(clients_)) {
        std::vector<HotKeyCommand> its = ask_for_commands(client.name, *client.callback, array, trace_);
        const std::string product = its.empty() ? client.name : its.front().product;
        std::ranges::move(its, std::back_inserter(commands));
        for (HotKeyCommand member : client.members) {
            member.product = product;
            commands.push_back(std::move(member));
        }
    }
    rows_ = assign_keys(std::move(commands), choices_);
    rows_known_ = true;
    return rows_;
}

const HotKeyChoices& HotKeys::choices() {
    load();
    return choices_;
}

const std::string& HotKeys::problem() {
    load();
    return problem_;
}

void HotKeys::load() {
    if (loaded_) return;
    loaded_ = true;
    reload();
}

void HotKeys::reload() {
    try {
        // Without a file what is known stays: the defaults at first, and what cannot be kept anywhere.
        if (auto found = file_.load()) choices_ = *std::move(found);
    } catch (const AutomationError& error) {
        choices_ = {};
        problem_ = error.description();
        trace_.skipped(problem_);
    }
    rows_known_ = false;
}

void HotKeys::keep(HotKeyChoices choices) {
    file_.save(choices);
    choices_ = std::move(choices);
    problem_.clear();
    refresh();
}

void HotKeys::refresh() {
    rows_known_ = false;
    if (application_) binder_.bind(application_, wanted());
}

HotKeyBinder::Macros HotKeys::wanted() {
    HotKeyBinder::Macros macros;
    const std::vector<HotKeyRow>& all = rows();
    if (!choices_.enabled) return macros;
    for (const keys::Key& key : choices_.swallowed) macros.emplace(key, "");
    for (const HotKeyRow& row : all) {
        const Client* client = find(row.command.client);
        if (!row.key || !client || client->module.empty()) continue;
        macros.insert_or_assign(*row.key, macro_text(client->workbook, client->module, row.command));
    }
    return macros;
}

void HotKeys::require_free(const keys::Key& key, const HotKeyCommand& command) {
    const HotKeyRow* owner = row_of_key(rows(), key);
    if (owner && !(same_text(owner->command.client, command.client) && same_text(owner->command.id, command.id))) {
        refuse(fmt::format("{}: is the key of {}; clear that first", keys::key_text(key), shown_name(owner->command)));
    }
    if (choices_.swallows(key)) {
        refuse(fmt::format("{}: is a key that is to do nothing; release it first", keys::key_text(key)));
    }
}

void HotKeys::set_enabled(bool enabled) {
    reload();
    HotKeyChoices next = choices_;
    next.enabled = enabled;
    keep(std::move(next));
}

void HotKeys::set_key(std::string_view id, const std::string& text, std::string_view client) {
    reload();
    const HotKeyCommand command = row_of_command(rows(), id, client).command;
    const keys::Key key = hot_key(text);
    require_free(key, command);
    HotKeyChoices next = choices_;
    next.forget(command.client, command.id);
    if (command.default_key != key) next.commands.push_back({command.client, command.id, key});
    keep(std::move(next));
}

void HotKeys::clear_key(std::string_view id, std::string_view client) {
    reload();
    const HotKeyCommand command = row_of_command(rows(), id, client).command;
    HotKeyChoices next = choices_;
    next.forget(command.client, command.id);
    if (command.default_key) next.commands.push_back({command.client, command.id, {}});
    keep(std::move(next));
}

void HotKeys::reset_key(std::string_view id, std::string_view client) {
    reload();
    const HotKeyCommand command = row_of_command(rows(), id, client).command;
    if (command.default_key) require_free(*command.default_key, command);
    HotKeyChoices next = choices_;
    next.forget(command.client, command.id);
    keep(std::move(next));
}

void HotKeys::reset_all() {
    reload();
    HotKeyChoices next;
    next.enabled = choices_.enabled;
    keep(std::move(next));
}

void HotKeys::change(const HotKeyChoices& from, const HotKeyChoices& to) {
    if (from == to) return;
    reload();
    HotKeyChoices next = choices_;
    if (from.enabled != to.enabled) next.enabled = to.enabled;
    for (const HotKeyChoice& choice : from.commands) {
        if (const HotKeyChoice* now = to.find(choice.client, choice.command); !now || !(*now == choice))
            next.forget(choice.client, choice.command);
    }
    for (const HotKeyChoice& choice : to.commands) {
        const HotKeyChoice* before = from.find(choice.client, choice.command);
        if (before && *before == choice) continue;
        next.forget(choice.client, choice.command);
        next.commands.push_back(choice);
    }
    for (const keys::Key& key : from.swallowed)
        if (!to.swallows(key)) std::erase(next.swallowed, key);
    for (const keys::Key& key : to.swallowed)
        if (!from.swallows(key) && !next.swallows(key)) next.swallowed.push_back(key);
    keep(std::move(next));
}

void HotKeys::swallow(const std::string& text) {
    reload();
    const keys::Key key = hot_key(text);
    require_free(key, {});
    HotKeyChoices next = choices_;
    next.swallowed.push_back(key);
    keep(std::move(next));
}

void HotKeys::unswallow(const std::string& text) {
    reload();
    const keys::Key key = hot_key(text);
    if (!choices_.swallows(key)) refuse(fmt::format("{}: is no key that is to do nothing", keys::key_text(key)));
    HotKeyChoices next = choices_;
    std::erase(next.swallowed, key);
    keep(std::move(next));
}

}  // namespace kestrune::brvblib
