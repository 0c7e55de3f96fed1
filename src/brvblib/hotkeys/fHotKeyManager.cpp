#include "brvblib/hotkeys/fHotKeyManager.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <functional>
#include <set>

#include "automation/AutomationError.h"
#include "automation/Text.h"
#include "brvblib/hotkeys/HotKeyPage.h"
#include "brvblib/hotkeys/SuitableKey.h"
#include "forms/MsgBox.h"
#include "keys/ExcelKeys.h"
#include "keys/KeyText.h"

namespace kestrune::brvblib {
namespace {

using automation::AutomationError;
using forms::ControlDesign;
using forms::Event;
using forms::Kind;
using forms::ListColumn;
using forms::Place;
using forms::Stretch;

constexpr auto columns =
    std::to_array<ListColumn>({{"Command", 170}, {"Key", 90}, {"Group", 100}, {"How it has the key", 110}});

constexpr auto own_controls = std::to_array<ControlDesign>({
    {.name = "lblSearch", .caption = "Search:", .accelerator = 'S'},
    {.name = "txtSearch",
     .kind = Kind::Text,
     .place = Place::Column,
     .stretch = Stretch::Across,
     .tip = "Words of a command's name, group or description, or a key such as Ctrl+Shift+4",
     .width = 240},
    {.name = "lstCommands",
     .kind = Kind::List,
     .stretch = Stretch::Both,
     .width = 480,
     .height = 160,
     .columns = columns},
    {.name = "lblCommand", .stretch = Stretch::Across, .width = 480, .height = 24},
    {.name = "lblKey", .caption = "Press the new key:", .accelerator = 'P'},
    {.name = "txtKey",
     .kind = Kind::Text,
     .place = Place::Column,
     .tip = "Press the key that the chosen command is to have; Delete empties the box",
     .width = 110,
     .takes_keys = true},
    {.name = "btnAssign", .kind = Kind::Push, .caption = "Assign", .accelerator = 'g', .place = Place::Beside},
    {.name = "btnRemove",
     .kind = Kind::Push,
     .caption = "Remove Key",
     .accelerator = 'v',
     .place = Place::Beside,
     .tip = "The chosen command has no key any more"},
    {.name = "btnReset",
     .kind = Kind::Push,
     .caption = "Reset",
     .accelerator = 'R',
     .place = Place::Beside,
     .tip = "The chosen command has the key again that it came with"},
    {.name = "lblMeaning", .stretch = Stretch::Across, .width = 480, .height = 24},
    {.name = "ckbEnabled", .kind = Kind::Check, .caption = "Hot keys are on", .accelerator = 'H'},
    {.name = "btnResetAll",
     .kind = Kind::Push,
     .caption = "Reset All",
     .accelerator = 'e',
     .tip = "Every command has the key again that it came with"},
    {.name = "btnCopy",
     .kind = Kind::Push,
     .caption = "Copy List",
     .accelerator = 'C',
     .place = Place::Beside,
     .tip = "Puts the commands that are listed on the clipboard"},
    {.name = "btnPrint",
     .kind = Kind::Push,
     .caption = "Print List",
     .accelerator = 'L',
     .place = Place::Beside,
     .tip = "Opens a page of all keys, from which they can be printed"},
});

constexpr auto closing_controls = std::to_array<ControlDesign>({
    {.name = "btnOK", .kind = Kind::Push, .caption = "OK", .role = forms::Role::Default},
    {.name = "btnCancel", .kind = Kind::Push, .caption = "Cancel", .place = Place::Beside, .role = forms::Role::Cancel},
    {.name = "btnApply", .kind = Kind::Push, .caption = "Apply", .accelerator = 'A', .place = Place::Beside},
});

constexpr auto controls = forms::joined(own_controls, closing_controls);

constexpr forms::FormDesign form_design{.name = "fHotKeyManager",
                                        .caption = "Hot Key Manager",
                                        .controls = controls,
                                        .sizable = true,
                                        .width = 500,
                                        .height = 400};

std::string key_of(const HotKeyRow& row) { return row.key ? keys::key_text(*row.key) : std::string(); }

bool holds(std::string_view text, std::string_view word) {
    return !std::ranges::search(text, word, std::ranges::equal_to(), automation::lower, automation::lower).empty();
}

// Whether a command has all the words somewhere.
bool is_sought(const HotKeyRow& row, std::string_view sought) {
    const HotKeyCommand& command = row.command;
    const std::string all = fmt::format("{} {} {} {} {} {}", command.name, command.group, command.description,
                                        command.product, key_of(row), command.id);
    for (std::string_view rest = automation::trimmed(sought); !rest.empty();) {
        const std::size_t blank = rest.find(' ');
        if (!holds(all, rest.substr(0, blank))) return false;
        rest = blank == std::string_view::npos ? std::string_view() : automation::trimmed(rest.substr(blank));
    }
    return true;
}

bool same_command(const HotKeyCommand& one, const HotKeyCommand& other) {
    return automation::same_text(one.client, other.client) && automation::same_text(one.id, other.id);
}

}  // namespace

fHotKeyManager::fHotKeyManager(const Services& services, HotKeys& keys, std::string title)
    : Form(form_design), services_(services), keys_(keys), title_(std::move(title)) {
    on(Event::Initialize, [this](auto&) { UserForm_Initialize(); });
    on("txtSearch", Event::Change, [this](auto&) { list(); });
    on("lstCommands", Event::Click, [this](auto&) { show_chosen(); });
    on("lstCommands", Event::DblClick, [this](auto&) { SetFocus("txtKey"); });
    on("txtKey", Event::Change, [this](auto&) { txtKey_Change(); });
    on("btnAssign", Event::Click, [this](auto&) { static_cast<void>(assign()); });
    on("btnRemove", Event::Click, [this](auto&) { btnRemove_Click(); });
    on("btnReset", Event::Click, [this](auto&) { btnReset_Click(); });
    on("btnResetAll", Event::Click, [this](auto&) { btnResetAll_Click(); });
    on("btnCopy", Event::Click, [this](auto&) { btnCopy_Click(); });
    on("btnPrint", Event::Click, [this](auto&) { btnPrint_Click(); });
    on("ckbEnabled", Event::Click, [this](auto&) { edited_.enabled = (*this)["ckbEnabled"].Checked(); });
    on("btnApply", Event::Click, [this](auto&) { static_cast<void>(apply()); });
    on("btnCancel", Event::Click, [this](auto&) { Unload(); });
    on("btnOK", Event::Click, [this](auto&) {
        if (apply()) Unload();
    });
}

void fHotKeyManager::UserForm_Initialize() {
    if (!title_.empty()) Caption(title_ + " -- " + Caption());
    for (const HotKeyRow& row : keys_.rows()) commands_.push_back(row.command);
    opened_ = edited_ = keys_.choices();
    (*this)["ckbEnabled"].Checked(edited_.enabled);
    list();
    if (!keys_.problem().empty()) tell(keys_.problem());
}

void fHotKeyManager::list() {
    const HotKeyRow* const before = chosen();
    const std::string client = before ? before->command.client : "";
    const std::string command = before ? before->command.id : "";
    rows_ = assign_keys(commands_, edited_);
    std::set<std::string, automation::TextLess> products;
    for (const HotKeyCommand& each : commands_) products.insert(each.product);
    listed_.clear();
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const HotKeyRow& row = rows_[i];
        if (!is_sought(row, (*this)["txtSearch"].Text())) continue;
        listed_.push_back(i);
        const std::string group =
            products.size() > 1 ? fmt::format("{}: {}", row.command.product, row.command.group) : row.command.group;
        lines.push_back(fmt::format("{}\t{}\t{}\t{}", row.command.name, key_of(row), group, status_text(rows_, row)));
    }
    (*this)["lstCommands"].List(std::move(lines));
    choose(client, command);
    show_chosen();
}

