#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "core/bridges/SharedState.h"
#include "forms/Form.h"
#include "smart/trace/References.h"
#include "smart/trace/Trail.h"

namespace kestrune::smart {

// What the two dialogs of references have in common: a list of them, below it the formula of the one that is chosen,
// with the reference marked, and what else there is to know of it. What is chosen in the list is shown at once, as far
// as its workbook is open; OK stays there, every other end leads back to where the person was.
class TraceForm : public forms::Form {
  protected:
    // The names of the list, of the label above it, and the title after the product's. A worksheet is active. Design
    // and state outlive the form.
    TraceForm(const forms::FormDesign& design, const core::SharedState& shared, const char* list);

    // The references of the cell, as they are now.
    [[nodiscard]] virtual std::vector<core::CellLink> find() const = 0;
    // The text of a reference in the list, its columns parted by tabs.
    [[nodiscard]] virtual std::string line_of(const core::CellLink& link) const = 0;

    // Lists references and chooses the first.
    void list(std::vector<core::CellLink> links);
    // OK, or a double click: goes to the cells, opening their workbook where the person wants it.
    void go();

    [[nodiscard]] const TracedCell& cell() const { return cell_; }
    [[nodiscard]] const core::SharedState& shared() const { return shared_; }
    [[nodiscard]] excel::Application application() const { return excel::Application(shared_.application); }
    [[nodiscard]] std::string cell_text() const { return cell_.sheet + "!" + cell_.address; }
    [[nodiscard]] const excel::Range& traced() const { return range_; }
    [[nodiscard]] Trail& trail() { return trail_; }

    // Opens a reference's workbook by its path; when it cannot be, a message says so, with the given ending.
    [[nodiscard]] bool open(const core::CellLink& link, std::string_view ending);

  private:
    void preview();
    void tell(const core::CellLink& link, bool shown);
    [[nodiscard]] std::optional<core::CellLink> opened(const core::CellLink& link);

    const core::SharedState& shared_;
    const char* list_;
    excel::Range range_;
    TracedCell cell_;
    Trail trail_;
    std::vector<core::CellLink> links_;  // as they are listed
    bool gone_ = false;
};

}  // namespace kestrune::smart
