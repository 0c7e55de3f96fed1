#include "host/model/FormatHash.h"

#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <type_traits>

#include "host/model/StyleTable.h"

namespace kestrune::host {
namespace {

class Hash {
  public:
    template <class... Parts>
    explicit Hash(const Parts&... parts) {
        (add(parts), ...);
    }
    [[nodiscard]] std::size_t value() const { return value_; }

  private:
    void mix(std::size_t part) { value_ = (value_ ^ part) * 0x9E3779B97F4A7C15U + (value_ >> 29); }

    void add(double number) { mix(std::hash<double>{}(number)); }
    void add(const std::string& text) { mix(std::hash<std::string>{}(text)); }
    void add(const Color& color) {
        add(color.kind);
        add(color.value);
        add(color.tint);
    }
    void add(const Line& line) {
        add(line.style);
        add(line.color);
    }
    void add(const Fill& fill) { mix(hash_of(fill)); }
    void add(const Border& border) { mix(hash_of(border)); }
    template <class T>
    void add(const std::optional<T>& part) {
        mix(part.has_value() ? 1 : 2);
        if (part) add(*part);
    }
    template <class T>
    requires(std::is_enum_v<T> || std::is_integral_v<T>) void add(T part) { mix(static_cast<std::size_t>(part)); }

    std::size_t value_ = 0x51ED270B;
};

}  // namespace

std::size_t hash_of(const Font& f) {
    return Hash(f.name, f.size, f.bold, f.italic, f.strike, f.outline, f.shadow, f.condense, f.extend, f.underline,
                f.vertical, f.color, f.family, f.charset, f.scheme, f.extra)
        .value();
}

std::size_t hash_of(const Fill& f) { return Hash(f.pattern, f.foreground, f.background, f.gradient).value(); }

std::size_t hash_of(const Border& b) {
    return Hash(b.left, b.right, b.top, b.bottom, b.diagonal, b.diagonal_up, b.diagonal_down, b.outline, b.extra)
        .value();
}

std::size_t hash_of(const CellFormat& f) {
    const Alignment& a = f.alignment;
    return Hash(f.number_format, f.font, f.fill, f.border, f.named_style, a.horizontal, a.vertical, a.rotation,
                a.indent, a.relative_indent, a.reading_order, a.wrap, a.shrink, a.justify_last_line,
                f.protection.locked, f.protection.hidden, f.quote_prefix, f.pivot_button, f.extra)
        .value();
}

std::size_t hash_of(const DifferentialFormat& f) {
    return Hash(f.bold, f.italic, f.strike, f.underline, f.font_color, f.fill, f.border, f.number_format, f.source)
        .value();
}

}  // namespace kestrune::host
