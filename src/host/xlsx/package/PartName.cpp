#include "host/xlsx/package/PartName.h"

#include <algorithm>
#include <vector>

namespace kestrune::host {
namespace {

std::vector<std::string_view> segments_of(std::string_view name) {
    std::vector<std::string_view> segments;
    for (std::size_t start = 0; start <= name.size();) {
        const std::size_t end = std::min(name.find_first_of("/\\", start), name.size());
        segments.push_back(name.substr(start, end - start));
        start = end + 1;
    }
    return segments;
}

int hex_digit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

std::string_view folder_of(std::string_view part) {
    const std::size_t slash = part.rfind('/');
    return slash == std::string_view::npos ? std::string_view() : part.substr(0, slash + 1);
}

}  // namespace

std::optional<std::string> normal_part_name(std::string_view name) {
    std::vector<std::string_view> kept;
    for (const std::string_view segment : segments_of(name)) {
        if (segment.empty() || segment == ".") continue;
        if (segment != "..") {
            kept.push_back(segment);
        } else if (kept.empty()) {
            return std::nullopt;
        } else {
            kept.pop_back();
        }
    }
    std::string normal;
    normal.reserve(name.size());
    for (const std::string_view segment : kept) {
        if (!normal.empty()) normal += '/';
        normal += segment;
    }
    return normal;
}

std::string part_key(std::string_view name) { return lower_case(normal_part_name(name).value_or(std::string())); }

std::string lower_case(std::string_view text) {
    std::string lower(text);
    for (char& c : lower) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return lower;
}

std::string percent_decoded(std::string_view text) {
    std::string decoded;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%' && i + 2 < text.size() && hex_digit(text[i + 1]) >= 0 && hex_digit(text[i + 2]) >= 0) {
            decoded += static_cast<char>(hex_digit(text[i + 1]) * 16 + hex_digit(text[i + 2]));
            i += 2;
        } else {
            decoded += text[i];
        }
    }
    return decoded;
}

std::optional<std::string> resolve_reference(std::string_view source, std::string_view reference) {
    reference = reference.substr(0, reference.find('#'));
    if (reference.empty()) return std::string(source);
    if (reference.front() == '/' || reference.front() == '\\') return normal_part_name(reference);
    return normal_part_name(std::string(folder_of(source)) + std::string(reference));
}

std::string reference_between(std::string_view source, std::string_view target) {
    std::string_view from = folder_of(source);
    while (!from.empty()) {
        const std::size_t step = from.find('/') + 1;
        if (target.substr(0, step) != from.substr(0, step)) break;
        from.remove_prefix(step);
        target.remove_prefix(step);
    }
    std::string reference;
    for (const char c : from) {
        if (c == '/') reference += "../";
    }
    reference += target;
    return reference;
}

std::string relationship_part_of(std::string_view part) {
    const std::string_view folder = folder_of(part);
    return std::string(folder) + "_rels/" + std::string(part.substr(folder.size())) + ".rels";
}

std::string extension_of(std::string_view part) {
    const std::string_view name = part.substr(folder_of(part).size());
    const std::size_t dot = name.rfind('.');
    return dot == std::string_view::npos ? std::string() : lower_case(name.substr(dot + 1));
}

}  // namespace kestrune::host
