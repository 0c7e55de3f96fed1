#include "brvblib/hotkeys/HotKeyFile.h"

#include <fmt/format.h>

#include "automation/AutomationError.h"
#include "automation/Conversion.h"
#include "brvblib/Paths.h"
#include "brvblib/hotkeys/SuitableKey.h"
#include "brvblib/xml/TypedValue.h"
#include "brvblib/xml/XmlFile.h"
#include "brvblib/xml/XmlWriter.h"
#include "keys/KeyText.h"

namespace kestrune::brvblib {
namespace {

using automation::AutomationError;

constexpr const char* identifier = "{D5224F24-631B-4985-845A-F753403C2ED7}";
constexpr const char* version = "1.0";
// Far more than keyboards have.
constexpr std::size_t most_entries = 10'000;

[[noreturn]] void refuse(std::string_view what) {
    throw AutomationError(automation::hresult::exception, "HotKeys", what);
}

std::string text_of(const XmlElement& element) {
    std::string text = element.text();
    const auto edge = [](std::size_t at) { return at == std::string::npos ? 0 : at; };
    text.erase(0, text.find_first_not_of(" \t\r\n"));
    text.erase(text.empty() ? 0 : edge(text.find_last_not_of(" \t\r\n")) + 1);
    return text;
}

std::string text_of_child(const XmlElement& element, std::string_view name) {
    const XmlElementRef child = element.child(name);
    if (!child) refuse(fmt::format("a {} has no {}", element.name(), name));
    return text_of(*child);
}

keys::Key key_of(const std::string& text) {
    const keys::KeyReading reading = keys::read_key(text);
    if (!reading.ok()) refuse(keys::problem_line(text, reading));
    if (const std::string_view why = unsuitable(reading.key); !why.empty()) refuse(fmt::format("{}: {}", text, why));
    return reading.key;
}

}  // namespace

HotKeyChoices HotKeyFile::read() const {
    const XmlDocument document = read_xml_file(*files_, *parser_, path(), identifier, "hot-key", version);
    HotKeyChoices choices;
    choices.enabled = automation::to_boolean(typed_value("boolean", text_of_child(*document.root, "Enabled")));
    const auto commands = document.root->children("Command");
    const auto swallowed = document.root->children("Swallowed");
    if (commands.size() + swallowed.size() > most_entries) refuse("holds more keys than there are");
    for (const XmlElementRef& element : commands) {
        HotKeyChoice choice{text_of_child(*element, "Client"), text_of_child(*element, "Number"), {}};
        if (const std::string key = text_of_child(*element, "Key"); !key.empty()) choice.key = key_of(key);
        if (choices.find(choice.client, choice.command)) {
            refuse(fmt::format("command {} of {} stands there twice", choice.command, choice.client));
        }
        choices.commands.push_back(std::move(choice));
    }
    for (const XmlElementRef& element : swallowed) choices.swallowed.push_back(key_of(text_of(*element)));
    return choices;
}

std::optional<HotKeyChoices> HotKeyFile::load() const {
    if (!files_ || !parser_ || folder_.empty() || !file_exists(path())) return std::nullopt;
    try {
        return read();
    } catch (const AutomationError& error) {
        const std::string& what = error.description();
        const std::string line = what.starts_with(path() + ": ") ? what : fmt::format("{}: {}", path(), what);
        std::string kept;
        try {
            kept = fmt::format("it is kept as {}", to_utf8(to_path(set_aside(path(), "unreadable")).filename()));
        } catch (const AutomationError& failure) {
            kept = failure.description();
        }
        refuse(fmt::format("{}; {}", line, kept));
    }
}

void HotKeyFile::save(const HotKeyChoices& choices) const {
    if (!files_ || !parser_ || folder_.empty()) refuse("there is nowhere to keep keys");
    XmlWriter writer("HotKeys", version, identifier);
    writer.leaf("Enabled", choices.enabled);
    for (const HotKeyChoice& choice : choices.commands) {
        writer.start_element("Command");
        writer.leaf("Client", choice.client);
        writer.leaf("Number", choice.command);
        writer.leaf("Key", choice.key ? keys::key_text(*choice.key) : std::string());
        writer.end_element("Command");
    }
    for (const keys::Key& key : choices.swallowed) writer.leaf("Swallowed", keys::key_text(key));
    create_folder(folder_);
    files_->write(path(), xml_file(writer.text()));
}

}  // namespace kestrune::brvblib
