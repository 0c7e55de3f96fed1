#include "brvblib/iProduct.h"

#include <fmt/format.h>

#include <utility>

#include "automation/ResumeNext.h"
#include "brvblib/Messages.h"
#include "brvblib/Paths.h"
#include "forms/MsgBox.h"

namespace kestrune::brvblib {

using automation::MemberTable;
using automation::method;
using automation::Value;

namespace {

constexpr std::string_view help_file = "Kestrune Help.html";

}  // namespace

iProduct::iProduct(std::shared_ptr<Library> library)
    : library_(std::move(library)), bracket_(library_->services.trace) {}

void iProduct::register_client(const std::string& client_name, const std::string& product_name,
                               const std::string& title) {
    library_->clients.insert_or_assign(client_name, Client{product_name, title});
}

bool iProduct::show_examples_at_start() const {
    return automation::to_boolean(library_->services.products->value("ShowExamples"));
}

bool iProduct::allows_training() const {
    const Value installed = library_->services.products->value("TT");
    return installed.is(Value::Kind::Empty) || automation::to_boolean(installed);
}

Value iProduct::machine_value(const std::string& name) const { return library_->services.products->value(name); }

std::string_view iProduct::message(std::int32_t number, std::int32_t language) const {
    const auto text = language == english ? message_text(number) : std::nullopt;
    if (text) return *text;
    throw automation::AutomationError(automation::hresult::bad_index, "iProduct.Message",
                                      fmt::format("there is no message {} in language {}", number, language));
}

void iProduct::command_bracket(bool ended, const std::string&) {
    // One Excel, one screen: brackets of several products nest in each other.
    if (ended) {
        bracket_.end();
    } else {
        bracket_.begin(library_->application);
    }
}

std::string iProduct::data_folder() const {
    const std::string& folder = library_->services.data_folder;
    if (folder.empty()) {
        throw automation::AutomationError(automation::hresult::exception, "iProduct.DataFolder",
                                          "the user has no folder for data");
    }
    const automation::ResumeNext attempt(library_->services.trace);
    attempt([&] { create_folder(folder); });
    return folder;
}

void iProduct::show_help() const {
    constexpr std::int32_t help_missing = 3026;
    constexpr std::int32_t help_not_opened = 3027;
    const std::string path = library_->services.installation_folder + std::string(help_file);
    const auto tell = [&](std::int32_t number, std::string_view what) {
        const std::string title = library_->clients.empty() ? "" : library_->clients.begin()->second.title;
        forms::MsgBox(library_->services.presenter, std::string(message(number, english)).append(what),
                      forms::vbExclamation, title);
    };
    if (!file_exists(path)) return tell(help_missing, path);
    try {
        library_->desktop().open(path);
    } catch (const automation::AutomationError& error) {
        tell(help_not_opened, error.description());
    }
}

const MemberTable& iProduct::members() {
    static constexpr auto rows = automation::member_rows(
        method<&iProduct::register_client>("RegisterClient", 1, "ClientName, ProductName, Title"),
        method<&iProduct::show_examples_at_start>("ShowExamplesAtStart", 2),
        method<&iProduct::allows_training>("AllowsTraining", 3),
        method<&iProduct::machine_value>("MachineValue", 4, "Name"),
        method<&iProduct::command_bracket>("CommandBracket", 5, "Ended, Product"),
        method<&iProduct::message>("Message", 6, "Number, Language"), method<&iProduct::data_folder>("DataFolder", 7),
        method<&iProduct::show_help>("ShowHelp", 8));
    static constexpr MemberTable table("iProduct", rows);
    return table;
}

}  // namespace kestrune::brvblib
