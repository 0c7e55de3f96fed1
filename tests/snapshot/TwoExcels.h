#pragma once

#include <gmock/gmock.h>

#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "automation/Conversion.h"
#include "brxllib/undo/Snapshot.h"
#include "cli/diff/WorkbookDiff.h"
#include "excel/Workbook.h"
#include "host/objects/HostSession.h"

namespace kestrune::brxllib::undo {

using automation::Value;

// An Excel with one workbook of two sheets and two named styles besides Normal.
struct OneExcel {
    OneExcel() : application(host::make_application(session)) {
        auto fresh = std::make_unique<host::Workbook>();
        fresh->name = "Model.xlsx";
        fresh->add_sheet("Sheet1");
        fresh->add_sheet("Other Sheet");
        host::StyleTable& styles = fresh->styles;
        host::CellFormat input = styles.formats[0];
        host::Font blue;
        blue.color = host::Color::rgb(0xFF0000);
        input.font = styles.fonts.intern(blue);
        input.protection.locked = false;
        styles.named_styles.push_back({"Input", input});
        input.number_format = styles.intern_number_format("0.0%");
        input.alignment.horizontal = host::Horizontal::Center;
        styles.named_styles.push_back({"Share", input});
        model = &session.open(std::move(fresh));
    }
    [[nodiscard]] host::Sheet& sheet() const { return *model->sheets().front(); }
    [[nodiscard]] excel::Range cells(std::string_view address) const {
        return application.ActiveWorkbook().Worksheets().Item("Sheet1").Range(address);
    }
    [[nodiscard]] Snapshot take(std::string_view address, Aspects aspects = Aspects::all()) const {
        return *Snapshot::take(application, cells(address), aspects, std::numeric_limits<std::size_t>::max(), trace);
    }
    [[nodiscard]] bool still(const Snapshot& snapshot) const {
        return *snapshot.again(std::numeric_limits<std::size_t>::max(), trace) == snapshot;
    }

    host::HostSession session;
    excel::Application application;
    host::Workbook* model = nullptr;
    automation::Trace trace;
};

// What `kestrune diff` tells of two workbooks.
inline std::vector<std::string> differences(host::Workbook& before, host::Workbook& after) {
    std::vector<std::string> lines;
    cli::compare(before, after, false, [&](const cli::Change& change) {
        lines.push_back(change.place + " " + change.property + ": " + change.before + " -> " + change.after);
    });
    return lines;
}

}  // namespace kestrune::brxllib::undo
