#include "smart/copy/SmartCopy.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "automation/Text.h"
#include "core/bridges/Selection.h"
#include "excel/Constants.h"
#include "forms/MsgBox.h"
#include "settings/cUserSettings.h"
#include "smart/copy/Condition.h"
#include "smart/copy/Direction.h"
#include "smart/copy/FormatCopy.h"
#include "smart/copy/OffsetAdjustment.h"
#include "smart/copy/Scan.h"
#include "smart/copy/fSmartCopy.h"

namespace kestrune::smart {
namespace {

using automation::ResumeNext;
using automation::Value;
using settings::SmartCopyOptions;

// Cells whose contents are held at a time.
constexpr std::int32_t cells_at_once = 200'000;

// No calculation and no drawing while it lives.
class CalculationPause {
  public:
    explicit CalculationPause(const core::SharedState& shared)
        : attempt_(shared.trace), application_(shared.application) {
        attempt_.assign(mode_, [&] { return application_.Calculation(); });
        attempt_([&] { application_.Calculation(excel::xlCalculationManual); });
        attempt_([&] { application_.ScreenUpdating(false); });
    }
    ~CalculationPause() {
        attempt_([&] { application_.ScreenUpdating(true); });
        if (mode_) attempt_([&] { application_.Calculation(*mode_); });
    }
    CalculationPause(const CalculationPause&) = delete;
    CalculationPause& operator=(const CalculationPause&) = delete;

  private:
    ResumeNext attempt_;
    excel::Application application_;
    std::optional<std::int32_t> mode_;
};

// A label is what shows something. What a formula shows that has not been calculated yet is not known: it may be one.
bool is_label(const Value& value, const Value& formula) {
    if (const auto* text = value.if_is<std::string>()) return !automation::trimmed(*text).empty();
    return !value.is(Value::Kind::Empty) || formula != Value("");
}

// The values of a rectangle, or of its only cell.
std::vector<Value> elements_of(const Value& values) {
    const automation::Array* array = values.array();
    return array ? array->elements() : std::vector<Value>{values};
}

// The kinds of contents as far as they tell texts from others.
std::vector<std::int32_t> texts_among(const std::vector<Value>& values) {
    std::vector<std::int32_t> kinds;
    for (const Value& value : values)
        kinds.push_back(value.is(Value::Kind::String) ? content_is_text : content_is_empty);
    return kinds;
}

class SmartCopy {
  public:
    SmartCopy(core::SharedState& shared, const CopyDirection& direction)
        : shared_(shared), direction_(direction), attempt_(shared.trace) {}

    void run() {
        selection_ = core::selected_range(shared_);
        if (!selection_) return;
        attempt_([&] {
            sheet_ = selection_.Worksheet();
            if (!one_line_selected()) return say(direction_.needs_one_line, core::product_title);
            if (!read_sources()) return say(core::Text::NothingToCopy, core::product_title);
            const excel::Range label = find_label();
            if (!label) return say(direction_.no_label, direction_.no_label_caption);
            if (!choose_options()) return;
            const auto lines = find_lines(label);
            if (lines.empty() || !recorded(lines)) return;
            const CalculationPause pause(shared_);
            copy_to(lines);
        });
    }

  private:
    void say(core::Text number, std::string_view caption) const {
        forms::MsgBox(shared_.presenter, shared_.general().message(number), forms::vbOKOnly, caption);
    }

    // The range of lines and places.
    [[nodiscard]] excel::Range range(std::int32_t first_line, std::int32_t first_place, std::int32_t last_line,
                                     std::int32_t last_place) const {
        return sheet_.Range(address_of(direction_.rectangle(first_line, first_place, last_line, last_place)));
    }
    [[nodiscard]] std::int32_t line_of(const excel::Range& cells) const {
        return direction_.down ? cells.Row() : cells.Column();
    }
    [[nodiscard]] std::int32_t place_of(const excel::Range& cells) const {
        return direction_.down ? cells.Column() : cells.Row();
    }
    [[nodiscard]] std::int32_t lines_in(const excel::Range& cells) const {
        return direction_.down ? cells.Rows().Count() : cells.Columns().Count();
    }
    [[nodiscard]] std::int32_t places_in(const excel::Range& cells) const {
        return direction_.down ? cells.Columns().Count() : cells.Rows().Count();
    }

