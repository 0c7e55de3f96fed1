#include "settings/cUserSettings.h"

#include <unordered_map>

#include "settings/Days.h"
#include "settings/DefaultCycles.h"
#include "styles/StyleLibrary.h"

namespace kestrune::settings {

using styles::cLongToggle;
using styles::cStyle;
using styles::cStyles;
using styles::cStyleToggle;
using styles::StyleRef;
using styles::StylesRef;
using styles::StyleToggleRef;

namespace {

// Copies each style once, however many references there are to it.
class StyleCopies {
  public:
    StyleRef of(const StyleRef& style) {
        if (!style) return nullptr;
        StyleRef& copy = copies_[style.get()];
        if (!copy) copy = style->Copy();
        return copy;
    }
    StylesRef of(const cStyles& styles) {
        auto copy = std::make_shared<cStyles>();
        for (std::int32_t i = 1; i <= styles.Count(); ++i) copy->Add(of(styles.Item(i)));
        return copy;
    }

  private:
    std::unordered_map<const cStyle*, StyleRef> copies_;
};

}  // namespace

cUserSettings::cUserSettings() {
    for (auto& toggle : numeric_cycles_) toggle = std::make_shared<cLongToggle>();
    for (auto& toggle : style_cycles_) toggle = std::make_shared<cStyleToggle>();
}

void cUserSettings::LoadDefaults(const DefaultSources& sources) {
    static_cast<SettingValues&>(*this) = SettingValues();
    static_cast<core::AutoColorSettings&>(*this) = sources.auto_color;
    Styles = styles::built_in_styles();
    BRPaintbrushStyle = Styles->Item("BR US Dollar Two Decimals");
    SheetStyle = Styles->Item("BR Times New Roman");
    ErrorMsg = "\"NA\"";
    ZoomInterval = 5;
    TrainingModule = sources.training;
    const int year = year_of(sources.today);
    SmartFillDates.StartDate = day(year, 1, 31).value_or(automation::Date{});
    SmartFillDates.EndDate = day(year, 12, 31).value_or(automation::Date{});
    for (const DefaultNumericCycle& row : default_numeric_cycles()) {
        const std::string_view name = row.display_name.empty() ? sources.respected_cycle : row.display_name;
        set_cycle(row.field, std::make_shared<cLongToggle>(std::string(name), row.steps));
    }
    for (const DefaultCycle& row : default_cycles()) {
        auto toggle = std::make_shared<cStyleToggle>(std::string(row.display_name));
        for (const std::string_view step : row.steps) toggle->Styles->Add(Styles->Item(step));
        set_cycle(row.field, std::move(toggle));
    }
}

std::shared_ptr<cUserSettings> cUserSettings::Copy() const {
    auto copy = std::make_shared<cUserSettings>();
    static_cast<SettingValues&>(*copy) = *this;
    StyleCopies copies;
    if (Styles) copy->Styles = copies.of(*Styles);
    copy->BRPaintbrushStyle = copies.of(BRPaintbrushStyle);
    copy->SheetStyle = copies.of(SheetStyle);
    for (std::size_t i = 0; i < numeric_cycles_.size(); ++i) {
        copy->numeric_cycles_[i] = numeric_cycles_[i]->Copy();
    }
    for (std::size_t i = 0; i < style_cycles_.size(); ++i) {
        const StyleToggleRef& toggle = style_cycles_[i];
        copy->style_cycles_[i] = cStyleToggle::Copy(toggle.get());
        if (toggle->Styles) copy->style_cycles_[i]->Styles = copies.of(*toggle->Styles);
    }
    return copy;
}

}  // namespace kestrune::settings
