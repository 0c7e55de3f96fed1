#include "settings/cUserSettings.h"

#include <unordered_map>

#include "settings/DefaultCycles.h"
#include "styles/StyleLibrary.h"

namespace kestrune::settings {

using styles::cStyle;
using styles::cStyles;
using styles::cStyleToggle;
using styles::StyleRef;
using styles::StylesRef;

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

void cUserSettings::LoadDefaults(const core::AutoColorSettings& auto_color) {
    Styles = styles::built_in_styles();
    BRPaintbrushStyle = Styles->Item("BR US Dollar Two Decimals");
    SheetStyle = Styles->Item("BR Times New Roman");
    ErrorMsg = "\"NA\"";
    TrainingModule = true;
    ZoomInterval = 5;
    AutoColor = auto_color;
    for (const DefaultCycle& row : default_cycles()) {
        auto toggle = std::make_shared<cStyleToggle>(std::string(row.display_name));
        for (const std::string_view step : row.steps) toggle->Styles->Add(Styles->Item(step));
        set_cycle(row.field, std::move(toggle));
    }
}

std::shared_ptr<cUserSettings> cUserSettings::Copy() const {
    auto copy = std::make_shared<cUserSettings>();
    StyleCopies copies;
    if (Styles) copy->Styles = copies.of(*Styles);
    copy->BRPaintbrushStyle = copies.of(BRPaintbrushStyle);
    copy->SheetStyle = copies.of(SheetStyle);
    copy->ErrorMsg = ErrorMsg;
    copy->TrainingModule = TrainingModule;
    copy->ZoomInterval = ZoomInterval;
    copy->AutoColor = AutoColor;
    for (std::size_t i = 0; i < cycles_.size(); ++i) {
        if (!cycles_[i]) continue;
        copy->cycles_[i] = std::make_shared<cStyleToggle>(cycles_[i]->Name);
        if (cycles_[i]->Styles) copy->cycles_[i]->Styles = copies.of(*cycles_[i]->Styles);
    }
    return copy;
}

}  // namespace kestrune::settings
