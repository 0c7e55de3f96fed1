#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "automation/AutomationError.h"
#include "automation/Object.h"

namespace kestrune::styles {

// An object whose properties are whatever a test puts into it; a read of anything else fails. Objects
// that one gets at through it are children. Calls with arguments are answered as calls without.
class FakeObject : public automation::Object {
  public:
    FakeObject(std::string type, std::vector<std::string>& log) : type_(std::move(type)), log_(log) {}

    std::map<std::string, automation::Value, std::less<>> properties;
    std::set<std::string, std::less<>> refused;  // writes that fail

    automation::Value invoke(std::string_view member, automation::Call kind,
                             automation::Arguments& arguments) override {
        const std::string name(member);
        if (automation::is_put(kind)) {
            log_.push_back(type_ + "." + name);
            if (refused.contains(name)) fail(name);
            return properties[name] = arguments.positional.back();
        }
        const auto found = properties.find(member);
        if (found == properties.end()) fail(name);
        return found->second;
    }
    [[nodiscard]] std::string_view type_name() const override { return type_; }

  private:
    [[noreturn]] static void fail(const std::string& member) {
        throw automation::AutomationError(automation::hresult::excel_error, member, "refused");
    }

    std::string type_;
    std::vector<std::string>& log_;  // the writes in their order
};

// One unformatted cell of a workbook.
struct FakeCell {
    std::vector<std::string> log;
    std::shared_ptr<FakeObject> range = std::make_shared<FakeObject>("Range", log);
    std::shared_ptr<FakeObject> font = std::make_shared<FakeObject>("Font", log);
    std::shared_ptr<FakeObject> interior = std::make_shared<FakeObject>("Interior", log);
    std::shared_ptr<FakeObject> borders = std::make_shared<FakeObject>("Borders", log);
    std::shared_ptr<FakeObject> border = std::make_shared<FakeObject>("Border", log);
    std::shared_ptr<FakeObject> worksheet = std::make_shared<FakeObject>("Worksheet", log);
    std::shared_ptr<FakeObject> workbook = std::make_shared<FakeObject>("Workbook", log);

    FakeCell() {
        workbook->properties = {{"Colors", 0}};
        worksheet->properties = {{"Parent", workbook}};
        border->properties = {{"LineStyle", -4142}, {"Weight", 2}, {"ColorIndex", -4142}};
        borders->properties = {{"Item", border}, {"LineStyle", -4142}, {"Weight", 2}, {"ColorIndex", -4142}};
        interior->properties = {{"ColorIndex", -4142}};
        font->properties = {{"Name", "Arial"},    {"Size", 10.0},    {"Bold", false},         {"Italic", false},
                            {"Underline", -4142}, {"ColorIndex", 1}, {"Strikethrough", false}};
        range->properties = {{"Font", font},
                             {"Interior", interior},
                             {"Borders", borders},
                             {"Worksheet", worksheet},
                             {"Count", 1},
                             {"NumberFormat", "General"},
                             {"HorizontalAlignment", 1},
                             {"VerticalAlignment", -4107},
                             {"Orientation", -4128},
                             {"IndentLevel", 0},
                             {"ShrinkToFit", false},
                             {"WrapText", false}};
        // Rows, columns and cells of one cell are that cell.
        for (const char* self : {"Cells", "Item", "Rows", "Columns"}) range->properties[self] = range;
    }
    // The range holds itself.
    ~FakeCell() { range->properties.clear(); }
    FakeCell(const FakeCell&) = delete;
    FakeCell& operator=(const FakeCell&) = delete;
};

}  // namespace kestrune::styles