    [[nodiscard]] bool one_line_selected() const {
        return selection_.Areas().Count() == 1 && lines_in(selection_) == 1;
    }

    // What the selected cells hold; beyond the used range that is nothing. False when it is nothing anywhere.
    bool read_sources() {
        source_line_ = line_of(selection_);
        const excel::Range used(shared_.spreadsheet().in_use(selection_.object()));
        if (!used) return false;
        // A formula is something before it is calculated, too.
        sources_ = elements_of(used.FormulaR1C1());
        if (std::ranges::all_of(sources_, [](const Value& source) { return source == Value(""); })) return false;
        first_place_ = place_of(used);
        last_place_ = first_place_ + places_in(used) - 1;
        previous_.assign(sources_.size(), source_line_);
        keep_prefixes(elements_of(used.Value()));
        return true;
    }

    // Texts that were entered with "'" are entered so again: without it they might be numbers or formulas.
    void keep_prefixes(const std::vector<Value>& values) {
        for (std::size_t i = 0; i < sources_.size(); ++i) {
            if (!values[i].is(Value::Kind::String) || values[i] != sources_[i]) continue;
            const std::int32_t place = first_place_ + static_cast<std::int32_t>(i);
            Value prefix;
            attempt_.assign(prefix, [&] { return range(source_line_, place, source_line_, place).PrefixCharacter(); });
            if (prefix == Value("'")) sources_[i] = "'" + automation::to_text(sources_[i]);
        }
    }

    [[nodiscard]] excel::Range find_label() const {
        const core::diBRXLLib& library = shared_.spreadsheet();
        const automation::ObjectRef first = selection_.Cells(1, 1).object();
        automation::ObjectRef label = direction_.down ? library.row_label(first) : library.column_label(first);
        if (!label) label = direction_.down ? library.row_heading(first) : library.column_heading(first);
        return excel::Range(label);
    }

    // False when the person cancels, or the interval is none.
    bool choose_options() {
        SmartCopyOptions& kept = shared_.settings().*direction_.options;
        if (kept.Show) {
            fSmartCopy form(shared_, direction_, kept);
            form.Show(shared_.presenter);
            if (!form.confirmed()) return false;
        }
        options_ = kept;
        if (options_.IntervalValues >= 0) return true;
        say(core::Text::IntervalOutOfRange, core::product_title);
        return false;
    }

    // The lines that get a copy.
    [[nodiscard]] std::vector<std::int32_t> find_lines(const excel::Range& label) const {
        const std::int32_t first = line_of(label);
        const excel::Range used = sheet_.UsedRange();
        const std::int32_t last = line_of(used) + lines_in(used) - 1;
        if (last <= first) return {};
        const std::int32_t place = place_of(label);
        const excel::Range candidates = range(first, place, last, place);
        const auto values = elements_of(candidates.Value());
        const auto formulas = elements_of(candidates.Formula());
        std::vector<bool> labelled;
        for (std::size_t i = 0; i < values.size(); ++i) labelled.push_back(is_label(values[i], formulas[i]));
        while (!labelled.empty() && !labelled.back()) labelled.pop_back();
        return target_lines(labelled, first, scan_choice(options_), options_.IntervalValues);
    }

    [[nodiscard]] bool recorded(const std::vector<std::int32_t>& lines) const {
        bool wanted = true;
        // A library that keeps no record is no reason to do nothing.
        attempt_.assign(wanted, [&] {
            using enum core::Aspects;
            return shared_.spreadsheet().record(range(lines.front(), first_place_, lines.back(), last_place_).object(),
                                                Contents | Formats | Filled);
        });
        return wanted;
    }

    void copy_to(const std::vector<std::int32_t>& lines) {
        attempt_([&] { plan(lines); });
        FormatCopy formats(shared_, sheet_, direction_, source_line_, {first_place_, last_place_}, cells_);
        // A cell that takes texts only would take a formula for one.
        if (options_.Format) formats.copy_number_formats();
        for (auto& [key, write] : writes_) {
            const CellGroups cells(shared_, sheet_, rectangles_of(direction_, std::move(write.cells)));
            cells.each([&](const excel::Range& range) { range.FormulaR1C1(write.content); });
        }
        if (options_.Format) formats.copy_all();
    }

