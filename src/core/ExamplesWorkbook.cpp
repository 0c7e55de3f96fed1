#include "core/ExamplesWorkbook.h"

#include <fmt/format.h>

#include "automation/ResumeNext.h"
#include "core/Folders.h"
#include "core/bridges/Product.h"
#include "excel/Application.h"
#include "forms/MsgBox.h"

namespace kestrune::core {
namespace {

using automation::ResumeNext;

constexpr std::string_view file_name = "Kestrune Examples.xls";

// The open workbook of that name; Nothing, without a word, when there is none.
excel::Workbook open_examples(const excel::Application& application) {
    const automation::Trace nobody;
    excel::Workbook workbook;
    ResumeNext(nobody).assign(workbook, [&] { return application.Workbooks().Item(file_name); });
    return workbook;
}

void go_to_start(const SharedState& shared, const excel::Application& application, const excel::Workbook& examples,
                 std::string_view topic) {
    const ResumeNext attempt(shared.trace);
    excel::Range start;
    attempt.assign(start, [&] {
        const std::string bookmark = fmt::format("bbr.kestrune.{}.start.ebr", topic);
        return excel::Range(examples.Names().Item(bookmark).RefersToRange());
    });
    if (!start) return;
    attempt([&] { application.Goto(start); });
    attempt([&] { start.Worksheet().Activate(); });
}

}  // namespace

std::string examples_full_name(const SharedState& shared) { return files_folder(shared).append(file_name); }

void show_examples_workbook(SharedState& shared, std::string_view topic) {
    const ResumeNext attempt(shared.trace);
    const excel::Application application(shared.application);
    excel::Workbook examples = open_examples(application);
    const bool was_open = static_cast<bool>(examples);
    if (!was_open) {
        attempt.assign(examples, [&] { return application.Workbooks().Open(examples_full_name(shared)); });
    }
    if (!examples) {
        attempt([&] {
            forms::MsgBox(shared.presenter, shared.general().message(Text::ExamplesNotFound).append(file_name),
                          forms::vbOKOnly, product_title);
        });
        return;
    }
    attempt([&] { application.Run(fmt::format("'{}'!mPublic.{}", file_name, was_open ? "UpdateWorkbook" : "Init")); });
    if (!topic.empty()) go_to_start(shared, application, examples, topic);
}

}  // namespace kestrune::core
