#include "windows/com/Objects.h"

#include <memory>
#include <mutex>
#include <unordered_map>
#include <unordered_set>

#include "automation/AutomationError.h"
#include "windows/com/ComClient.h"
#include "windows/com/ComServer.h"
#include "windows/com/Enumerators.h"

namespace kestrune::windows {
namespace {

using automation::Object;
using automation::ObjectRef;

// The servers that are out, so that an object has one identity and comes back as itself.
struct Servers {
    std::recursive_mutex mutex;  // a server that cannot be noted goes, and is forgotten, while it is held
    std::unordered_map<const Object*, ComServer*> by_object;
    std::unordered_set<const IDispatch*> all;
};

Servers& servers() {
    // It never goes: a client may let go of its last object after the module's own statics went.
    static Servers* const known = std::make_unique<Servers>().release();
    return *known;
}

}  // namespace

ObjectRef object_of(IDispatch* object) {
    if (!object) return nullptr;
    {
        const std::scoped_lock lock(servers().mutex);
        if (servers().all.contains(object)) return static_cast<ComServer*>(object)->object();
    }
    return std::make_shared<ComClient>(object);
}

ObjectRef object_of(IUnknown* object) {
    if (!object) return nullptr;
    ComPtr<IDispatch> dispatch;
    ComPtr<IEnumVARIANT> items;
    if (SUCCEEDED(object->QueryInterface(IID_PPV_ARGS(&items)))) return enumeration_of(items);
    if (FAILED(object->QueryInterface(IID_PPV_ARGS(&dispatch)))) {
        throw automation::AutomationError(automation::hresult::type_mismatch, "conversion",
                                          "the object has no automation interface");
    }
    return object_of(dispatch.Get());
}

ComPtr<IDispatch> dispatch_of(const ObjectRef& object) {
    if (!object) return nullptr;
    if (const auto* client = dynamic_cast<const ComClient*>(object.get())) return client->dispatch();
    const std::scoped_lock lock(servers().mutex);
    const auto known = servers().by_object.find(object.get());
    if (known != servers().by_object.end() && known->second->try_hold()) {
        return adopt<IDispatch>(known->second);
    }
    auto* server = new ComServer(object);
    ComPtr<IDispatch> result = adopt<IDispatch>(server);
    servers().by_object.insert_or_assign(object.get(), server);
    servers().all.insert(server);
    return result;
}

void forget(const ComServer& server) noexcept {
    const std::scoped_lock lock(servers().mutex);
    servers().all.erase(&server);
    // A new server may have taken the place of one whose last reference was going.
    const auto known = servers().by_object.find(server.object().get());
    if (known != servers().by_object.end() && known->second == &server) servers().by_object.erase(known);
}

}  // namespace kestrune::windows
