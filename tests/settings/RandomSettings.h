#pragma once

#include <cmath>
#include <memory>
#include <random>
#include <string>

#include "settings/Fields.h"

namespace kestrune::settings {

// Settings of which no value is a default, out of one number.
class RandomSettings {
  public:
    explicit RandomSettings(unsigned seed) : random_(seed) {}

    std::shared_ptr<cUserSettings> make() {
        auto settings = std::make_shared<cUserSettings>();
        for (int i = pick(0, 12); i > 0; --i) {
            styles::StyleFields style;
            fill(style, *settings->Styles);
            style.FriendlyName += std::to_string(i);  // unlike the others
            settings->Styles->Add(std::make_shared<styles::cStyle>(style));
        }
        fill(*settings, *settings->Styles);
        for_each_group(*settings, [&](std::string_view, auto& group, auto) { fill(group, *settings->Styles); });
        for (std::size_t i = 0; i < numeric_cycle_count; ++i) {
            auto toggle = std::make_shared<styles::cLongToggle>(text(), numbers());
            toggle->LookFors = numbers();
            toggle->AccessLevel = pick(0, 2);
            settings->set_cycle(static_cast<NumericCycle>(i), toggle);
        }
        for (std::size_t i = 0; i < style_cycle_count; ++i) {
            auto toggle = std::make_shared<styles::cStyleToggle>(text());
            toggle->AccessLevel = pick(0, 2);
            for (int steps = pick(0, 6); steps > 0; --steps) toggle->Styles->Add(any_style(*settings->Styles));
            settings->set_cycle(static_cast<StyleCycle>(i), toggle);
        }
        return settings;
    }

  private:
    int pick(int least, int most) { return std::uniform_int_distribution<int>(least, most)(random_); }

    template <class Record>
    void fill(Record& record, const styles::cStyles& library) {
        for (const auto& field : fields<Record>()) {
            std::visit([&](auto member) { set(record.*member, library); }, field.member);
        }
    }
    void set(bool& content, const styles::cStyles&) { content = pick(0, 1) == 1; }
    void set(std::int32_t& content, const styles::cStyles&) { content = static_cast<std::int32_t>(random_()); }
    void set(double& content, const styles::cStyles&) { content = number(); }
    void set(std::string& content, const styles::cStyles&) { content = text(); }
    void set(automation::Date& content, const styles::cStyles&) { content.serial = pick(-600000, 2900000); }
    void set(styles::StyleRef& content, const styles::cStyles& library) { content = any_style(library); }

    // None now and then.
    styles::StyleRef any_style(const styles::cStyles& library) { return library.Item(pick(0, library.Count())); }
    double number() {
        switch (pick(0, 3)) {
            case 0:
                return pick(-5, 200);
            case 1:
                return pick(0, 16000) / 4.0;
            case 2:
                return pick(1, 1000000) * 1e12;
            default:
                return std::ldexp(pick(-1000000, 1000000), pick(-60, 60));
        }
    }
    std::vector<double> numbers() {
        std::vector<double> list(static_cast<std::size_t>(pick(0, 9)));
        for (double& value : list) value = number();
        return list;
    }
    std::string text() {
        static constexpr const char* pieces[] = {"a",
                                                 " ",
                                                 "<",
                                                 "&",
                                                 "\"",
                                                 "'",
                                                 ";",
                                                 "\r",
                                                 "\n",
                                                 "\t",
                                                 "]]>",
                                                 "\xC3\xA4",
                                                 "\xE2\x82\xAC",
                                                 "0",
                                                 "#",
                                                 "_)",
                                                 "&amp;",
                                                 "<!--x-->",
                                                 "?>",
                                                 "\xF0\x9F\x98\x80"};
        std::string out;
        for (int i = pick(0, 8); i > 0; --i) out += pieces[pick(0, static_cast<int>(std::size(pieces)) - 1)];
        return out;
    }

    std::mt19937 random_;
};

}  // namespace kestrune::settings
