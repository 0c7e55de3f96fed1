#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/xlsx/XmlElement.h"

namespace kestrune::host {

// Changes to a text, noted against its unchanged bytes and made in one pass; what no edit names stays as it is.
class TextEdits {
  public:
    void replace(std::size_t at, std::size_t length, std::string_view with);
    void insert(std::size_t at, std::string_view what) { replace(at, 0, what); }
    void remove(std::size_t at, std::size_t length) { replace(at, length, {}); }

    // Writes, changes or (without a value) takes away an attribute; the same value leaves its bytes alone. A new
    // one goes behind the attribute `after`, else behind all.
    void set_attribute(const XmlElement& element, std::string_view name, std::optional<std::string_view> value,
                       std::string_view after = {});
    // New content between an element's tags, opening an empty one.
    void set_content(const XmlElement& element, std::string_view content);
    // Content at the end of an element's own, opening an empty one.
    void append_content(const XmlElement& element, std::string_view content);

    [[nodiscard]] bool empty() const { return edits_.empty(); }
    // The text with all edits made. Insertions at one place follow in the order they were noted and stand before
    // what replaces the bytes there. Edits that overlap are a std::logic_error.
    [[nodiscard]] std::string apply(std::string_view text);

  private:
    struct Edit {
        std::uint32_t at;
        std::uint32_t removed;
        std::uint32_t text;  // where its text starts in pool_
        std::uint32_t length;
    };

    std::vector<Edit> edits_;
    std::string pool_;
};

}  // namespace kestrune::host
