#include <charconv>
#include <memory>

#include "automation/AutomationError.h"
#include "automation/Conversion.h"
#include "automation/CreateObject.h"
#include "brvblib/register_library.h"
#include "brxllib/register_library.h"
#include "core/register_add_in.h"
#include "forms/ScriptedPresenter.h"
#include "fuzz/OneFile.h"
#include "fuzz/targets.h"
#include "host/objects/HostSession.h"
#include "native/PugiXmlParser.h"

namespace kestrune::fuzz {
namespace {

using automation::call;
using automation::get;
using automation::ObjectRef;
using automation::Value;

std::unique_ptr<host::Workbook> small_workbook() {
    auto book = std::make_unique<host::Workbook>();
    host::Sheet& sheet = book->add_sheet("One");
    for (std::int32_t row = 1; row <= 6; ++row) {
        sheet.set_content({row, 1}, host::CellContent::of("label"));
        sheet.set_content({row, 2}, host::CellContent::of(row * 1.5));
        sheet.set_formula({row, 3}, "B" + std::to_string(row) + "*2");
    }
    book->add_sheet("Two");
    return book;
}

// The add-in in front of the embedded Excel and a disk in memory.
struct Excel {
    Excel() {
        session->open(small_workbook());
        brvblib::register_library({.trace = trace,
                                   .presenter = presenter,
                                   .files = std::make_shared<OneFile>(),
                                   .xml = std::make_shared<native::PugiXmlParser>()});
        brxllib::register_library(trace, {.presenter = &presenter});
        core::register_add_in(presenter, trace);
        application = host::make_application(*session);
        entry = automation::CreateObject("KestruneXL.iPublic");
        call(*entry, "NewPublic", {application, get(*application, "ActiveWorkbook")});
        commands = automation::to_object(call(*entry, "NewGlobal"));
        expect(commands != nullptr, "the add-in starts", "");
    }
    ~Excel() {
        commands.reset();
        entry.reset();
        for (const char* name : {"KestruneXL.iPublic", "BRXLLib.iPublic", "BRVBLib.iPublic"})
            automation::unregister_class(name);
    }
    Excel(const Excel&) = delete;
    Excel& operator=(const Excel&) = delete;

    void select(const std::string& reference) const {
        try {
            call(*automation::to_object(get(*application, "Range", {reference})), "Select");
        } catch (const automation::AutomationError&) {
            return;  // no cells
        }
    }
    // How Excel is set up, which a command leaves as it found it.
    [[nodiscard]] std::string state() const {
        std::string text;
        for (const char* member : {"ScreenUpdating", "EnableEvents", "Calculation", "CutCopyMode"})
            text += automation::to_text(get(*application, member)) + " ";
        return text;
    }
    void run(const Value& request) const {
        const std::string before = state();
        static_cast<void>(automation::to_boolean(call(*commands, "RunMacro", {request})));
        expect(state() == before, "a request leaves Excel as it was set up", before, state());
    }

    automation::Trace trace;
    forms::ScriptedPresenter presenter;
    std::shared_ptr<host::HostSession> session = std::make_shared<host::HostSession>();
    ObjectRef application, entry, commands;
};

}  // namespace

// Lines, each a request ("20.3"), as text and as a number when it is one; "@" before a line selects cells instead.
void request(std::string_view lines) {
    const Excel excel;
    for (int left = 8; left > 0 && !lines.empty(); --left) {
        const std::size_t end = std::min(lines.find('\n'), lines.size());
        const std::string line(lines.substr(0, end));
        lines.remove_prefix(std::min(end + 1, lines.size()));
        if (line.starts_with('@')) {
            excel.select(line.substr(1));
            continue;
        }
        excel.run(line);
        double number = 0;
        const auto [last, failure] = std::from_chars(line.data(), line.data() + line.size(), number);
        if (failure == std::errc{} && last == line.data() + line.size()) excel.run(number);
    }
}

}  // namespace kestrune::fuzz
