#include <array>
#include <iterator>
#include <vector>

#include "brxllib/undo/snapshot/ColorState.h"
#include "brxllib/undo/snapshot/Facet.h"
#include "brxllib/undo/snapshot/LineFacets.h"
#include "excel/Style.h"

namespace kestrune::brxllib::undo {
namespace {

using automation::Value;
using excel::Font;
using excel::Interior;
using excel::Range;

// A property of a class that a range has, read and written as it stands.
template <class Owner, Value (Owner::*get)() const, void (Owner::*put)(Value) const>
struct Property {
    static Owner owner(const Range& cells) {
        if constexpr (std::is_same_v<Owner, Range>) {
            return cells;
        } else if constexpr (std::is_same_v<Owner, Font>) {
            return cells.Font();
        } else {
            return cells.Interior();
        }
    }
    static std::optional<Reading> read(const Range& cells) {
        Answers answers;
        answers.add((owner(cells).*get)());
        return answers.take();
    }
    static void write(const Range& cells, const Reading& reading) { (owner(cells).*put)(reading[0]); }
};

template <class Owner, Value (Owner::*get)() const, void (Owner::*put)(Value) const>
constexpr Facet property(std::string_view name) {
    using P = Property<Owner, get, put>;
    return {name, Place::Cells, &P::read, &P::write};
}

std::optional<Reading> read_style(const Range& cells) {
    const Value style = cells.Style();
    // Ranges of several styles have none.
    const auto object = style.is(Value::Kind::Object) ? automation::to_object(style) : nullptr;
    if (!object) return std::nullopt;
    return Reading{excel::Style(object).Name()};
}
void write_style(const Range& cells, const Reading& style) { cells.Style(style[0]); }

// Indents go with the alignment that carries them: an alignment that cannot resets them, and an indent may bring an
// alignment.
std::optional<Reading> read_alignment(const Range& cells) {
    Answers answers;
    if (answers.add(cells.HorizontalAlignment())) answers.add(cells.IndentLevel());
    return answers.take();
}
void write_alignment(const Range& cells, const Reading& alignment) {
    cells.HorizontalAlignment(alignment[0]);
    if (!(cells.IndentLevel() == alignment[1])) cells.IndentLevel(alignment[1]);
}

// A face follows the theme, or has a name of its own.
std::optional<Reading> read_face(const Range& cells) {
    const Font font = cells.Font();
    Answers answers;
    if (answers.add(font.Name())) answers.add(font.ThemeFont());
    return answers.take();
}
void write_face(const Range& cells, const Reading& face) {
    const Font font = cells.Font();
    font.Name(face[0]);
    if (automation::to_integer(face[1]) == excel::xlThemeFontNone) return;
    font.ThemeFont(face[1]);
    // The theme may have another face by now.
    if (!(font.Name() == face[0])) font.Name(face[0]);
}

std::optional<Reading> read_script(const Range& cells) {
    const Font font = cells.Font();
    Answers answers;
    if (answers.add(font.Superscript())) answers.add(font.Subscript());
    return answers.take();
}
void write_script(const Range& cells, const Reading& script) {
    const Font font = cells.Font();
    const bool raised = automation::to_boolean(script[0]);
    const bool lowered = automation::to_boolean(script[1]);
    if (!raised) font.Superscript(false);
    if (!lowered) font.Subscript(false);
    if (raised) font.Superscript(true);
    if (lowered) font.Subscript(true);
}

std::optional<Reading> read_font_color(const Range& cells) {
    return read_color(cells.Font(), [&] { return cells.Cells(1, 1).Font(); });
}
void write_font_color(const Range& cells, const Reading& color) { write_color(cells.Font(), color.data()); }

// The colour of a pattern's lines under the names that the colour of cells has.
class PatternLines {
  public:
    explicit PatternLines(Interior interior) : interior_(std::move(interior)) {}
    [[nodiscard]] Value Color() const { return interior_.PatternColor(); }
    void Color(Value color) const { interior_.PatternColor(std::move(color)); }
    [[nodiscard]] Value ColorIndex() const { return interior_.PatternColorIndex(); }
    void ColorIndex(Value index) const { interior_.PatternColorIndex(std::move(index)); }
    [[nodiscard]] Value ThemeColor() const { return interior_.PatternThemeColor(); }
    void ThemeColor(Value color) const { interior_.PatternThemeColor(std::move(color)); }
    [[nodiscard]] Value TintAndShade() const { return interior_.PatternTintAndShade(); }
    void TintAndShade(Value tint) const { interior_.PatternTintAndShade(std::move(tint)); }

