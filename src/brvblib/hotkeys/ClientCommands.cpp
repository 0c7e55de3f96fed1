#include "brvblib/hotkeys/ClientCommands.h"

#include <fmt/format.h>

#include <algorithm>

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "brvblib/hotkeys/SuitableKey.h"
#include "keys/KeyText.h"

namespace kestrune::brvblib {
namespace {

using automation::Array;
using automation::ResumeNext;
using automation::Value;

enum Place : std::size_t { Name, Description, DefaultKey, Group, Topic, ChosenKey, SwitchedOff };

std::size_t entries_of(const Value& array) { return array.array() ? array.array()->elements().size() : 0; }

std::string text_at(const Array& entry, Place place) {
    return place < entry.elements().size() ? automation::to_text(entry.elements()[place]) : std::string();
}

// The key of a command as its client has it; nothing for a text that is no hot key.
std::optional<keys::Key> key_of(const std::string& text, const automation::Trace& trace) {
    if (text.empty()) return std::nullopt;
    const keys::KeyReading reading = keys::read_key(text);
    if (!reading.ok()) {
        trace.skipped(keys::problem_line(text, reading));
        return std::nullopt;
    }
    if (const std::string_view why = unsuitable(reading.key); !why.empty()) {
        trace.skipped(fmt::format("{}: {}", text, why));
        return std::nullopt;
    }
    return reading.key;
}

}  // namespace

std::vector<HotKeyCommand> ask_for_commands(const std::string& client, automation::Object& callback, Value& array,
                                            const automation::Trace& trace) {
    const ResumeNext attempt(trace);
    std::string product = client;
    attempt.assign(product, [&] { return automation::to_text(automation::get(callback, "BRProductName")); });
    const std::size_t before = entries_of(array);
    automation::Arguments arguments{array};
    if (!attempt([&] { callback.invoke("AddDefaultMacroArray", automation::Call::Method, arguments); })) return {};
    const Value& given = arguments.positional.front();
    const Array* entries = given.array();
    if (!entries || entries->dimensions() != 1 || entries->elements().size() < before) {
        trace.skipped(fmt::format("{}: gave no command array back", client));
        return {};
    }
    std::vector<HotKeyCommand> commands;
    for (std::size_t i = before; i < entries->elements().size(); ++i) {
        const std::string number = std::to_string(i - before);
        attempt([&] {
            const Array* entry = entries->elements()[i].array();
            if (!entry || entry->dimensions() != 1) {
                throw automation::AutomationError(automation::hresult::type_mismatch, client,
                                                  fmt::format("entry {} of the command array is no array", number));
            }
            const std::string chosen = text_at(*entry, ChosenKey);
            const bool off =
                entry->elements().size() > SwitchedOff && automation::to_boolean(entry->elements()[SwitchedOff]);
            commands.push_back(
                {client, product, number, text_at(*entry, Name), text_at(*entry, Description), text_at(*entry, Group),
                 off ? std::nullopt : key_of(chosen.empty() ? text_at(*entry, DefaultKey) : chosen, trace)});
        });
    }
    array = given;
    return commands;
}

}  // namespace kestrune::brvblib
