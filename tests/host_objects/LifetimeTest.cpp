#include <gtest/gtest.h>

#include "automation/Conversion.h"
#include "host/objects/HostSession.h"

namespace kestrune::host {
namespace {

using automation::call;
using automation::get;
using automation::ObjectRef;
using automation::to_object;

TEST(Lifetime, EachObjectKeepsItsSharedSession) {
    auto session = std::make_shared<HostSession>();
    const std::weak_ptr<HostSession> watched = session;
    ObjectRef application = make_application(*session);
    session.reset();
    ObjectRef workbook = to_object(call(*to_object(get(*application, "Workbooks")), "Add"));
    application.reset();
    ObjectRef sheet = to_object(get(*workbook, "ActiveSheet"));
    workbook.reset();
    ObjectRef font = to_object(get(*to_object(get(*sheet, "Range", {"B2"})), "Font"));
    put(*font, "Bold", true);
    EXPECT_EQ(get(*to_object(get(*to_object(get(*sheet, "Cells")), "Font")), "Bold"),
              automation::Value(automation::Null{}));
    EXPECT_FALSE(watched.expired());
    font.reset();
    sheet.reset();
    EXPECT_TRUE(watched.expired());
}

}  // namespace
}  // namespace kestrune::host
