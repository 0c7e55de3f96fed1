#include "brxllib/Links.h"

namespace kestrune::brxllib {

automation::Value array_of(const std::vector<Link>& links) {
    automation::Array array({1, static_cast<std::int32_t>(links.size())}, {1, 9});
    auto element = array.elements().begin();
    for (const Link& link : links) {
        for (const automation::Value& value :
             {automation::Value(link.text), automation::Value(link.workbook), automation::Value(link.folder),
              automation::Value(link.sheet), automation::Value(link.address), automation::Value(link.through),
              automation::Value(link.position), automation::Value(link.length), automation::Value(link.formula)}) {
            *element++ = value;
        }
    }
    return array;
}

}  // namespace kestrune::brxllib
