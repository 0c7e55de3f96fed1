#include "host/xlsx/XmlElement.h"

#include <algorithm>
#include <charconv>

#include "host/xlsx/XmlCharacters.h"

namespace kestrune::host {
namespace {

bool white(char c) { return c == ' ' || c == '\n' || c == '\r' || c == '\t'; }

std::size_t past(std::string_view text, std::size_t from, std::string_view what) {
    const auto at = text.find(what, from);
    return at == std::string_view::npos ? text.size() : at + what.size();
}

// Past the ">" of the tag at `at`.
std::size_t tag_end(std::string_view text, std::size_t at) {
    while (at < text.size()) {
        const char c = text[at];
        if (c == '>') return at + 1;
        if (c == '"' || c == '\'') {
            at = past(text, at + 1, {&c, 1});
        } else {
            ++at;
        }
    }
    return text.size();
}

// If a comment, processing instruction, CDATA section or declaration starts at `at`, the place past it; else `at`.
std::size_t past_special(std::string_view text, std::size_t at) {
    const auto rest = text.substr(at, 9);
    if (rest.starts_with("<!--")) return past(text, at + 4, "-->");
    if (rest.starts_with("<![CDATA[")) return past(text, at + 9, "]]>");
    if (rest.starts_with("<?")) return past(text, at + 2, "?>");
    if (rest.starts_with("<!")) return past(text, at + 2, ">");
    return at;
}

// The next start or end tag; the text's size when there is none.
std::size_t next_tag(std::string_view text, std::size_t at) {
    while (true) {
        at = text.find('<', at);
        if (at == std::string_view::npos) return text.size();
        const auto after = past_special(text, at);
        if (after == at) return at;
        at = after;
    }
}

bool is_end_tag(std::string_view text, std::size_t at) { return text.substr(at, 2) == "</"; }

}  // namespace

std::string relationship_id(const XmlElement& element) {
    for (auto attribute = element.first_attribute(); attribute; attribute = element.attribute_after(attribute)) {
        if (attribute.name.ends_with(":id")) return attribute.value();
    }
    return {};
}

bool xml_flag(std::string_view value) { return value == "1" || value == "true" || value == "on"; }

std::string XmlAttribute::value() const { return unescaped_attribute(raw); }

XmlElement::XmlElement(std::string_view text, std::size_t begin) : text_(text), begin_(begin), name_end_(begin + 1) {
    while (name_end_ < text.size() && !white(text[name_end_]) && text[name_end_] != '>' && text[name_end_] != '/')
        ++name_end_;
    tag_end_ = std::max(host::tag_end(text, name_end_), begin + 2);
    if (tag_end_ > text.size()) *this = {};
}

XmlElement XmlElement::root(std::string_view text) {
    const auto at = next_tag(text, 0);
    if (at == text.size() || is_end_tag(text, at)) return {};
    return {text, at};
}

std::string_view XmlElement::local() const {
    const auto whole = name();
    const auto colon = whole.find(':');
    return colon == std::string_view::npos ? whole : whole.substr(colon + 1);
}

std::string_view XmlElement::prefix() const {
    const auto whole = name();
    return whole.substr(0, whole.size() - local().size());
}

void XmlElement::locate_end() const {
    if (empty()) {
        content_end_ = end_ = tag_end_;
        return;
    }
    std::size_t at = tag_end_;
    for (int depth = 1;;) {
        at = next_tag(text_, at);
        if (at == text_.size()) {
            content_end_ = end_ = at;
            return;
        }
        const auto after = host::tag_end(text_, at + 1);
        if (is_end_tag(text_, at)) {
            if (--depth == 0) {
                content_end_ = at;
                end_ = after;
                return;
            }
        } else if (text_[after - 2] != '/') {
            ++depth;
        }
        at = after;
    }
}

std::size_t XmlElement::content_end() const {
    if (end_ == 0) locate_end();
    return content_end_;
}

std::size_t XmlElement::end() const {
    if (end_ == 0) locate_end();
    return end_;
}

XmlAttribute XmlElement::attribute_from(std::size_t at) const {
    const auto stop = tag_end_ - 1;  // the ">"
    while (at < stop && white(text_[at])) ++at;
    if (at >= stop || text_[at] == '/') return {};
    XmlAttribute found;
    found.begin = at;
    while (at < stop && text_[at] != '=' && !white(text_[at])) ++at;
    found.name = text_.substr(found.begin, at - found.begin);
    while (at < stop && text_[at] != '"' && text_[at] != '\'') ++at;
    if (at >= stop) return {};
    const auto close = text_.find(text_[at], at + 1);
    if (close == std::string_view::npos || close >= stop) return {};
    found.raw = text_.substr(at + 1, close - at - 1);
    found.end = close + 1;
    return found;
}

std::optional<XmlAttribute> XmlElement::attribute(std::string_view name) const {
    for (auto found = first_attribute(); found; found = attribute_after(found)) {
        if (found.name == name) return found;
    }
    return std::nullopt;
}

std::size_t XmlElement::attributes_end() const {
    std::size_t end = name_end_;
    for (auto found = first_attribute(); found; found = attribute_after(found)) end = found.end;
    return end;
}

std::string XmlElement::value(std::string_view name) const {
    const auto found = attribute(name);
    return found ? found->value() : std::string();
}

bool XmlElement::flag(std::string_view name, bool fallback) const {
    const auto found = attribute(name);
    return found ? xml_flag(found->raw) : fallback;
}

std::int64_t XmlElement::integer(std::string_view name, std::int64_t fallback) const {
    const auto found = attribute(name);
    if (!found) return fallback;
    std::int64_t value = 0;
    const auto [end, fault] = std::from_chars(found->raw.data(), found->raw.data() + found->raw.size(), value);
    return fault == std::errc{} && end == found->raw.data() + found->raw.size() ? value : fallback;
}

double XmlElement::number(std::string_view name, double fallback) const {
    const auto found = attribute(name);
    if (!found) return fallback;
    double value = 0;
    const auto [end, fault] = std::from_chars(found->raw.data(), found->raw.data() + found->raw.size(), value);
    return fault == std::errc{} && end == found->raw.data() + found->raw.size() ? value : fallback;
}

XmlElement XmlElement::first_child() const {
    if (empty()) return {};
    const auto at = next_tag(text_, tag_end_);
    if (at == text_.size() || is_end_tag(text_, at)) return {};
    return {text_, at};
}

XmlElement XmlElement::next() const {
    const auto at = next_tag(text_, end());
    if (at == text_.size() || is_end_tag(text_, at)) return {};
    return {text_, at};
}

XmlElement XmlElement::child(std::string_view local_name) const {
    for (auto element = first_child(); element; element = element.next()) {
        if (element.local() == local_name) return element;
    }
    return {};
}

std::string XmlElement::text() const {
    std::string out;
    const auto stop = content_end();
    for (std::size_t at = tag_end_; at < stop;) {
        const auto markup = std::min(text_.find('<', at), stop);
        out += unescaped(text_.substr(at, markup - at));
        if (markup == stop) break;
        const auto after = past_special(text_, markup);
        if (after == markup) {
            at = XmlElement(text_, markup).end();
            continue;
        }
        if (text_.substr(markup, 9) == "<![CDATA[") out += text_.substr(markup + 9, after - markup - 12);
        at = after;
    }
    return out;
}

}  // namespace kestrune::host