const HotKeyRow* fHotKeyManager::chosen() const {
    const std::int32_t index = (*this)["lstCommands"].ListIndex();
    return index < 0 || static_cast<std::size_t>(index) >= listed_.size()
               ? nullptr
               : &rows_[listed_[static_cast<std::size_t>(index)]];
}

void fHotKeyManager::choose(std::string_view client, std::string_view command) {
    std::int32_t index = listed_.empty() ? -1 : 0;
    for (std::size_t i = 0; i < listed_.size(); ++i) {
        const HotKeyCommand& each = rows_[listed_[i]].command;
        if (each.client == client && each.id == command) index = static_cast<std::int32_t>(i);
    }
    (*this)["lstCommands"].ListIndex(index);
}

void fHotKeyManager::show_chosen() {
    const HotKeyRow* row = chosen();
    const auto of_default = [&] {
        return row->command.default_key ? "  It comes with " + keys::key_text(*row->command.default_key) + "."
                                        : "  It comes without a key.";
    };
    (*this)["lblCommand"].Caption(row ? row->command.description + of_default() : "No command has these words.");
    (*this)["btnRemove"].Enabled(row && (row->key || row->status == HotKeyRow::Status::Conflict));
    (*this)["btnReset"].Enabled(row && edited_.find(row->command.client, row->command.id));
    (*this)["txtKey"].Enabled(row != nullptr);
    txtKey_Change();
}

