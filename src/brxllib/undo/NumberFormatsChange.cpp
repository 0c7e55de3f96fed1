#include "brxllib/undo/NumberFormatsChange.h"

#include <algorithm>

#include "automation/AutomationError.h"
#include "excel/Worksheet.h"

namespace kestrune::brxllib::undo {

using automation::AutomationError;

namespace {

// A cell whose format may be written.
excel::Range writable_cell(const excel::Workbook& workbook) {
    const excel::Worksheets sheets = workbook.Worksheets();
    const std::int32_t count = sheets.Count();
    for (std::int32_t i = 1; i <= count; ++i) {
        const excel::Worksheet sheet = sheets.Item(i);
        if (!sheet.ProtectContents()) return sheet.UsedRange().Cells(1, 1);
    }
    throw AutomationError(automation::hresult::excel_error, "iUndoRedo", "all worksheets are protected");
}

}  // namespace

NumberFormatsChange::NumberFormatsChange(excel::Workbook workbook, CustomFormats& formats)
    : workbook_(std::move(workbook)), formats_(formats) {
    for (CustomFormat& format : formats_.of(workbook_)) codes_.push_back(std::move(format.code));
}

bool NumberFormatsChange::finish() {
    const std::vector<CustomFormat> left = formats_.of(workbook_);
    std::erase_if(codes_, [&](const std::string& code) {
        return std::ranges::find(left, code, &CustomFormat::code) != left.end();
    });
    return !codes_.empty();
}

std::optional<Obstacle> NumberFormatsChange::obstacle(Direction direction) const {
    try {
        (void)workbook_.Name();
    } catch (const AutomationError&) {
        return Obstacle{"its workbook is no longer there", true};
    }
    if (direction == Direction::Undo) return {};
    for (const CustomFormat& format : formats_.of(workbook_)) {
        if (format.in_use && std::ranges::find(codes_, format.code) != codes_.end()) {
            return Obstacle{"the number format " + format.code + " is in use now", true};
        }
    }
    return {};
}

void NumberFormatsChange::undo() {
    // Excel has no way to add a number format but to show something in it.
    const excel::Range cell = writable_cell(workbook_);
    const automation::Value own = cell.NumberFormat();
    for (const std::string& code : codes_) cell.NumberFormat(code);
    cell.NumberFormat(own);
}

void NumberFormatsChange::redo() {
    for (const std::string& code : codes_) workbook_.DeleteNumberFormat(code);
}

std::size_t NumberFormatsChange::bytes() const {
    std::size_t sum = sizeof(NumberFormatsChange);
    for (const std::string& code : codes_) sum += sizeof code + code.size();
    return sum;
}

}  // namespace kestrune::brxllib::undo
