#include "core/bridges/LibraryBridge.h"

#include <algorithm>
#include <utility>

#include "automation/AutomationError.h"
#include "automation/Conversion.h"
#include "automation/CreateObject.h"
#include "automation/ResumeNext.h"
#include "core/bridges/Product.h"

namespace kestrune::core {

using automation::ObjectRef;
using automation::ResumeNext;
using automation::Value;

bool LibraryBridge::Create() {
    const ResumeNext attempt(trace_);
    attempt.assign(public_, [&] { return automation::CreateObject(prog_id_); });
    if (!public_) return false;
    // A sub-object that this version of the library lacks is no failure worth telling.
    const automation::Trace nobody;
    const ResumeNext try_quietly(nobody);
    for (std::size_t i = 0; i < names_.size(); ++i) {
        try_quietly.assign(objects_[i], [&] { return automation::to_object(automation::get(*public_, names_[i])); });
    }
    attempt([&] {
        const auto product = static_cast<std::size_t>(std::ranges::find(names_, "iProduct") - names_.begin());
        call(product, "RegisterClient", {client_name, product_name, product_title});
    });
    return true;
}

LibraryBridge::~LibraryBridge() {
    if (!public_) return;
    const ResumeNext attempt(trace_);
    attempt([&] { automation::call(*public_, "UnregisterClient", {client_name}); });
}

Value LibraryBridge::call(std::size_t place, std::string_view operation, automation::Arguments arguments) const {
    if (!objects_[place]) {
        throw automation::AutomationError(automation::hresult::object_required, names_[place],
                                          "the library has no such object");
    }
    return automation::call(*objects_[place], operation, std::move(arguments));
}

}  // namespace kestrune::core
