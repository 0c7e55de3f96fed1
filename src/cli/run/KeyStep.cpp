#include "cli/run/KeyStep.h"

#include <fmt/format.h>

#include "automation/Conversion.h"
#include "brvblib/CommandTexts.h"
#include "cli/Failure.h"
#include "core/CommandTable.h"
#include "host/objects/MacroCall.h"
#include "keys/KeyText.h"

namespace kestrune::cli {
namespace {

// What a key's macro is called: the command whose number it is given, else the macro's own name.
std::string name_of(const std::string& macro) {
    const auto call = host::MacroCall::parse(macro);
    if (!call) return macro;
    if (call->arguments.empty()) return call->name.substr(call->name.rfind('.') + 1);
    const core::Command* command = core::resolve(call->arguments.front(), automation::Trace{}).command;
    if (!command) return macro;
    return std::string(brvblib::command_texts[static_cast<std::size_t>(command->number)].name);
}

}  // namespace

KeyReport run_key_step(OpenWorkbook& book, const keys::Key& key) {
    using Effect = host::KeyPress::Effect;
    KeyReport report{keys::key_text(key), {}, true};
    const auto bound = book.session().bound_keys.find(key);
    if (bound != book.session().bound_keys.end()) report.did = name_of(bound->second);
    const host::KeyPress press = book.press(key);
    switch (press.effect) {
        case Effect::Bound:
            report.ran = !(press.answer == automation::Value(false));
            if (!report.ran) report.did += ": a command may not run now";
            break;
        case Effect::Swallowed:
            report.ran = false;
            report.did = "nothing: the key is to do nothing";
            break;
        case Effect::Excel:
            report.did = press.what;
            break;
        case Effect::Unknown:
            throw Failure(
                press.what.empty()
                    ? fmt::format("key:{}: no command has the key, and Excel does nothing with it", report.key)
                    : fmt::format("key:{}: Excel {}, which needs a screen or a person", report.key, press.what));
    }
    return report;
}

}  // namespace kestrune::cli
