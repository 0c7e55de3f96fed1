#include "vba/DirectoryName.h"

#include <algorithm>
#include <cstdint>

#include "vba/VbaError.h"

namespace kestrune::vba {
namespace {

constexpr std::size_t longest_name = 31;

// Names of Visual Basic's and of workbooks are ASCII, a few with a control character in front; others are kept apart by
// their own letters only.
char16_t upper(char16_t c) { return c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - u'a' + u'A') : c; }

}  // namespace

std::u16string directory_name(std::string_view name) {
    std::u16string out;
    for (const char c : name) {
        if (static_cast<unsigned char>(c) >= 0x80) {
            throw VbaError("\"" + std::string(name) + "\" cannot name a stream: a letter is not ASCII");
        }
        if (std::string_view("/\\:!").find(c) != std::string_view::npos) {
            throw VbaError("\"" + std::string(name) + "\" cannot name a stream: it holds " + c);
        }
        out += static_cast<char16_t>(c);
    }
    if (out.empty() || out.size() > longest_name) {
        throw VbaError("\"" + std::string(name) + "\" cannot name a stream: a name has 1 to 31 characters");
    }
    return out;
}

std::string from_directory_name(std::u16string_view name) {
    std::string out;
    for (const char16_t c : name) {
        if (c >= 0x80 || c == 0) throw VbaError("a stream's name is not ASCII");
        out += static_cast<char>(c);
    }
    return out;
}

std::strong_ordering compare_names(std::u16string_view left, std::u16string_view right) {
    if (left.size() != right.size()) return left.size() <=> right.size();
    for (std::size_t i = 0; i < left.size(); ++i) {
        if (const auto order = upper(left[i]) <=> upper(right[i]); order != std::strong_ordering::equal) return order;
    }
    return std::strong_ordering::equal;
}

}  // namespace kestrune::vba
