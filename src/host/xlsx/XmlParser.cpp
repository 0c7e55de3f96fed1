#include "host/xlsx/XmlParser.h"

#include <expat.h>
#include <fmt/format.h>

#include <algorithm>
#include <new>
#include <utility>

namespace kestrune::host {
namespace {

// Expat copies what it is fed; small helpings stay in the cache.
constexpr std::size_t helping = std::size_t{128} << 10;

class WellFormedness : public XmlParser {
  public:
    WellFormedness(const Package& from, const std::string& name, std::string_view root)
        : XmlParser(from, name), root_(root) {
        listen(false);
    }
    bool strict = false;

  protected:
    void on_start(std::string_view name, XmlAttributes attributes, int depth) override {
        if (depth != 0) return;
        const auto colon = name.find(':');
        if (root_.empty()) return;
        const auto uri = namespace_of(name, attributes);
        strict = uri == StrictMain;
        if (name.substr(colon + 1) != root_ || (!strict && uri != TransitionalMain))
            fail(fmt::format("is not a <{}> part: it begins with <{}>", root_, name));
    }
    void on_end(int /*depth*/) override {}

  private:
    std::string_view root_;
};

}  // namespace

XmlParser::XmlParser(const Package& package, std::string part)
    : package_(package), part_(std::move(part)), parser_(XML_ParserCreate("UTF-8")) {
    if (parser_ == nullptr) throw std::bad_alloc();
    XML_SetUserData(parser_, this);
    XML_SetElementHandler(parser_, &XmlParser::start, &XmlParser::end);
    XML_SetStartDoctypeDeclHandler(parser_, &XmlParser::doctype);
    listen(true);
}

XmlParser::~XmlParser() { XML_ParserFree(parser_); }

void XmlParser::listen(bool to_text) { XML_SetCharacterDataHandler(parser_, to_text ? &XmlParser::text : nullptr); }

void XmlParser::parse(std::string_view text) {
    std::size_t done = 0;
    do {
        const auto size = std::min(helping, text.size() - done);
        const bool last = done + size == text.size();
        const auto status = XML_Parse(parser_, text.data() + done, static_cast<int>(size), last ? 1 : 0);
        if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
        if (status == XML_STATUS_ERROR) {
            if (XML_GetErrorCode(parser_) == XML_ERROR_NO_MEMORY) throw std::bad_alloc();
            fail(fmt::format("is broken XML: {}", XML_ErrorString(XML_GetErrorCode(parser_))));
        }
        done += size;
    } while (done < text.size());
}

std::size_t XmlParser::tag_begin() const { return static_cast<std::size_t>(XML_GetCurrentByteIndex(parser_)); }

std::size_t XmlParser::tag_end() const {
    return tag_begin() + static_cast<std::size_t>(XML_GetCurrentByteCount(parser_));
}

void XmlParser::fail(std::string message) const {
    throw package_.error(part_, std::move(message), XML_GetCurrentLineNumber(parser_),
                         XML_GetCurrentColumnNumber(parser_) + 1);
}

// No exception may pass through expat: it is kept, the parser stopped, and parse() throws it on.
template <class Call>
void XmlParser::guarded(Call&& call) {
    if (failure_) return;
    try {
        call();
    } catch (...) {
        failure_ = std::current_exception();
        XML_StopParser(parser_, XML_FALSE);
    }
}

void XmlParser::start(void* self, const char* name, const char** attributes) {
    auto& parser = *static_cast<XmlParser*>(self);
    parser.guarded([&] {
        if (parser.depth_ >= max_depth) parser.fail("nests its elements too deeply");
        parser.on_start(name, attributes, parser.depth_);
        ++parser.depth_;
    });
}

void XmlParser::end(void* self, const char* /*name*/) {
    auto& parser = *static_cast<XmlParser*>(self);
    parser.guarded([&] { parser.on_end(--parser.depth_); });
}

void XmlParser::text(void* self, const char* characters, int length) {
    auto& parser = *static_cast<XmlParser*>(self);
    parser.guarded([&] { parser.on_text({characters, static_cast<std::size_t>(length)}); });
}

void XmlParser::doctype(void* self, const char*, const char*, const char*, int) {
    auto& parser = *static_cast<XmlParser*>(self);
    parser.guarded([&] { parser.fail("has a document type declaration, which workbooks may not have"); });
}

bool check_xml(const Package& package, const std::string& part, std::string_view text, std::string_view root) {
    WellFormedness check(package, part, root);
    check.parse(text);
    return check.strict;
}

LineAndColumn place_of(std::string_view text, std::size_t offset) {
    const auto before = text.substr(0, offset);
    const auto line_start = before.rfind('\n');
    return {static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n')) + 1,
            before.size() - (line_start == std::string_view::npos ? 0 : line_start + 1) + 1};
}

std::string_view namespace_of(std::string_view name, XmlAttributes attributes) {
    const auto colon = name.find(':');
    const auto prefix = colon == std::string_view::npos ? std::string_view() : name.substr(0, colon);
    for (auto attribute = attributes; *attribute != nullptr; attribute += 2) {
        const std::string_view key = *attribute;
        if (!key.starts_with("xmlns")) continue;
        const auto bound = key.substr(5);
        if (prefix.empty() ? bound.empty() : bound.starts_with(':') && bound.substr(1) == prefix) return attribute[1];
    }
    return {};
}

}  // namespace kestrune::host
