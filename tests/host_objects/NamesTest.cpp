#include "host_objects/HostFixture.h"

namespace kestrune::host {
namespace {

class NamesTest : public HostTest {
  protected:
    ObjectRef names() { return object(object(application, "ActiveWorkbook"), "Names"); }
    ObjectRef name(const Value& key) { return automation::to_object(call(names(), "Item", {key})); }
};

TEST_F(NamesTest, AddsReadsAndDeletes) {
    call(names(), "Add", {"Rate", "=0.05"});
    call(names(), "Add", Arguments{"_bbr.X.ebr", range("B2:C3")}.name("Visible", false));
    call(names(), "Add", {"Local", "=$D$4"});
    call(object(sheet("It's Output"), "Names"), "Add", {"Local", "='It''s Output'!$E$5"});
    EXPECT_EQ(get(names(), "Count"), Value(4));
    EXPECT_EQ(get(object(sheet("It's Output"), "Names"), "Count"), Value(1));
    EXPECT_EQ(get(name("rate"), "RefersTo"), Value("=0.05"));
    EXPECT_EQ(get(name("_bbr.X.ebr"), "RefersTo"), Value("=Inputs!$B$2:$C$3"));
    EXPECT_EQ(get(name("_bbr.X.ebr"), "Visible"), Value(false));
    EXPECT_EQ(get(name("Local"), "RefersTo"), Value("=Inputs!$D$4")) << "the active sheet is added";
    EXPECT_EQ(get(name("'It''s Output'!Local"), "Name"), Value("'It''s Output'!Local"));
    EXPECT_EQ(address(object(name("_bbr.X.ebr"), "RefersToRange")), "$B$2:$C$3");
    EXPECT_EQ(call_refused(name("Rate"), "RefersToRange"), error_1004);

    const ObjectRef rate = name("Rate");
    put(rate, "RefersTo", "=Inputs!$A$1");
    put(rate, "Name", "Growth");
    EXPECT_EQ(get(name("Growth"), "RefersTo"), Value("=Inputs!$A$1"));
    EXPECT_EQ(refused(rate, "Name", "Local"), error_1004);
    call(rate, "Delete");
    EXPECT_EQ(get(names(), "Count"), Value(3));
    EXPECT_EQ(call_refused(rate, "RefersTo"), error_1004);
}

TEST_F(NamesTest, TakesValidNamesOnly) {
    for (const char* text : {"A1", "TAX2024", "R1C1", "1st", "two words", "", "Nowhere!X"}) {
        EXPECT_EQ(call_refused(names(), "Add", {text, "=1"}), error_1004) << text;
    }
    for (const char* text : {"TAX_2024", "_x", "\\y", "Zinssatz_ä", "a.b"}) {
        EXPECT_EQ(call_refused(names(), "Add", {text, "=1"}), ok) << text;
    }
    EXPECT_EQ(call_refused(names(), "Add", {"Bad", "=1+"}), error_1004);
    EXPECT_EQ(call_refused(names(), "Item", {"Absent"}), error_1004);
}

TEST_F(NamesTest, BuiltInNamesLoseTheirPrefix) {
    workbook->names.push_back({"_xlnm.Print_Area", "Inputs!$A$1:$B$2", 0, false, "", ""});
    EXPECT_EQ(get(name(1), "Name"), Value("Inputs!Print_Area"));
    EXPECT_EQ(address(range("Print_Area")), "$A$1:$B$2");
}

}  // namespace
}  // namespace kestrune::host
