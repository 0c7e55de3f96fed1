#include <fmt/ranges.h>

#include <algorithm>
#include <charconv>
#include <memory>
#include <vector>

#include "automation/AutomationError.h"
#include "automation/CreateObject.h"
#include "brvblib/register_library.h"
#include "core/bridges/SharedState.h"
#include "forms/ScriptedPresenter.h"
#include "fuzz/OneFile.h"
#include "fuzz/targets.h"
#include "native/PugiXmlParser.h"
#include "settings/cUserSettings.h"
#include "settings/mReadWrite.h"

namespace kestrune::fuzz {
namespace {

using automation::AutomationError;
using settings::cUserSettings;

constexpr const char* path = "f.xml";

// The settings in front of the general library, over a file in memory.
struct Session {
    Session() {
        brvblib::register_library(
            {.trace = trace, .presenter = presenter, .files = file, .xml = std::make_shared<native::PugiXmlParser>()});
        shared.general_library = std::make_shared<core::diBRVBLib>(trace);
        expect(shared.general_library->Create(), "the library starts", "");
    }
    ~Session() { automation::unregister_class("BRVBLib.iPublic"); }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // The bytes of the file that settings make.
    std::string saved(const cUserSettings& settings) {
        settings::save_preferences(shared, settings, path);
        return file->bytes;
    }

    automation::Trace trace;
    forms::ScriptedPresenter presenter;
    std::shared_ptr<OneFile> file = std::make_shared<OneFile>();
    core::SharedState shared{presenter, trace};
};

// A file that has every kind of element, and few of each.
std::string small_file(Session& session) {
    cUserSettings settings;
    settings.LoadDefaults({.respected_cycle = "Respected", .today = automation::Date{46096}});
    while (settings.Styles->Count() > 2) settings.Styles->Remove(3);
    settings.SheetStyle = settings.Styles->Item(2);
    for (std::size_t i = 2; i < settings::style_cycle_count; ++i) {
        settings.cycle(static_cast<settings::StyleCycle>(i))->Styles->Clear();
    }
    return session.saved(settings);
}

// The file in pieces, each a tag and the text behind it; the first is the declaration.
std::vector<std::string> pieces_of(std::string_view file) {
    std::vector<std::string> pieces;
    for (const char c : file) {
        if (c == '<') pieces.emplace_back();
        pieces.back() += c;
    }
    return pieces;
}

bool is_end(std::string_view piece) { return piece.starts_with("</"); }

// How many pieces the element that begins at one has, its end included.
std::size_t length_of_element(const std::vector<std::string>& pieces, std::size_t from) {
    int depth = 0;
    for (std::size_t at = from; at < pieces.size(); ++at) {
        depth += is_end(pieces[at]) ? -1 : 1;
        if (depth <= 0) return at + 1 - from;
    }
    return pieces.size() - from;
}

// Does what a line says: a sign, the number of a piece, a blank and a text. = puts the text behind a tag, @ into it, +
// before it; - takes an element out, * doubles it, > moves it behind the next one.
void edit(std::vector<std::string>& pieces, std::string_view line) {
    if (line.empty()) return;
    std::size_t at = 0;
    const char* const line_end = line.data() + line.size();
    const auto [end, failure] = std::from_chars(line.data() + 1, line_end, at);
    if (failure != std::errc{} || at == 0 || at >= pieces.size()) return;
    const std::string text(end == line_end ? end : end + 1, line_end);
    std::string& piece = pieces[at];
    const auto first = pieces.begin() + static_cast<std::ptrdiff_t>(at);
    const auto last = first + static_cast<std::ptrdiff_t>(length_of_element(pieces, at));
    switch (line.front()) {
        case '=':
            piece = piece.substr(0, piece.find('>') + 1) + text;
            break;
        case '@':
            piece.insert(std::min(piece.find_first_of(" >"), piece.size()), text);
            break;
        case '+':
            piece = text + piece;
            break;
        case '-':
            pieces.erase(first, last);
            break;
        case '*': {
            const std::vector<std::string> element(first, last);
            pieces.insert(last, element.begin(), element.end());
            break;
        }
        case '>': {
            const std::size_t next = at + static_cast<std::size_t>(last - first);
            if (next < pieces.size())
                std::rotate(first, last, last + static_cast<std::ptrdiff_t>(length_of_element(pieces, next)));
            break;
        }
        default:
            break;
    }
}

std::string edited(const std::string& file, std::string_view edits) {
    std::vector<std::string> pieces = pieces_of(file);
    while (!edits.empty()) {
        const std::size_t end = std::min(edits.find('\n'), edits.size());
        edit(pieces, edits.substr(0, end));
        edits.remove_prefix(std::min(end + 1, edits.size()));
    }
    return fmt::format("{}", fmt::join(pieces, ""));
}

void check_file(Session& session, const std::string& bytes) {
    session.file->bytes = bytes;
    std::shared_ptr<cUserSettings> settings;
    try {
        settings = settings::load_preferences(session.shared, path);
    } catch (const AutomationError& error) {
        const std::string& why = error.description();
        expect(why.starts_with("f.xml: ") && why.size() > 7, "a refusal names the file and a reason", bytes, why);
        expect(why.find_first_of("\r\n") == std::string::npos, "a refusal is one line", bytes, why);
        expect(session.file->bytes == bytes, "a file that is refused stays as it is", bytes);
        return;
    }
    const std::string once = session.saved(*settings);
    expect(session.saved(*settings->Copy()) == once, "a copy is the same file", once, session.file->bytes);
    session.file->bytes = once;
    const auto again = settings::load_preferences(session.shared, path);
    expect(session.saved(*again) == once, "what was saved is read as it was", once, session.file->bytes);
}

}  // namespace

// Settings are read from whatever a person made of a file, or refused with a reason; what is read is kept.
void preferences(std::string_view edits) {
    Session session;
    static const std::string file = small_file(session);
    check_file(session, edited(file, edits));
}

}  // namespace kestrune::fuzz
