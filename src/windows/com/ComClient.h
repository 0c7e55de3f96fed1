#pragma once

#include <windows.h>

#include <oaidl.h>

#include <map>
#include <optional>
#include <string>

#include "automation/Events.h"
#include "automation/Object.h"
#include "automation/Text.h"
#include "windows/com/ComPtr.h"

namespace kestrune::windows {

// Another program's object, as Excel's, called through IDispatch. It belongs to the thread that received it.
class ComClient final : public automation::Object, public automation::EventSource {
  public:
    explicit ComClient(IDispatch* object) : object_(object) {}

    // Positional arguments of methods and readings go by reference, those of writings by value. A method that is a
    // property to the other program, and a property that is a method, are called all the same.
    automation::Value invoke(std::string_view member, automation::Call kind, automation::Arguments& arguments) override;

    // By the object's own type information, as TypeName has it; "Object" when it gives none.
    [[nodiscard]] std::string_view type_name() const override;

    // Hears the events of the classes in EventTable.h. Fails with member-not-found for an object that raises none.
    std::unique_ptr<automation::Subscription> subscribe(automation::EventListener listener) override;

    [[nodiscard]] IDispatch* dispatch() const { return object_.Get(); }

  private:
    [[nodiscard]] DISPID id_of(std::string_view member);
    [[nodiscard]] std::string full_name(std::string_view member) const;
    [[noreturn]] void fail_look_up(HRESULT result, std::string_view member) const;
    [[noreturn]] void fail(HRESULT result, EXCEPINFO& info, std::string_view member) const;

    ComPtr<IDispatch> object_;
    std::map<std::string, DISPID, automation::TextLess> ids_;
    mutable std::optional<std::string> type_name_;
};

}  // namespace kestrune::windows
