#include "windows/services/MsxmlParser.h"

#include <fmt/format.h>

#include <utility>

#include "automation/AutomationError.h"
#include "automation/Conversion.h"
#include "automation/Text.h"
#include "windows/com/ComClasses.h"

namespace kestrune::windows {
namespace {

using automation::call;
using automation::get;
using automation::ObjectRef;
using automation::put;
using automation::to_text;
using automation::Value;
using brvblib::XmlElementRef;

class Element : public brvblib::XmlElement {
  public:
    explicit Element(ObjectRef node) : node_(std::move(node)) {}

    [[nodiscard]] std::string name() const override { return to_text(get(*node_, "nodeName")); }
    [[nodiscard]] std::string text() const override { return to_text(get(*node_, "text")); }
    [[nodiscard]] std::optional<std::string> attribute(std::string_view name) const override {
        const Value value = call(*node_, "getAttribute", {name});
        if (value.is(Value::Kind::Null) || value.is(Value::Kind::Empty)) return std::nullopt;
        return to_text(value);
    }
    // The names are names of ours, never queries: iXML sees to that.
    [[nodiscard]] XmlElementRef child(std::string_view name) const override { return select(name); }
    [[nodiscard]] XmlElementRef descendant(std::string_view name) const override {
        return select(fmt::format(".//{}", name));
    }
    [[nodiscard]] std::vector<XmlElementRef> children(std::string_view name) const override {
        const ObjectRef list = automation::to_object(call(*node_, "selectNodes", {name}));
        std::vector<XmlElementRef> found;
        const std::int32_t count = automation::to_integer(get(*list, "length"));
        for (std::int32_t i = 0; i < count; ++i) {
            found.push_back(std::make_shared<Element>(automation::to_object(get(*list, "item", {i}))));
        }
        return found;
    }

  private:
    [[nodiscard]] XmlElementRef select(std::string_view query) const {
        ObjectRef found = automation::to_object(call(*node_, "selectSingleNode", {query}));
        if (!found) return nullptr;
        return std::make_shared<Element>(std::move(found));
    }

    ObjectRef node_;
};

[[noreturn]] void refuse(const ObjectRef& error) {
    const std::int32_t line = automation::to_integer(get(*error, "line"));
    const std::string place = line > 0 ? fmt::format("line {}: ", line) : "";
    // MSXML ends what went wrong with a line break.
    const std::string reason = automation::one_line(to_text(get(*error, "reason")));
    throw automation::AutomationError(automation::hresult::exception, "iXML",
                                      place + (reason.empty() ? "is not well-formed" : reason));
}

ObjectRef new_document() {
    try {
        return create_com_object("MSXML2.DOMDocument.6.0");
    } catch (const automation::AutomationError& error) {
        throw automation::AutomationError(
            automation::hresult::class_not_registered, "iXML",
            fmt::format("Microsoft XML Core Services 6.0, which read it, do not start: {}", error.description()));
    }
}

}  // namespace

XmlElementRef MsxmlParser::parse(std::string_view text) const {
    const ObjectRef document = new_document();
    put(*document, "async", false);
    put(*document, "validateOnParse", false);
    put(*document, "resolveExternals", false);
    put(*document, "preserveWhiteSpace", true);
    call(*document, "setProperty", {"ProhibitDTD", true});
    call(*document, "setProperty", {"SelectionLanguage", "XPath"});
    if (!automation::to_boolean(call(*document, "loadXML", {text}))) {
        refuse(automation::to_object(get(*document, "parseError")));
    }
    return std::make_shared<Element>(automation::to_object(get(*document, "documentElement")));
}

}  // namespace kestrune::windows
