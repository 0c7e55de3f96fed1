#include <vector>

#include "host/xlsx/ConditionalFormatXml.h"
#include "host/xlsx/SheetEdits.h"

namespace kestrune::host {
namespace {

void remove_element(TextEdits& edits, const XmlElement& element) {
    edits.remove(element.begin(), element.end() - element.begin());
}

// Which of the sheet's formats each element of the file has become; each is taken once.
class Claims {
  public:
    explicit Claims(const std::vector<ConditionalFormat>& formats) : formats_(formats), taken_(formats.size()) {}

    const ConditionalFormat* claim(const ConditionalFormat& in_file) {
        for (std::size_t i = 0; i < formats_.size(); ++i) {
            if (taken_[i] || formats_[i].areas.empty() || !same_origin(in_file, formats_[i])) continue;
            taken_[i] = true;
            return &formats_[i];
        }
        return nullptr;
    }
    [[nodiscard]] bool taken(std::size_t position) const { return taken_[position]; }

  private:
    const std::vector<ConditionalFormat>& formats_;
    std::vector<bool> taken_;
};

void edit_extensions(TextEdits& edits, const XmlElement& list, Claims& claims) {
    const auto formats = list ? extension_formats(list) : XmlElement();
    if (!formats) return;
    std::vector<XmlElement> gone;
    std::size_t count = 0;
    for (auto element = formats.first_child(); element; element = element.next()) {
        ++count;
        const auto in_file = read_extension_format(element);
        if (!in_file) continue;
        if (const auto* format = claims.claim(*in_file)) {
            edit_extension_format(edits, element, *format);
        } else {
            gone.push_back(element);
        }
    }
    if (gone.empty() || gone.size() < count) {
        for (const auto& element : gone) remove_element(edits, element);
        return;
    }
    // An empty list is not allowed, nor is an empty extension around it.
    std::size_t extensions = 0;
    XmlElement around;
    for (auto extension = list.first_child(); extension; extension = extension.next()) {
        ++extensions;
        if (extension.begin() < formats.begin() && formats.begin() < extension.end()) around = extension;
    }
    remove_element(edits, extensions == 1 ? list : around);
}

}  // namespace

void SheetEdits::conditional_formats() const {
    const auto& wanted = sheet.conditional_formats();
    Claims claims(wanted);
    for (const auto& extent : layout.children) {
        const XmlElement element(text, extent.begin);
        if (element.local() != "conditionalFormatting") continue;
        const auto in_file = read_conditional_format(element);
        if (!in_file) continue;
        if (const auto* format = claims.claim(*in_file)) {
            edit_conditional_format(edits, element, *format);
        } else {
            remove_element(edits, element);
        }
    }
    std::string added;
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        if (!claims.taken(i) && !wanted[i].extension && !wanted[i].areas.empty() && !wanted[i].rules.empty())
            append_conditional_format(added, prefix(), wanted[i]);
    }
    if (!added.empty()) add_child("conditionalFormatting", added);
    edit_extensions(edits, child("extLst"), claims);
}

}  // namespace kestrune::host
