#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace kestrune::host {

// An attribute where it stands: from the first byte of its name to past its closing quote.
struct XmlAttribute {
    std::string_view name;
    std::string_view raw;  // between the quotes, references not resolved
    std::size_t begin = 0;
    std::size_t end = 0;

    explicit operator bool() const { return end != 0; }  // whether there is one
    [[nodiscard]] std::string value() const;
};

// An element where it stands in a text that a parser has found well-formed: what reads and patches parts without
// building a tree. Knows byte offsets, copies nothing, looks only as far as it is asked. On text that is not
// well-formed the answers are useless but nothing outside the text is read.
class XmlElement {
  public:
    XmlElement() = default;                                // no element
    XmlElement(std::string_view text, std::size_t begin);  // text[begin] is the "<" of a start tag
    [[nodiscard]] static XmlElement root(std::string_view text);

    explicit operator bool() const { return tag_end_ != 0; }

    [[nodiscard]] std::string_view name() const { return text_.substr(begin_ + 1, name_end_ - begin_ - 1); }
    [[nodiscard]] std::string_view local() const;
    [[nodiscard]] std::string_view prefix() const;                           // with its colon; empty when there is none
    [[nodiscard]] bool empty() const { return text_[tag_end_ - 2] == '/'; }  // written <like this/>

    [[nodiscard]] std::size_t begin() const { return begin_; }
    [[nodiscard]] std::size_t name_end() const { return name_end_; }
    [[nodiscard]] std::size_t tag_end() const { return tag_end_; }  // past the start tag's ">"
    [[nodiscard]] std::size_t content_end() const;                  // of the end tag's "<"; tag_end() when empty
    [[nodiscard]] std::size_t end() const;                          // past the end tag
    [[nodiscard]] std::string_view source() const { return text_.substr(begin_, end() - begin_); }
    [[nodiscard]] std::string_view document() const { return text_; }

    // Attributes in the order of the text; nothing after the last.
    [[nodiscard]] XmlAttribute first_attribute() const { return attribute_from(name_end_); }
    [[nodiscard]] XmlAttribute attribute_after(const XmlAttribute& attribute) const {
        return attribute_from(attribute.end);
    }
    [[nodiscard]] std::optional<XmlAttribute> attribute(std::string_view name) const;
    [[nodiscard]] std::size_t attributes_end() const;  // past the last attribute, else past the name

    // Attribute values; the fallback when absent or unreadable.
    [[nodiscard]] std::string value(std::string_view name) const;
    [[nodiscard]] bool flag(std::string_view name, bool fallback = false) const;
    [[nodiscard]] std::int64_t integer(std::string_view name, std::int64_t fallback = 0) const;
    [[nodiscard]] double number(std::string_view name, double fallback = 0) const;

    [[nodiscard]] XmlElement first_child() const;
    [[nodiscard]] XmlElement next() const;                              // the next sibling
    [[nodiscard]] XmlElement child(std::string_view local_name) const;  // the first of that local name
    [[nodiscard]] std::string text() const;                             // character data of the element itself

  private:
    [[nodiscard]] XmlAttribute attribute_from(std::size_t at) const;
    void locate_end() const;

    std::string_view text_;
    std::size_t begin_ = 0;
    std::size_t name_end_ = 0;
    std::size_t tag_end_ = 0;
    mutable std::size_t content_end_ = 0;
    mutable std::size_t end_ = 0;
};

// The id of the relationship that an element names: its one attribute called "id" that has a prefix; else empty.
[[nodiscard]] std::string relationship_id(const XmlElement& element);

// "1", "true" and "on" are yes.
[[nodiscard]] bool xml_flag(std::string_view value);

}  // namespace kestrune::host
