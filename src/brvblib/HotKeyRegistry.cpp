#include "brvblib/HotKeyRegistry.h"

#include <string>
#include <utility>
#include <vector>

#include "brvblib/hotkeys/HotKeys.h"
#include "brvblib/hotkeys/fHotKeyManager.h"
#include "keys/ExcelKeys.h"
#include "keys/KeyText.h"

namespace kestrune::brvblib {

using automation::Array;
using automation::MemberTable;
using automation::method;
using automation::ObjectRef;
using automation::read_only;
using automation::Value;

namespace {

std::string text_of(const std::optional<keys::Key>& key) { return key ? keys::key_text(*key) : std::string(); }

std::string meaning_of(const std::optional<keys::Key>& key) {
    return key ? std::string(keys::excel_meaning(*key)) : std::string();
}

keys::Key key_of(const std::string& text) {
    const keys::KeyReading reading = keys::read_key(text);
    if (reading.ok()) return reading.key;
    throw automation::AutomationError(automation::hresult::exception, "HotKeys", keys::problem_line(text, reading));
}

}  // namespace

void HotKeyRegistry::register_callback(const std::string& client_name, const ObjectRef& callback) {
    automation::to_required_object(callback);
    library_->hot_key_clients.insert(client_name);
    keys().add_client(client_name, callback);
}

bool HotKeyRegistry::unregister_callback(const std::string& client_name) {
    library_->hot_key_clients.erase(client_name);
    return keys().remove_client(client_name);
}

ObjectRef HotKeyRegistry::callback(const std::string& client_name) const { return keys().callback(client_name); }

void HotKeyRegistry::set_macros(const std::string& client_name, const std::string& workbook,
                                const std::string& module) {
    keys().set_macros(client_name, workbook, module);
}

void HotKeyRegistry::add_macro(const std::string& client_name, const std::string& macro, const std::string& name,
                               const std::string& description, const std::string& key, const std::string& group) {
    HotKeyCommand command{.id = macro, .name = name, .description = description, .group = group};
    if (!key.empty()) command.default_key = HotKeys::hot_key(key);
    keys().add_member(client_name, std::move(command));
}

void HotKeyRegistry::bind() {
    automation::to_required_object(library_->application);
    keys().bind(library_->application);
}

Array HotKeyRegistry::table() {
    const std::vector<HotKeyRow>& rows = keys().rows();
    constexpr std::int32_t columns = 10;
    Array table({1, static_cast<std::int32_t>(rows.size())}, {1, columns});
    auto place = table.elements().begin();
    for (const HotKeyRow& row : rows) {
        const HotKeyCommand& command = row.command;
        for (const std::string& text :
             {command.client, command.product, command.id, command.name, command.description, command.group,
              text_of(row.key), text_of(command.default_key), status_text(rows, row), meaning_of(row.key)}) {
            *place++ = text;
        }
    }
    return table;
}

std::string HotKeyRegistry::key(const std::string& command, const OptionalText& client_name) {
    return text_of(row_of_command(keys().rows(), command, client_name.value_or("")).key);
}

std::int32_t HotKeyRegistry::owner(const std::string& key) {
    const std::vector<HotKeyRow>& rows = keys().rows();
    const HotKeyRow* row = row_of_key(rows, key_of(key));
    return row ? static_cast<std::int32_t>(row - rows.data()) + 1 : 0;
}

void HotKeyRegistry::set_key(const std::string& command, const std::string& key, const OptionalText& client_name) {
    keys().set_key(command, key, client_name.value_or(""));
}

void HotKeyRegistry::clear_key(const std::string& command, const OptionalText& client_name) {
    keys().clear_key(command, client_name.value_or(""));
}

void HotKeyRegistry::reset_key(const std::string& command, const OptionalText& client_name) {
    keys().reset_key(command, client_name.value_or(""));
}

Array HotKeyRegistry::swallowed() {
    const std::vector<keys::Key>& swallowed = keys().choices().swallowed;
    Array texts(Array::Bound{1, static_cast<std::int32_t>(swallowed.size())});
    for (std::size_t i = 0; i < swallowed.size(); ++i) texts.elements()[i] = keys::key_text(swallowed[i]);
    return texts;
}

std::string HotKeyRegistry::normal_key(const std::string& key) const { return keys::key_text(HotKeys::hot_key(key)); }

std::string HotKeyRegistry::excel_meaning(const std::string& key) const {
    return std::string(keys::excel_meaning(key_of(key)));
}

bool HotKeyRegistry::run_key(const std::string& key) {
    const HotKeyRow* row = row_of_key(keys().rows(), key_of(key));
    if (!row || row->command.is_member || !keys().choices().enabled) return false;
    // Held, since a command may end in its client being unregistered.
    const ObjectRef callback = keys().callback(row->command.client);
    return automation::to_boolean(automation::call(*callback, "RunMacro", {automation::to_integer(row->command.id)}));
}

void HotKeyRegistry::show_manager() {
    if (keys().rows().empty()) return;
    const std::string title = library_->clients.empty() ? std::string() : library_->clients.begin()->second.title;
    fHotKeyManager(library_->services, keys(), title).Show(library_->services.presenter);
}

const MemberTable& HotKeyRegistry::members() {
    using R = HotKeyRegistry;
    static constexpr auto rows = automation::member_rows(
        method<&R::register_callback>("RegisterCallback", 1, "ClientName, Callback"),
        method<&R::unregister_callback>("UnregisterCallback", 2, "ClientName"),
        method<&R::callback>("Callback", 3, "ClientName"),
        automation::property<&R::product, &R::set_product>("Product", 4),
        method<&R::set_macros>("SetMacros", 5, "ClientName, Workbook, Module"),
        method<&R::add_macro>("AddMacro", 6, "ClientName, Macro, Name, Description, Key, Group"),
        method<&R::bind>("Bind", 7), method<&R::unbind>("Unbind", 8),
        automation::property<&R::enabled, &R::set_enabled>("Enabled", 9), read_only<&R::table>("Table", 10),
        read_only<&R::key>("Key", 11, "Command, [ClientName]"), read_only<&R::owner>("Owner", 12, "Key"),
        method<&R::set_key>("SetKey", 13, "Command, Key, [ClientName]"),
        method<&R::clear_key>("ClearKey", 14, "Command, [ClientName]"),
        method<&R::reset_key>("ResetKey", 15, "Command, [ClientName]"), method<&R::reset_all_keys>("ResetAllKeys", 16),
        method<&R::swallow>("Swallow", 17, "Key"), method<&R::unswallow>("Unswallow", 18, "Key"),
        read_only<&R::swallowed>("Swallowed", 19), read_only<&R::normal_key>("NormalKey", 20, "Key"),
        read_only<&R::excel_meaning>("ExcelMeaning", 21, "Key"), read_only<&R::problem>("Problem", 22),
        read_only<&R::path>("Path", 23), method<&R::run_key>("RunKey", 24, "Key"),
        method<&R::show_manager>("ShowManager", 25));
    static constexpr MemberTable table("HotKeyRegistry", rows);
    return table;
}

}  // namespace kestrune::brvblib
