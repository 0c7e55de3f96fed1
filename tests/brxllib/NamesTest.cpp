#include "brxllib/InvalidNames.h"
#include "brxllib/LibraryInHost.h"

namespace kestrune::brxllib {
namespace {

// Files hold what Excel itself would not let anybody enter, so the names go straight into the workbook.
struct NamesTest : LibraryInHost {
    void name(std::string text, std::string refers_to, std::optional<std::int32_t> sheet = {}, bool hidden = false) {
        auto& model = *session.workbooks().front()->model;
        model.names.push_back({std::move(text), std::move(refers_to), sheet, hidden, {}, {}});
    }
    [[nodiscard]] std::vector<std::string> left() const {
        std::vector<std::string> names;
        for (const auto& entry : session.workbooks().front()->model->names) names.push_back(entry.name);
        return names;
    }
};

TEST_F(NamesTest, InvalidOnesGoAndNothingElse) {
    const struct {
        const char* name;
        const char* refers_to;
        bool goes;
    } rows[] = {
        {"Rate", "Sheet1!$A$1", false},
        {"Lost", "#REF!", true},
        {"LostOnSheet", "'Other Sheet'!#REF!", true},
        {"LostSheet", "Gone!$A$1", true},
        {"LostOf3", "Sheet1:Gone!$A$1", true},
        {"PartLost", "SUM(Sheet1!$A$1,#REF!)", true},
        {"Nothing", "", true},
        {"Text", "\"#REF!\"", false},
        {"NotAvailable", "#N/A", false},
        {"Constant", "0.05", false},
        {"Linked", "[2]Gone!$A$1", false},
        {"LinkedByPath", "'C:\\old\\[Plan.xlsx]Gone'!$A$1", false},
        {"Chain", "Lost*2", false},
        {"Net", "_xlfn.LAMBDA(_xlpm.x,_xlpm.x*2)", false},
        {"_xlpm.x", "#REF!", false},
        {"_xlfn.XLOOKUP", "#NAME?", false},
        {"_xlnm.Print_Area", "#REF!", false},
        {"_xlnm._FilterDatabase", "Sheet1!#REF!", false},
        {"solver_adj", "#REF!", false},
        {"ExternalData_1", "#REF!", false},
        {"_bbr.1.ebr", "#REF!", false},
    };
    std::vector<std::string> stay;
    std::vector<std::string> go;
    for (const auto& row : rows) {
        name(row.name, row.refers_to, std::nullopt, row.goes);
        (row.goes ? go : stay).push_back(row.name);
    }
    name("Lost", "#REF!", 1);
    go.emplace_back("'Other Sheet'!Lost");
    write("A1", "=Lost+LostSheet");
    EXPECT_EQ(library->invalid_names(book().object()), go);
    EXPECT_EQ(library->remove_invalid_names(book().object()), static_cast<std::int32_t>(go.size()));
    EXPECT_EQ(left(), stay);
    EXPECT_EQ(cells("A1").Formula(), Value("=Lost+LostSheet"));
    EXPECT_EQ(library->remove_invalid_names(book().object()), 0);
    EXPECT_THROW((void)library->remove_invalid_names(nullptr), automation::AutomationError);
}

TEST_F(NamesTest, WorkbooksOpenByTheirPaths) {
    struct Stored : host::StoredWorkbook {
        host::Workbook model;
        host::Workbook& workbook() override { return model; }
        void save() override {}
    };
    struct Store : host::WorkbookStore {
        std::unique_ptr<host::StoredWorkbook> open(const std::string& path) override {
            if (path != "/plans/Plan.xlsx") return nullptr;
            auto stored = std::make_unique<Stored>();
            stored->model.name = "Plan.xlsx";
            stored->model.path = "/plans";
            stored->model.add_sheet("Sheet1");
            return stored;
        }
    } store;
    session.store = &store;
    EXPECT_EQ(library->open_workbook("/plans/Moved.xlsx"), nullptr);
    const ObjectRef opened = library->open_workbook("/plans/Plan.xlsx");
    ASSERT_TRUE(opened);
    EXPECT_EQ(excel::Workbook(opened).Name(), application.ActiveWorkbook().Name());
}

TEST(SystemNames, AreToldWhateverTheirCase) {
    for (const char* name :
         {"print_titles", "SOLVER_num", "_XLPM.rate", "wrn.Report.", "Slicer_Region", "bbr.topic.start.ebr"})
        EXPECT_TRUE(is_system_name(name)) << name;
    for (const char* name : {"Print", "Solver", "SAPrice", "Database2", "Sort", "x"})
        EXPECT_FALSE(is_system_name(name)) << name;
}

}  // namespace
}  // namespace kestrune::brxllib
