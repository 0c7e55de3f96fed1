#include "automation/CreateObject.h"

#include <map>

#include "automation/AutomationError.h"
#include "automation/Text.h"

namespace kestrune::automation {
namespace {

std::map<std::string, ClassFactory, TextLess>& registry() {
    static std::map<std::string, ClassFactory, TextLess> classes;
    return classes;
}

}  // namespace

ObjectRef CreateObject(std::string_view prog_id) {
    const auto found = registry().find(prog_id);
    if (found == registry().end()) {
        throw AutomationError(hresult::class_not_registered, prog_id, "the class is not registered");
    }
    return found->second();
}

void register_class(std::string prog_id, ClassFactory factory) {
    registry().insert_or_assign(std::move(prog_id), std::move(factory));
}

void unregister_class(std::string_view prog_id) {
    const auto found = registry().find(prog_id);
    if (found != registry().end()) registry().erase(found);
}

}  // namespace kestrune::automation
