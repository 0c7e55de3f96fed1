#include "host/xlsx/TextEdits.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

#include "host/xlsx/XmlCharacters.h"

namespace kestrune::host {
namespace {

std::uint32_t narrowed(std::size_t value) {
    if (value > std::numeric_limits<std::uint32_t>::max()) throw std::length_error("a part beyond 4 GB");
    return static_cast<std::uint32_t>(value);
}

}  // namespace

void TextEdits::replace(std::size_t at, std::size_t length, std::string_view with) {
    if (length == 0 && with.empty()) return;
    edits_.push_back({narrowed(at), narrowed(length), narrowed(pool_.size()), narrowed(with.size())});
    pool_ += with;
}

void TextEdits::set_attribute(const XmlElement& element, std::string_view name, std::optional<std::string_view> value,
                              std::string_view after) {
    std::size_t place = element.name_end();
    bool behind = false;
    for (auto found = element.first_attribute(); found; found = element.attribute_after(found)) {
        if (found.name != name) {
            if (!behind) place = found.end;
            behind = behind || (!after.empty() && found.name == after);
            continue;
        }
        if (!value) {
            std::size_t start = found.begin;
            while (start > 0 && static_cast<unsigned char>(element.document()[start - 1]) <= ' ') --start;
            remove(start, found.end - start);
            return;
        }
        if (found.value() != *value) {
            // The value goes between the quotes that are there, so both kinds are escaped.
            std::string escaped = escaped_attribute(*value);
            for (auto quote = escaped.find('\''); quote != std::string::npos; quote = escaped.find('\'', quote))
                escaped.replace(quote, 1, "&apos;");
            replace(found.end - 1 - found.raw.size(), found.raw.size(), escaped);
        }
        return;
    }
    if (!value) return;
    std::string text(" ");
    text.append(name).append("=\"");
    append_escaped_attribute(text, *value);
    text += '"';
    insert(place, text);
}

void TextEdits::set_content(const XmlElement& element, std::string_view content) {
    if (element.empty()) {
        append_content(element, content);
    } else if (content.empty()) {
        replace(element.tag_end() - 1, element.end() - element.tag_end() + 1, "/>");
    } else {
        replace(element.tag_end(), element.content_end() - element.tag_end(), content);
    }
}

void TextEdits::append_content(const XmlElement& element, std::string_view content) {
    if (content.empty()) return;
    if (!element.empty()) {
        insert(element.content_end(), content);
        return;
    }
    std::string text(">");
    text.append(content).append("</").append(element.name()).append(">");
    replace(element.tag_end() - 2, 2, text);
}

std::string TextEdits::apply(std::string_view text) {
    const auto before = [](const Edit& a, const Edit& b) {
        return a.at != b.at ? a.at < b.at : a.removed == 0 && b.removed != 0;
    };
    if (!std::is_sorted(edits_.begin(), edits_.end(), before)) std::stable_sort(edits_.begin(), edits_.end(), before);
    std::size_t size = text.size();
    for (const auto& edit : edits_) size += edit.length;
    std::string out;
    out.reserve(size);
    std::size_t done = 0;
    for (const auto& edit : edits_) {
        if (edit.at < done || std::size_t{edit.at} + edit.removed > text.size())
            throw std::logic_error("edits of one text overlap");
        out.append(text, done, edit.at - done);
        out.append(pool_, edit.text, edit.length);
        done = std::size_t{edit.at} + edit.removed;
    }
    out.append(text, done);
    return out;
}

}  // namespace kestrune::host
