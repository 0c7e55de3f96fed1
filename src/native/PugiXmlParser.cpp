#include "native/PugiXmlParser.h"

#include <fmt/format.h>

#include <algorithm>
#include <pugixml.hpp>
#include <utility>

#include "automation/AutomationError.h"

namespace kestrune::native {
namespace {

using brvblib::XmlElementRef;

constexpr int deepest = 256;

[[noreturn]] void refuse(std::string_view what) {
    throw automation::AutomationError(automation::hresult::exception, "iXML", what);
}

bool is_blank(std::string_view text) { return text.find_first_not_of(" \t\r\n") == std::string_view::npos; }

void append_text(pugi::xml_node node, std::string& text) {
    for (const pugi::xml_node child : node.children()) {
        if (child.type() == pugi::node_element) append_text(child, text);
        text += child.value();
    }
}

class Element : public brvblib::XmlElement {
  public:
    Element(std::shared_ptr<const pugi::xml_document> document, pugi::xml_node node)
        : document_(std::move(document)), node_(node) {}

    [[nodiscard]] std::string name() const override { return node_.name(); }
    [[nodiscard]] std::string text() const override {
        std::string text;
        append_text(node_, text);
        return text;
    }
    [[nodiscard]] std::optional<std::string> attribute(std::string_view name) const override {
        const pugi::xml_attribute attribute = node_.attribute(std::string(name).c_str());
        if (!attribute) return std::nullopt;
        return attribute.value();
    }
    [[nodiscard]] XmlElementRef child(std::string_view name) const override {
        return wrap(node_.child(std::string(name).c_str()));
    }
    [[nodiscard]] XmlElementRef descendant(std::string_view name) const override {
        return wrap(node_.find_node([&](const pugi::xml_node& below) { return name == below.name(); }));
    }
    [[nodiscard]] std::vector<XmlElementRef> children(std::string_view name) const override {
        // The range goes by the text while it runs.
        const std::string wanted(name);
        std::vector<XmlElementRef> found;
        for (const pugi::xml_node child : node_.children(wanted.c_str())) found.push_back(wrap(child));
        return found;
    }

  private:
    [[nodiscard]] XmlElementRef wrap(pugi::xml_node other) const {
        if (!other) return nullptr;
        return std::make_shared<Element>(document_, other);
    }

    std::shared_ptr<const pugi::xml_document> document_;
    pugi::xml_node node_;
};

struct DepthCheck : pugi::xml_tree_walker {
    bool for_each(pugi::xml_node&) override { return depth() <= deepest; }
};

}  // namespace

XmlElementRef PugiXmlParser::parse(std::string_view text) const {
    auto document = std::make_shared<pugi::xml_document>();
    // Fragments keep the text outside the root element, which is then refused instead of overlooked.
    const pugi::xml_parse_result result = document->load_buffer(
        text.data(), text.size(), pugi::parse_default | pugi::parse_ws_pcdata_single | pugi::parse_fragment,
        pugi::encoding_utf8);
    if (!result) {
        const auto before = text.substr(0, static_cast<std::size_t>(std::max<std::ptrdiff_t>(result.offset, 0)));
        refuse(fmt::format("line {}: {}", 1 + std::ranges::count(before, '\n'), result.description()));
    }
    pugi::xml_node root;
    for (const pugi::xml_node node : document->children()) {
        if (node.type() == pugi::node_element && !root) {
            root = node;
        } else if (node.type() == pugi::node_element || !is_blank(node.value())) {
            refuse("there is more than one root element, or text outside of it");
        }
    }
    if (!root) refuse("there is no root element");
    DepthCheck check;
    if (!document->traverse(check)) refuse(fmt::format("elements nest deeper than {}", deepest));
    return std::make_shared<Element>(std::move(document), root);
}

}  // namespace kestrune::native
