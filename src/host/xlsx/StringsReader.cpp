#include "host/xlsx/StringsReader.h"

#include <utility>

#include "host/xlsx/XmlCharacters.h"
#include "host/xlsx/XmlParser.h"

namespace kestrune::host {
namespace {

class StringsReader : public XmlParser {
  public:
    StringsReader(const Package& from, const std::string& name, std::string_view text, StringTable& strings)
        : XmlParser(from, name), text_(text), strings_(strings) {}

  protected:
    void on_start(std::string_view name, XmlAttributes attributes, int depth) override {
        const auto local = name.substr(name.find(':') + 1);
        if (depth == 0) {
            const auto uri = namespace_of(name, attributes);
            if (local != "sst" || (uri != TransitionalMain && uri != StrictMain))
                fail("is not a table of shared strings: it begins with <" + std::string(name) + ">");
        } else if (depth == 1) {
            in_item_ = local == "si";
            rich_ = phonetic_ = false;
            entry_ = {};
            begin_ = tag_end();
        } else if (in_item_) {
            if (depth == 2 && local != "t") {
                rich_ = true;
                phonetic_ = local == "rPh";
            }
            capture_ = local == "t" && !phonetic_;
        }
    }

    void on_end(int depth) override {
        capture_ = false;
        if (depth == 2) phonetic_ = false;
        if (depth != 1 || !in_item_) return;
        in_item_ = false;
        if (entry_.text.find("_x") != std::string::npos) entry_.text = decode_xstring(entry_.text);
        if (rich_) entry_.rich = text_.substr(begin_, tag_begin() - begin_);
        strings_.add_loaded(std::move(entry_));
    }

    void on_text(std::string_view text) override {
        if (capture_) entry_.text += text;
    }

  private:
    std::string_view text_;
    StringTable& strings_;
    StringTable::Entry entry_;
    std::size_t begin_ = 0;
    bool in_item_ = false;
    bool rich_ = false;
    bool phonetic_ = false;
    bool capture_ = false;
};

}  // namespace

void read_strings(const Package& package, const std::string& part, StringTable& strings) {
    const XmlText xml = package.read_xml(part);
    StringsReader(package, part, xml.text, strings).parse(xml.text);
}

}  // namespace kestrune::host
