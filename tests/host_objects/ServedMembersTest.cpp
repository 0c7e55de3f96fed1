#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "excel/PublishedModel.h"
#include "host/objects/ApplicationObject.h"
#include "host/objects/AreasObject.h"
#include "host/objects/BorderObject.h"
#include "host/objects/BordersObject.h"
#include "host/objects/ChartSheetObject.h"
#include "host/objects/ConditionBordersObject.h"
#include "host/objects/ConditionFontObject.h"
#include "host/objects/ConditionInteriorObject.h"
#include "host/objects/FontObject.h"
#include "host/objects/FormatConditionObject.h"
#include "host/objects/FormatConditionsObject.h"
#include "host/objects/HyperlinkObject.h"
#include "host/objects/HyperlinksObject.h"
#include "host/objects/InteriorObject.h"
#include "host/objects/ListObjectsObject.h"
#include "host/objects/NameObject.h"
#include "host/objects/NamesObject.h"
#include "host/objects/OutlineObject.h"
#include "host/objects/ProtectionObject.h"
#include "host/objects/RangeObject.h"
#include "host/objects/ShapesObject.h"
#include "host/objects/SheetsObject.h"
#include "host/objects/StyleObject.h"
#include "host/objects/StylesObject.h"
#include "host/objects/WindowObject.h"
#include "host/objects/WindowsObject.h"
#include "host/objects/WorkbookObject.h"
#include "host/objects/WorkbooksObject.h"
#include "host/objects/WorksheetObject.h"
#include "host/objects/bars/CommandBarObject.h"
#include "host/objects/bars/CommandBarsObject.h"
#include "host/objects/bars/ControlObject.h"
#include "host/objects/bars/ControlsObject.h"

namespace kestrune::host {
namespace {

// "Cell1, [Cell2]" in the reference's spelling: "Cell1! Cell2".
std::string parameters_of(const Member& member) {
    std::string text;
    std::string_view list = member.parameters;
    while (!list.empty()) {
        const auto parameter = automation::detail::take_parameter(list);
        text += (text.empty() ? "" : " ") + std::string(parameter.name) + (parameter.optional ? "" : "!");
    }
    return text;
}

TEST(ServedMembers, AreExcels) {
    const auto published = published::members();
    const MemberTable* tables[] = {
        &ApplicationObject::members(),
        &AreasObject::members(),
        &BorderObject::members(),
        &BordersObject::members(),
        &ChartSheetObject::members(),
        &ConditionBorderObject::members(),
        &ConditionBordersObject::members(),
        &ConditionFontObject::members(),
        &ConditionInteriorObject::members(),
        &ButtonObject::members(),
        &CommandBarObject::members(),
        &CommandBarsObject::members(),
        &ControlsObject::members(),
        &FontObject::members(),
        &FormatConditionObject::members(),
        &FormatConditionsObject::members(),
        &HyperlinkObject::members(),
        &HyperlinksObject::members(),
        &InteriorObject::members(),
        &ListObjectObject::members(),
        &ListObjectsObject::members(),
        &ShapeObject::members(),
        &ShapesObject::members(),
        &NameObject::members(),
        &NamesObject::members(),
        &OutlineObject::members(),
        &ProtectionObject::members(),
        &PopupObject::members(),
        &RangeObject::members(),
        &StyleObject::members(),
        &StylesObject::members(),
        &SheetsObject::members(),
        &WindowObject::members(),
        &WindowsObject::members(),
        &WorkbookObject::members(),
        &WorkbooksObject::members(),
        &WorksheetObject::members(),
        &WorksheetsObject::members(),
    };
    std::vector<std::string> differences;
    for (const MemberTable* table : tables) {
        for (const Member& member : table->rows()) {
            if (member.name.starts_with('_')) continue;  // hidden, so the reference leaves it out
            const std::string name = std::string(table->class_name()) + "." + std::string(member.name);
            const auto row = published.find(name);
            if (row == published.end()) {
                differences.push_back(name + " is not in the reference");
                continue;
            }
            if (row->second.kind != (member.is_method ? "method" : "property")) differences.push_back(name + ": kind");
            if (member.set && row->second.access != "get put") differences.push_back(name + ": cannot be written");
            if (parameters_of(member) != row->second.parameters) {
                differences.push_back(name + ": " + parameters_of(member) + " instead of " + row->second.parameters);
            }
        }
    }
    EXPECT_THAT(differences, testing::IsEmpty());
    const auto declared = published::in_sources("host/objects", R"-(MemberTable table\("(\w+)")-");
    EXPECT_EQ(std::size(tables), declared.size()) << "a table that is not in the list is not compared";
}

}  // namespace
}  // namespace kestrune::host
