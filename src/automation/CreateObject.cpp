#include "automation/CreateObject.h"

#include <map>
#include <utility>

#include "automation/AutomationError.h"
#include "automation/Text.h"

namespace kestrune::automation {
namespace {

std::map<std::string, ClassFactory, TextLess>& registry() {
    static std::map<std::string, ClassFactory, TextLess> classes;
    return classes;
}

ClassSource& class_source() {
    static ClassSource source;
    return source;
}

}  // namespace

ObjectRef CreateObject(std::string_view prog_id) {
    const auto found = registry().find(prog_id);
    if (found == registry().end()) {
        if (class_source()) return class_source()(prog_id);
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

void use_class_source(ClassSource source) { class_source() = std::move(source); }

}  // namespace kestrune::automation
