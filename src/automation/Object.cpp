#include "automation/Object.h"

namespace kestrune::automation {

Value get(Object& object, std::string_view member, Arguments arguments) {
    return object.invoke(member, Call::Get, arguments);
}

Value call(Object& object, std::string_view member, Arguments arguments) {
    return object.invoke(member, Call::Method, arguments);
}

void put(Object& object, std::string_view member, Value value) {
    Arguments arguments{std::move(value)};
    object.invoke(member, Call::Put, arguments);
}

}  // namespace kestrune::automation
