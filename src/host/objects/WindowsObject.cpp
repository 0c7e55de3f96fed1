#include "host/objects/WindowsObject.h"

#include "host/objects/Items.h"
#include "host/objects/SheetObject.h"
#include "host/objects/WindowObject.h"

namespace kestrune::host {

ObjectRef WindowsObject::parent() const { return workbook_ ? workbook_object(session(), *workbook_) : application(); }

std::vector<OpenWorkbook*> WindowsObject::list() const {
    if (workbook_) return {&session().opened(*workbook_)};
    std::vector<OpenWorkbook*> windows;
    if (session().active()) windows.push_back(session().active());
    for (const auto& opened : session().workbooks()) {
        if (opened.get() != session().active()) windows.push_back(opened.get());
    }
    return windows;
}

ObjectRef WindowsObject::item(const Value& index) const {
    const auto windows = list();
    if (const auto* caption = index.if_is<std::string>()) {
        for (OpenWorkbook* window : windows) {
            const std::string& shown = window->caption.empty() ? window->model->name : window->caption;
            if (automation::same_text(shown, *caption)) return std::make_shared<WindowObject>(session(), *window);
        }
        refuse_index("Windows.Item", "there is no window '" + *caption + "'");
    }
    const std::int32_t position = automation::to_integer(index);
    if (position < 1 || position > static_cast<std::int32_t>(windows.size())) {
        refuse_index("Windows.Item", "there is no such window");
    }
    return std::make_shared<WindowObject>(session(), *windows[static_cast<std::size_t>(position - 1)]);
}

ObjectRef WindowsObject::new_enum() const { return items_of(*this); }

const MemberTable& WindowsObject::members() {
    using W = WindowsObject;
    static constexpr auto rows =
        automation::member_rows(enumeration<&W::new_enum>(), read_only<&W::item>("Item", 0, "Index"),
                                read_only<&W::application>("Application", 1), read_only<&W::parent>("Parent", 2),
                                read_only<&W::count>("Count", 3));
    static constexpr MemberTable table("Windows", rows);
    return table;
}

}  // namespace kestrune::host
