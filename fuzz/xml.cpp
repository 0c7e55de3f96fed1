#include <memory>

#include "automation/Conversion.h"
#include "brvblib/iXML.h"
#include "forms/ScriptedPresenter.h"
#include "fuzz/OneFile.h"
#include "fuzz/targets.h"
#include "native/PugiXmlParser.h"

namespace kestrune::fuzz {
namespace {

using automation::AutomationError;
using automation::call;
using automation::get;
using automation::ObjectRef;
using automation::to_text;

constexpr const char* identifier = "7D3E9B20-4C1A-4f85-A6D2-93B0E5C71F48";

struct Service {
    Service() {
        const brvblib::Services services{
            .trace = trace, .presenter = presenter, .files = file, .xml = std::make_shared<native::PugiXmlParser>()};
        xml = std::make_shared<brvblib::iXML>(std::make_shared<brvblib::Library>(services, nullptr));
    }
    ObjectRef load(std::string bytes) const {
        file->bytes = std::move(bytes);
        const ObjectRef root = automation::to_object(call(*xml, "Load", {"f", identifier, "fuzz", "3.0"}));
        const std::string error = to_text(get(*xml, "LastError"));
        expect(error.empty() == (root != nullptr), "a document or a reason", error);
        expect(error.find_first_of("\r\n") == std::string::npos, "one line", error);
        return root;
    }

    automation::Trace trace;
    forms::ScriptedPresenter presenter;
    std::shared_ptr<OneFile> file = std::make_shared<OneFile>();
    ObjectRef xml;
};

// Everything that a reader of preferences would take out of a document.
std::string content(const Service& service, const ObjectRef& root) {
    std::string all = to_text(get(*root, "text"));
    for (const char* name : {"A", "B"}) {
        const ObjectRef list = automation::to_object(call(*service.xml, "ChildNodes", {name, root}));
        const std::int32_t length = automation::to_integer(get(*list, "Length"));
        for (std::int32_t i = 0; i < length; ++i) {
            const ObjectRef node = automation::to_object(get(*list, "Item", {i}));
            try {
                all += to_text(get(*node, "nodeTypedValue"));
            } catch (const AutomationError& error) {
                all += error.what();
            }
        }
    }
    return all;
}

void check_document(const Service& service, std::string bytes) {
    const ObjectRef root = service.load(std::move(bytes));
    if (!root) return;
    const std::string before = content(service, root);
    expect(automation::to_boolean(call(*service.xml, "Save", {"f"})), "what was loaded is saved", before);
    const ObjectRef again = service.load(service.file->bytes);
    expect(again != nullptr, "what was saved is loaded", service.file->bytes);
    expect(content(service, again) == before, "saving changes nothing", before);
}

// A text that came back from a document goes through another one unchanged.
void check_leaf(const Service& service, std::string_view text) {
    const auto through = [&](const std::string& value) {
        call(*service.xml, "StartDocument", {"K", "3.0", identifier});
        call(*service.xml, "WriteLeaf", {"A", value});
        expect(automation::to_boolean(call(*service.xml, "Save", {"f"})), "any text is saved", value);
        expect(service.load(service.file->bytes) != nullptr, "any text is loaded", service.file->bytes);
        const ObjectRef leaf = automation::to_object(call(*service.xml, "FindNode", {"A"}));
        return to_text(get(*leaf, "nodeTypedValue"));
    };
    const std::string once = through(std::string(text));
    expect(through(once) == once, "a text comes back as it is", once);
}

}  // namespace

void xml(std::string_view text) {
    const Service service;
    check_document(service, std::string(text));
    check_document(service, std::string("<K version='3.0' id='") + identifier + "'>" + std::string(text) + "</K>");
    check_leaf(service, text);
}

}  // namespace kestrune::fuzz
