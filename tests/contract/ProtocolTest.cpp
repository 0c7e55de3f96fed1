#include "contract/ContractTest.h"

namespace kestrune::contract {
namespace {

using testing::ElementsAre;

constexpr std::int32_t not_available = static_cast<std::int32_t>(0x800A0000 + 2042);

TEST_F(Sure, CallsTakeNamedArgumentsInAnyOrder) {
    const ObjectRef cell = range("B2");
    const Value wanted = get(cell, "Address", {false, true, xlR1C1, false, range("A1")});
    EXPECT_EQ(wanted, Value("R[1]C2"));
    EXPECT_EQ(
        get(cell, "Address",
            Arguments{}.name("RelativeTo", range("A1")).name("ReferenceStyle", xlR1C1).name("rowabsolute", false)),
        wanted);
    EXPECT_EQ(get(cell, "Address", Arguments{false}.name("RelativeTo", range("A1")).name("ReferenceStyle", xlR1C1)),
              wanted);
    EXPECT_NE(call_refused(cell, "Address", Arguments{}.name("Nonsense", 1)), ok);
    EXPECT_NE(call_refused(cell, "Address", Arguments{true}.name("RowAbsolute", true)), ok) << "given twice";
}

TEST_F(Sure, CallsMayLeaveOptionalArgumentsOut) {
    EXPECT_EQ(address(object(range("B2:C3"), "Offset", {Missing{}, 1})), "$C$2:$D$3");
    EXPECT_EQ(address(object(range("B2:C3"), "Resize", {1})), "$B$2:$C$2");
    EXPECT_EQ(address(object(range("B2:C3"), "Offset")), "$B$2:$C$3");
    EXPECT_EQ(call_refused(range("B2"), "End"), hresult::not_optional);
    EXPECT_EQ(call_refused(range("B2"), "Select", {1}), hresult::bad_argument_count);
}

TEST_F(Sure, UnknownMembersAndIndexesSayWhich) {
    EXPECT_EQ(call_refused(range("A1"), "Nonsense"), hresult::unknown_name);
    EXPECT_EQ(refused(range("A1"), "Nonsense", 1), hresult::unknown_name);
    EXPECT_NE(refused(range("A1"), "Address", "B2"), ok) << "it can only be read";
    EXPECT_EQ(call_refused(object(application, "Workbooks"), "Item", {"Absent"}), hresult::bad_index);
    EXPECT_EQ(call_refused(object(application, "Worksheets"), "Item", {0}), hresult::bad_index);
    EXPECT_EQ(call_refused(object(range("A1"), "Areas"), "Item", {2}), hresult::bad_index);
    EXPECT_EQ(call_refused(names(), "Item", {"Absent"}), error_1004);
    EXPECT_EQ(call_refused(sheet("Sheet1"), "Range", {"not a reference"}), error_1004);
    EXPECT_EQ(refused(font(range("A1")), "Size", "large"), hresult::type_mismatch);
}

TEST_F(Sure, DefaultMembersAreCalledWithoutAName) {
    put(range("B2"), "", 7);
    EXPECT_EQ(get(range("B2"), ""), Value(7.0));
    EXPECT_EQ(address(to_object(get(range("B2:C3"), "", {2, 2}))), "$C$3");
    put_at(sheet("Sheet1"), "Cells", 3, "row by row");
    EXPECT_EQ(get(range("C1"), "Value"), Value("row by row"));
    Arguments cell{4, "B", 2.5};
    sheet("Sheet1")->invoke("Cells", Call::Put, cell);
    EXPECT_EQ(get(range("B4"), "Value"), Value(2.5));
    EXPECT_EQ(get(object(application, "Worksheets", {2}), "Name"), Value("Sheet2"));
    EXPECT_EQ(get(object(application, "Workbooks", {"book1"}), "Name"), Value("Book1"));
    EXPECT_EQ(get(object(range("B2"), "Borders", {xlEdgeTop}), "LineStyle"), Value(xlNone));
}

TEST_F(Sure, EmptyNullAndErrorsAreThreeThings) {
    EXPECT_TRUE(get(range("A1"), "Value").is(Value::Kind::Empty));
    EXPECT_EQ(get(range("A1"), "Formula"), Value(""));
    put(range("A1"), "Value", Error{not_available});
    EXPECT_EQ(get(range("A1"), "Value"), Value(Error{not_available}));
    EXPECT_EQ(get(range("A1"), "Text"), Value("#N/A"));
    put(range("A1"), "NumberFormat", "0.00");
    EXPECT_TRUE(get(range("A1:B1"), "NumberFormat").is(Value::Kind::Null));
    put(range("A1"), "Value", Value());
    EXPECT_TRUE(get(range("A1"), "Value").is(Value::Kind::Empty));
    EXPECT_EQ(get(range("A1"), "NumberFormat"), Value("0.00"));
    EXPECT_EQ(object(sheet("Sheet2"), "Next"), nullptr) << "Nothing, which is an object";
}

TEST_F(Sure, BlocksAreArraysFromOne) {
    put(range("B2:C4"), "Value", block({{1, "x"}, {true, Error{not_available}}, {Date{45322}, Value()}}));
    const Value read = get(range("B2:C4"), "Value");
    ASSERT_TRUE(read.array());
    EXPECT_EQ(read.array()->bound(0), (Array::Bound{1, 3}));
    EXPECT_EQ(read.array()->bound(1), (Array::Bound{1, 2}));
    EXPECT_EQ(read, block({{1.0, "x"}, {true, Error{not_available}}, {Date{45322}, Value()}}));
    EXPECT_EQ(get(range("B2:C4"), "Value2").array()->at(3, 1), Value(45322.0));
    EXPECT_EQ(get(range("B2:B3"), "Formula"), block({{"1"}, {"TRUE"}}));
    EXPECT_TRUE(get(range("B2:B3"), "NumberFormat").is(Value::Kind::String)) << "a format is one, not a block";
    EXPECT_FALSE(get(range("B2"), "Value").array()) << "one cell is no array";
}

TEST_F(Sure, CollectionsAreGoneThrough) {
    const auto texts = [](const ObjectRef& collection, std::string_view member) {
        std::vector<std::string> all;
        for (const Value& item : automation::items(*collection)) all.push_back(to_text(get(to_object(item), member)));
        return all;
    };
    EXPECT_THAT(texts(object(application, "Worksheets"), "Name"), ElementsAre("Sheet1", "Sheet2"));
    EXPECT_THAT(texts(object(application, "Sheets"), "Name"), ElementsAre("Sheet1", "Sheet2"));
    EXPECT_THAT(texts(object(application, "Workbooks"), "Name"), ElementsAre("Book1"));
    EXPECT_THAT(texts(object(range("B2,D4:E5"), "Areas"), "Address"), ElementsAre("$B$2", "$D$4:$E$5"));
    EXPECT_THAT(texts(range("B2:C3,E1"), "Address"), ElementsAre("$B$2", "$C$2", "$B$3", "$C$3", "$E$1"));
    EXPECT_THAT(texts(object(range("B2:C3"), "Rows"), "Address"), ElementsAre("$B$2:$C$2", "$B$3:$C$3"));
    EXPECT_THAT(texts(object(range("B2:C3"), "Columns"), "Address"), ElementsAre("$B$2:$B$3", "$C$2:$C$3"));
    call(names(), "Add", {"One", "=1"});
    call(names(), "Add", {"Two", "=2"});
    for (const Value& item : automation::items(*names())) call(to_object(item), "Delete");
    EXPECT_EQ(get(names(), "Count"), Value(0)) << "a loop may delete what it goes through";
    call(conditions(range("A1")), "Add", {1, 5, "1"});
    EXPECT_THAT(texts(conditions(range("A1")), "Formula1"), ElementsAre("=1"));
}

TEST_F(Sure, SheetsAreAddedWhereAsked) {
    const auto order = [&] {
        std::string names;
        for (const Value& item : automation::items(*object(application, "Worksheets"))) {
            names += to_text(get(to_object(item), "Name")) + " ";
        }
        return names;
    };
    const ObjectRef sheets = object(application, "Worksheets");
    const ObjectRef third = to_object(call(sheets, "Add", {sheet("Sheet2")}));
    EXPECT_EQ(order(), "Sheet1 Sheet3 Sheet2 ");
    EXPECT_EQ(get(object(application, "ActiveSheet"), "Name"), Value("Sheet3"));
    call(sheets, "Add");
    EXPECT_EQ(order(), "Sheet1 Sheet4 Sheet3 Sheet2 ") << "in front of the active one";
    call(sheets, "Add", Arguments{}.name("Count", 2).name("After", sheet("Sheet2")));
    EXPECT_EQ(get(sheets, "Count"), Value(6));
    EXPECT_EQ(get(third, "Index"), Value(3));
    EXPECT_EQ(call_refused(sheets, "Add", {sheet("Sheet1"), sheet("Sheet2")}), error_1004);
}

}  // namespace
}  // namespace kestrune::contract