// Says what the key does so far, before anybody decides.
void fHotKeyManager::txtKey_Change() {
    const HotKeyRow* row = chosen();
    const std::string& typed = (*this)["txtKey"].Text();
    std::string meaning;
    bool good = false;
    if (row && !automation::trimmed(typed).empty()) {
        try {
            const keys::Key key = HotKeys::hot_key(typed);
            const std::string text = keys::key_text(key);
            good = row->key != key;
            const HotKeyRow* owner = row_of_key(rows_, key);
            const std::string_view in_excel = keys::excel_meaning(key);
            if (owner == row)
                meaning = fmt::format("{} is its key.", text);
            else if (owner)
                meaning = fmt::format("{} is the key of {}.", text, shown_name(owner->command));
            else if (edited_.swallows(key))
                meaning = fmt::format("{} does nothing, as you wanted it.", text);
            else
                meaning = fmt::format("No command has {}.", text);
            if (!in_excel.empty()) meaning += fmt::format("  In Excel it {}.", in_excel);
            if (may_type(key)) meaning += "  With AltGr it may type a character.";
        } catch (const AutomationError& error) {
            meaning = error.description() + ".";
        }
    }
    (*this)["lblMeaning"].Caption(meaning);
    (*this)["btnAssign"].Enabled(good);
}

void fHotKeyManager::set_choice(const HotKeyCommand& command, const std::optional<keys::Key>& key) {
    edited_.forget(command.client, command.id);
    if (key != command.default_key) edited_.commands.push_back({command.client, command.id, key});
}

bool fHotKeyManager::assign() {
    const HotKeyRow* row = chosen();
    if (!row || automation::trimmed((*this)["txtKey"].Text()).empty()) return true;
    const keys::Key key = HotKeys::hot_key((*this)["txtKey"].Text());
    const HotKeyRow* owner = row_of_key(rows_, key);
    if (owner && !same_command(owner->command, row->command)) {
        const auto answer =
            forms::MsgBox(services_.presenter,
                          fmt::format("{} is the key of {}.  Do you wish to give it to {}?", keys::key_text(key),
                                      shown_name(owner->command), shown_name(row->command)),
                          forms::vbYesNo | forms::vbQuestion, title_);
        if (answer != forms::vbYes) return false;
        set_choice(owner->command, std::nullopt);
    }
    std::erase(edited_.swallowed, key);
    set_choice(row->command, key);
    (*this)["txtKey"].Text("");
    list();
    return true;
}

void fHotKeyManager::btnRemove_Click() {
    if (const HotKeyRow* row = chosen()) set_choice(row->command, std::nullopt);
    list();
}

void fHotKeyManager::btnReset_Click() {
    const HotKeyRow* row = chosen();
    if (!row) return;
    edited_.forget(row->command.client, row->command.id);
    list();
}

void fHotKeyManager::btnResetAll_Click() {
    const auto answer =
        forms::MsgBox(services_.presenter, "Do you wish to give every command the key again that it came with?",
                      forms::vbYesNo | forms::vbQuestion, title_);
    if (answer != forms::vbYes) return;
    edited_.commands.clear();
    edited_.swallowed.clear();
    list();
}

// The listed commands as a spreadsheet takes them: a line each, parted by tabs.
std::string fHotKeyManager::list_text() const {
    std::string text = "Command\tKey\tGroup\tDescription\r\n";
    for (const std::size_t place : listed_) {
        const HotKeyRow& row = rows_[place];
        text += fmt::format("{}\t{}\t{}\t{}\r\n", row.command.name, key_of(row), row.command.group,
                            row.command.description);
    }
    return text;
}

void fHotKeyManager::btnCopy_Click() {
    if (!services_.presenter.copy(list_text())) tell("The list could not be put on the clipboard.");
}

void fHotKeyManager::btnPrint_Click() {
    try {
        if (!services_.files || !services_.desktop) return tell("There is nothing here that shows a page.");
        const std::string path = services_.data_folder + "HotKeys.html";
        services_.files->write(path, hot_key_page(rows_));
        services_.desktop->open(path);
    } catch (const AutomationError& error) {
        tell(error.description());
    }
}

bool fHotKeyManager::apply() {
    try {
        if (!assign()) return false;
        keys_.change(opened_, edited_);
    } catch (const AutomationError& error) {
        tell(error.description());
        return false;
    }
    opened_ = edited_ = keys_.choices();
    list();
    return true;
}

void fHotKeyManager::tell(const std::string& line) const {
    forms::MsgBox(services_.presenter, line, forms::vbOKOnly | forms::vbExclamation, title_);
}

}  // namespace kestrune::brvblib
