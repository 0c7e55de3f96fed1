#include "companion/Ribbon.h"

#include <fmt/format.h>

#include <array>
#include <charconv>
#include <string_view>

#include "automation/Caption.h"
#include "brvblib/CommandTexts.h"
#include "brvblib/xml/XmlText.h"

namespace kestrune::companion {
namespace {

using menus::MenuRow;

// The tab's groups, as lines part the menu.
constexpr auto group_labels = std::to_array<std::string_view>({"Commands", "Undo", "Settings", "Help"});

const brvblib::CommandText* command_of(std::string_view request) {
    std::size_t number = 0;
    const char* end = request.data() + request.size();
    if (request.empty() || std::from_chars(request.data(), end, number).ec != std::errc()) return nullptr;
    return &brvblib::command_texts.at(number);
}

class Tab {
  public:
    explicit Tab(std::span<const MenuRow> rows) : rows_(rows) {
        out_ =
            "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
            "<customUI xmlns=\"http://schemas.microsoft.com/office/2006/01/customui\"><ribbon><tabs>\n"
            "<tab id=\"Kestrune.Tab\" label=\"Kestrune\">\n";
        while (at_ < rows_.size()) add_group();
        out_ += "</tab>\n</tabs></ribbon></customUI>\n";
    }
    std::string xml() && { return std::move(out_); }

  private:
    void add_group() {
        out_ += fmt::format("<group id=\"Kestrune.Group{}\" label=\"{}\">\n", groups_, group_labels[groups_]);
        ++groups_;
        // The last group takes whatever follows.
        const bool last = groups_ == group_labels.size();
        for (bool first = true; at_ < rows_.size() && (first || last || !rows_[at_].line); first = false) add_control();
        out_ += "</group>\n";
    }

    // The row and, of a popup, those behind it that are deeper.
    void add_control() {
        const MenuRow& row = rows_[at_++];
        if (row.level > 1 && row.line) out_ += fmt::format("<menuSeparator id=\"Kestrune.Line{}\"/>\n", at_);
        if (row.kind != MenuRow::Kind::Popup) return add_button(row);
        out_ += fmt::format("<menu id=\"Kestrune.Menu{}\" label=\"{}\">\n", at_,
                            brvblib::xml_attribute(automation::plain_caption(row.caption)));
        while (at_ < rows_.size() && rows_[at_].level > row.level) add_control();
        out_ += "</menu>\n";
    }

    void add_button(const MenuRow& row) {
        const brvblib::CommandText* command = command_of(row.request);
        const std::string label =
            row.caption.empty() && command ? std::string(command->name) : automation::plain_caption(row.caption);
        out_ +=
            fmt::format("<button id=\"Kestrune.Button{}\" label=\"{}\" tag=\"{}\" onAction=\"mDOM.RunRibbonButton\"",
                        at_, brvblib::xml_attribute(label), row.request.empty() ? row.member : row.request);
        if (command) out_ += fmt::format(" supertip=\"{}\"", brvblib::xml_attribute(command->description));
        out_ += "/>\n";
    }

    std::span<const MenuRow> rows_;
    std::size_t at_ = 0;
    std::size_t groups_ = 0;
    std::string out_;
};

}  // namespace

std::string ribbon_xml(std::span<const MenuRow> rows) { return Tab(rows).xml(); }

}  // namespace kestrune::companion
