#include "host/objects/MacroCall.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

#include "automation/Text.h"

namespace kestrune::host {
namespace {

using automation::trimmed;
using automation::Value;

// One argument, taken off the front of the list with the comma behind it.
std::optional<Value> take_argument(std::string_view& list) {
    std::optional<Value> value;
    if (list.starts_with('"')) {
        std::string text;
        std::size_t at = 1;
        for (; at < list.size(); ++at) {
            if (list[at] == '"' && !list.substr(at + 1).starts_with('"')) break;
            if (list[at] == '"') ++at;
            text += list[at];
        }
        if (at >= list.size()) return std::nullopt;
        list = trimmed(list.substr(at + 1));
        value = std::move(text);
    } else {
        const std::size_t end = std::min(list.find(','), list.size());
        const std::string_view word = trimmed(list.substr(0, end));
        list = list.substr(end);
        std::int32_t whole = 0;
        double number = 0;
        const auto reads = [&](auto& into) {
            const auto [stop, failure] = std::from_chars(word.data(), word.data() + word.size(), into);
            return failure == std::errc{} && stop == word.data() + word.size();
        };
        if (automation::same_text(word, "True"))
            value = true;
        else if (automation::same_text(word, "False"))
            value = false;
        else if (reads(whole))
            value = whole;
        else if (reads(number))
            value = number;
    }
    if (list.starts_with(','))
        list = trimmed(list.substr(1));
    else if (!list.empty())
        return std::nullopt;
    return value;
}

// Where the apostrophe stands that opens the part with the arguments; nothing when the text is a name alone.
std::optional<std::size_t> quoted_call(std::string_view text) {
    if (text.size() < 3 || !text.ends_with('\'')) return std::nullopt;
    const std::string_view mark = text.starts_with('\'') ? "'!'" : "!'";
    const std::size_t behind_book = text.find(mark);
    return behind_book == std::string_view::npos ? 0 : behind_book + mark.size() - 1;
}

}  // namespace

std::optional<MacroCall> MacroCall::parse(std::string_view text) {
    text = trimmed(text);
    const auto opening = quoted_call(text);
    if (!opening || text[*opening] != '\'') return MacroCall{std::string(text), {}};
    std::string inside;
    for (std::size_t at = *opening + 1; at + 1 < text.size(); ++at) {
        // Within the apostrophes one is written twice.
        if (text[at] == '\'' && text[at + 1] == '\'') ++at;
        inside += text[at];
    }
    const std::string_view call = trimmed(inside);
    const std::size_t blank = std::min(call.find(' '), call.size());
    MacroCall parsed{std::string(text.substr(0, *opening)).append(call.substr(0, blank)), {}};
    for (std::string_view rest = trimmed(call.substr(blank)); !rest.empty();) {
        auto argument = take_argument(rest);
        if (!argument) return std::nullopt;
        parsed.arguments.push_back(*std::move(argument));
    }
    return parsed;
}

}  // namespace kestrune::host
