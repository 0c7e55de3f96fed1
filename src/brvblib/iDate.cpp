#include "brvblib/iDate.h"

#include "brvblib/Calendar.h"
#include "brvblib/TypedDate.h"

namespace kestrune::brvblib {

using automation::Date;
using automation::method;
using automation::Value;

std::string iDate::text(const Value& date) const {
    return date_text(date.is(Value::Kind::Missing) ? library_->services.now() : Date{automation::to_double(date)});
}

Value iDate::date_add(const std::string& interval, double number, const Value& date) const {
    return date_later(Date{automation::to_double(date)}, interval, number);
}

Value iDate::typed(const std::string& text) const {
    const auto date = typed_date(text, library_->services.now());
    return date ? Value(*date) : Value();
}

const automation::MemberTable& iDate::members() {
    static constexpr auto rows = automation::member_rows(
        automation::read_only<&iDate::now>("Now", 1), method<&iDate::text>("Text", 2, "[Date]"),
        method<&iDate::date_add>("DateAdd", 3, "Interval, Number, Date"), method<&iDate::typed>("Typed", 4, "Text"));
    static constexpr automation::MemberTable table("iDate", rows);
    return table;
}

}  // namespace kestrune::brvblib
