#include "brvblib/Library.h"

#include "automation/AutomationError.h"

namespace kestrune::brvblib {
namespace {

template <class Service>
const Service& required(const std::shared_ptr<const Service>& service, std::string_view what) {
    if (!service) {
        throw automation::AutomationError(automation::hresult::object_required, "BRVBLib",
                                          std::string(what) + " cannot be reached from this program");
    }
    return *service;
}

}  // namespace

Library::~Library() {
    for (const std::string& client : hot_key_clients) hot_keys->remove_client(client);
}

const Files& Library::files() const { return required(services.files, "files"); }

const XmlParser& Library::xml() const { return required(services.xml, "XML documents"); }

const Desktop& Library::desktop() const { return required(services.desktop, "the desktop"); }

}  // namespace kestrune::brvblib
