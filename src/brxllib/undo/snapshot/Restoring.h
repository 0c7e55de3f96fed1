#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "automation/ResumeNext.h"
#include "excel/Application.h"
#include "excel/Worksheet.h"

namespace kestrune::brxllib::undo {

// While cells are given back: where, and what Excel refused.
class Restoring {
  public:
    Restoring(excel::Application application, excel::Worksheet sheet, const automation::Trace& trace)
        : application_(std::move(application)), sheet_(std::move(sheet)), trace_(trace) {}

    [[nodiscard]] const excel::Application& application() const { return application_; }
    [[nodiscard]] const excel::Worksheet& sheet() const { return sheet_; }
    [[nodiscard]] const automation::Trace& trace() const { return trace_; }

    // Whether the statement went through. One that fails is told: what, and why.
    template <class Statement>
    bool operator()(std::string_view place, std::string_view what, Statement&& statement) {
        try {
            std::forward<Statement>(statement)();
            return true;
        } catch (const automation::AutomationError& error) {
            trace_.skipped(error.what());
            refuse(place, what, error.description());
            return false;
        }
    }
    void refuse(std::string_view place, std::string_view what, std::string_view why) {
        std::string line(place);
        line.append(" ").append(what).append(": ").append(why);
        refusals_.push_back(std::move(line));
    }
    [[nodiscard]] std::vector<std::string> take_refusals() { return std::move(refusals_); }

  private:
    excel::Application application_;
    excel::Worksheet sheet_;
    const automation::Trace& trace_;
    std::vector<std::string> refusals_;
};

}  // namespace kestrune::brxllib::undo
