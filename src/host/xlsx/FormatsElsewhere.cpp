#include "host/xlsx/FormatsElsewhere.h"

#include <charconv>
#include <utility>

#include "host/xlsx/XmlParser.h"
#include "number_format/FormatSpelling.h"

namespace kestrune::host {

using number_format::object_model_spelling;
namespace {

// Charts spell their formats out, in attributes and elements called formatCode; pivot tables name them by number.
class FormatScan : public XmlParser {
  public:
    FormatScan(const Package& package, std::string part, FormatsElsewhere& found)
        : XmlParser(package, std::move(part)), found_(found) {
        listen(false);
    }

  private:
    void on_start(std::string_view name, XmlAttributes attributes, int) override {
        for (; *attributes; attributes += 2) {
            const std::string_view attribute = attributes[0];
            const std::string_view value = attributes[1];
            std::uint32_t number = 0;
            if (attribute == "formatCode") {
                found_.codes.insert(object_model_spelling(std::string(value)));
            } else if (attribute == "numFmtId" &&
                       std::from_chars(value.data(), value.data() + value.size(), number).ec == std::errc()) {
                found_.numbers.insert(number);
            }
        }
        text_.clear();
        inside_ = name.substr(name.rfind(':') + 1) == "formatCode";
        listen(inside_);
    }
    void on_end(int) override {
        if (std::exchange(inside_, false)) found_.codes.insert(object_model_spelling(text_));
        listen(false);
    }
    void on_text(std::string_view text) override { text_ += text; }

    FormatsElsewhere& found_;
    std::string text_;
    bool inside_ = false;
};

}  // namespace

FormatsElsewhere read_formats_elsewhere(const Package& package) {
    FormatsElsewhere found;
    for (const PartInfo& part : package.parts()) {
        const std::string type = package.content_type(part.name);
        const bool shows_values = type.find("chart") != std::string::npos || type.find("pivot") != std::string::npos;
        if (!shows_values || !type.ends_with("+xml") || type.find("Records") != std::string::npos) continue;
        FormatScan(package, part.name, found).parse(package.read_xml(part.name).text);
    }
    return found;
}

}  // namespace kestrune::host
