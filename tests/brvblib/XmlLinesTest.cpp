// What pugixml tells about broken documents.
#include <gmock/gmock.h>

#include "automation/AutomationError.h"
#include "native/PugiXmlParser.h"

namespace kestrune::native {
namespace {

TEST(PugiXmlParser, TellsTheLine) {
    const struct {
        const char* text;
        const char* what;
    } cases[] = {
        {"<K>\n\n<A></B></K>", "line 3: Start-end tags mismatch"},
        {"<K>", "line 1: Start-end tags mismatch"},
        {"<K/>\n<L/>", "there is more than one root element, or text outside of it"},
    };
    for (const auto& c : cases) {
        try {
            static_cast<void>(PugiXmlParser().parse(c.text));
            ADD_FAILURE() << c.text;
        } catch (const automation::AutomationError& error) {
            EXPECT_EQ(error.description(), c.what) << c.text;
        }
    }
}

}  // namespace
}  // namespace kestrune::native
