#include "cli/diff/DiffCommand.h"

#include <fmt/format.h>

#include <cstdio>
#include <nlohmann/json.hpp>

#include "cli/diff/Change.h"
#include "cli/diff/WorkbookDiff.h"
#include "host/xlsx/WorkbookFile.h"

namespace kestrune::cli {
namespace {

std::string quoted(const std::string& text) { return text.empty() ? "(none)" : text; }

// Changes as lines or as a JSON array, written as they are found.
class ChangeWriter {
  public:
    explicit ChangeWriter(bool json) : json_(json) {
        if (json_) fmt::print("[");
    }
    void write(const Change& change) {
        if (json_) {
            const nlohmann::ordered_json object{{"place", change.place},
                                                {"property", change.property},
                                                {"before", change.before},
                                                {"after", change.after}};
            fmt::print("{}\n{}", changes_ ? "," : "",
                       object.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace));
        } else {
            fmt::print("{} {}: {} -> {}\n", change.place, change.property, quoted(change.before), quoted(change.after));
        }
        ++changes_;
    }
    void finish() const {
        if (json_) fmt::print("{}]\n", changes_ ? "\n" : "");
    }
    [[nodiscard]] std::int64_t changes() const { return changes_; }

  private:
    bool json_;
    std::int64_t changes_ = 0;
};

}  // namespace

void diff(const DiffOptions& options) {
    const auto before_file = host::WorkbookFile::open(options.before);
    const auto after_file = host::WorkbookFile::open(options.after);
    host::Workbook& before = before_file->workbook();
    host::Workbook& after = after_file->workbook();
    ChangeWriter writer(options.json);
    const std::int64_t cells =
        compare(before, after, options.json, [&](const Change& change) { writer.write(change); });
    writer.finish();
    fmt::print(stderr, "{} cell{} differ{}\n", cells, cells == 1 ? "" : "s", cells == 1 ? "s" : "");
}

}  // namespace kestrune::cli