    // Decides for each cell whether it is copied to, and what it gets.
    void plan(const std::vector<std::int32_t>& lines) {
        const core::diBRVBLib& library = shared_.general();
        if (options_.Values) conditions_.push_back(read_condition(library, options_.Operator, options_.Value, false));
        if (options_.Text) conditions_.push_back(read_condition(library, "NOT EQUAL", "", true));
        const std::int32_t at_once = std::max(1, cells_at_once / static_cast<std::int32_t>(sources_.size()));
        for (std::size_t begin = 0; begin < lines.size();) {
            std::size_t end = begin + 1;
            while (end < lines.size() && lines[end] - lines[begin] < at_once) ++end;
            plan_part(
                {lines.begin() + static_cast<std::ptrdiff_t>(begin), lines.begin() + static_cast<std::ptrdiff_t>(end)});
            begin = end;
        }
    }

    void plan_part(const std::vector<std::int32_t>& lines) {
        const std::int32_t first = lines.front();
        const std::int32_t count = lines.back() - first + 1;
        const excel::Range block = range(first, first_place_, lines.back(), last_place_);
        std::vector<Value> formulas;
        std::vector<Value> values;
        std::vector<std::int32_t> kinds;
        if (options_.Formulas) formulas = elements_of(block.Formula());
        if (!conditions_.empty()) {
            values = elements_of(block.Value());
            kinds = options_.Values ? shared_.spreadsheet().content_kinds(block.object()) : texts_among(values);
        }
        const auto places = static_cast<std::int32_t>(sources_.size());
        for (const std::int32_t line : lines) {
            for (std::int32_t place = 0; place < places; ++place) {
                const auto at = static_cast<std::size_t>(direction_.down ? (line - first) * places + place
                                                                         : place * count + line - first);
                const bool has_formula = options_.Formulas && automation::to_text(formulas[at]).starts_with('=');
                const bool skipped = has_formula || std::ranges::any_of(conditions_, [&](const Condition& condition) {
                                         return EvaluateCondition(condition, {kinds[at], values[at]});
                                     });
                if (!skipped) copy_source(line, static_cast<std::size_t>(place));
            }
        }
    }

    void copy_source(std::int32_t line, std::size_t place) {
        const Value& source = sources_[place];
        Value content = source;
        std::string key;
        if (const auto* text = source.if_is<std::string>()) {
            key = *text;
            if (options_.Adjust) {
                key = direction_.down ? AdjustRowOffsets(previous_[place], line, *text)
                                      : AdjustColumnOffsets(previous_[place], line, *text);
            }
            content = key;
        } else {
            key = "place " + std::to_string(place);
        }
        previous_[place] = line;
        const LinePlace cell{line, first_place_ + static_cast<std::int32_t>(place)};
        Write& write = writes_.try_emplace(key, Write{content, {}}).first->second;
        write.cells.add(cell.line, cell.place);
        cells_.push_back(cell);
    }

    struct Write {
        Value content;
        RectangleBuilder cells;
    };

    core::SharedState& shared_;
    const CopyDirection& direction_;
    ResumeNext attempt_;
    excel::Range selection_;
    excel::Worksheet sheet_;
    SmartCopyOptions options_;
    std::vector<Condition> conditions_;  // whose cells are skipped
    std::int32_t source_line_ = 1;
    std::int32_t first_place_ = 1;
    std::int32_t last_place_ = 1;
    std::vector<Value> sources_;           // what the copied cells hold, one a place
    std::vector<std::int32_t> previous_;   // the line whose cell was written last, one a place
    std::map<std::string, Write> writes_;  // by what is entered
    std::vector<LinePlace> cells_;         // that are written, by lines, then by places
};

}  // namespace

void SmartCopyDown(core::SharedState& shared, std::int32_t) { SmartCopy(shared, copy_down).run(); }

void SmartCopyToRight(core::SharedState& shared, std::int32_t) { SmartCopy(shared, copy_right).run(); }

}  // namespace kestrune::smart