  private:
    Interior interior_;
};

std::optional<Reading> read_fill(const Range& cells) {
    const Interior interior = cells.Interior();
    Answers answers;
    const Value pattern = interior.Pattern();
    if (!answers.add(pattern)) return std::nullopt;
    const std::int32_t kind = automation::to_integer(pattern);
    if (kind == excel::xlNone || is_gradient({pattern})) return answers.take();
    const auto first = [&] { return cells.Cells(1, 1).Interior(); };
    if (!answers.add(read_color(interior, first)) || kind == excel::xlSolid) return answers.take();
    answers.add(read_color(PatternLines(interior), [&] { return PatternLines(first()); }));
    return answers.take();
}
void write_fill(const Range& cells, const Reading& fill) {
    const Interior interior = cells.Interior();
    interior.Pattern(fill[0]);
    if (fill.size() > 3) write_color(interior, &fill[1]);
    if (fill.size() > 6) write_color(PatternLines(interior), &fill[4]);
}

constexpr auto cell_facets = std::to_array<Facet>({
    {"Style", Place::Cells, read_style, write_style},
    property<Range, &Range::NumberFormat, &Range::NumberFormat>("NumberFormat"),
    {"HorizontalAlignment", Place::Cells, read_alignment, write_alignment},
    property<Range, &Range::VerticalAlignment, &Range::VerticalAlignment>("VerticalAlignment"),
    property<Range, &Range::Orientation, &Range::Orientation>("Orientation"),
    property<Range, &Range::WrapText, &Range::WrapText>("WrapText"),
    property<Range, &Range::ShrinkToFit, &Range::ShrinkToFit>("ShrinkToFit"),
    property<Range, &Range::AddIndent, &Range::AddIndent>("AddIndent"),
    property<Range, &Range::ReadingOrder, &Range::ReadingOrder>("ReadingOrder"),
    property<Range, &Range::Locked, &Range::Locked>("Locked"),
    property<Range, &Range::FormulaHidden, &Range::FormulaHidden>("FormulaHidden"),
    {"Font.Name", Place::Cells, read_face, write_face},
    property<Font, &Font::Size, &Font::Size>("Font.Size"),
    property<Font, &Font::Bold, &Font::Bold>("Font.Bold"),
    property<Font, &Font::Italic, &Font::Italic>("Font.Italic"),
    property<Font, &Font::Underline, &Font::Underline>("Font.Underline"),
    property<Font, &Font::Strikethrough, &Font::Strikethrough>("Font.Strikethrough"),
    {"Font.Superscript", Place::Cells, read_script, write_script},
    {"Font.Color", Place::Cells, read_font_color, write_font_color},
    {fill_facet, Place::Cells, read_fill, write_fill},
});
constexpr std::size_t number_format_position = 1;

}  // namespace

std::span<const Facet> format_facets() {
    static const std::vector<Facet> all = [] {
        std::vector<Facet> facets(cell_facets.begin(), cell_facets.end());
        facets.insert(facets.end(), line_facets.begin(), line_facets.end());
        return facets;
    }();
    return all;
}

bool is_gradient(const Reading& fill) {
    const std::int32_t pattern = automation::to_integer(fill.at(0));
    return pattern == excel::xlPatternLinearGradient || pattern == excel::xlPatternRectangularGradient;
}

std::span<const Facet> number_format_facet() { return std::span(cell_facets).subspan(number_format_position, 1); }

}  // namespace kestrune::brxllib::undo
