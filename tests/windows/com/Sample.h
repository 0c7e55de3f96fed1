#pragma once

#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include "automation/Enumeration.h"
#include "automation/Events.h"
#include "automation/MemberTable.h"

namespace kestrune::windows {

using automation::ObjectRef;
using automation::Value;

// An object of ours with a member of every shape.
class Sample final : public automation::Served<Sample> {
  public:
    static const automation::MemberTable& members() {
        using automation::method;
        using automation::property;
        using automation::read_only;
        static constexpr auto rows = automation::member_rows(
            read_only<&Sample::items>(automation::enumeration_member, automation::enumeration_id),
            property<&Sample::item, &Sample::set_item>("Item", 0, "Index, [Column]"),
            property<&Sample::held, &Sample::set_held>("Held", 1), method<&Sample::echo>("Echo", 2, "What"),
            method<&Sample::list>("List", 3, "First, [Second], [Third]"),
            method<&Sample::change>("Change", 4, "It, By"), method<&Sample::fail>("Fail", 5, "How"),
            method<&Sample::add>("Add", 6, "Left, Right"), read_only<&Sample::count>("Count", 7),
            read_only<&Sample::self>("Self", 8), method<&Sample::keep>("Keep", 9, "Object"));
        static constexpr automation::MemberTable table("Sample", rows);
        return table;
    }

    Value item(std::int32_t index, const Value& column) const {
        return "item " + std::to_string(index) +
               (column.is(Value::Kind::Missing) ? "" : "/" + automation::to_text(column));
    }
    void set_item(std::int32_t index, const Value& column, const Value& value) {
        written = "item " + std::to_string(index) +
                  (column.is(Value::Kind::Missing) ? "" : "/" + automation::to_text(column)) + " = " +
                  automation::to_text(value);
    }
    Value held() const { return held_; }
    void set_held(const Value& value) { held_ = value; }
    Value echo(const Value& what) { return what; }
    std::string list(const Value& first, const Value& second, const Value& third) {
        std::string text;
        for (const Value* argument : {&first, &second, &third}) {
            text += (text.empty() ? "" : "|") +
                    (argument->is(Value::Kind::Missing) ? std::string("-") : automation::to_text(*argument));
        }
        return text;
    }
    void change(Value& it, const Value& by) { it = by; }
    void fail(std::int32_t how) {
        switch (how) {
            case 1:
                throw automation::AutomationError(automation::hresult::excel_error, "Sample.Fail",
                                                  "It \xC3\xBC failed");
            case 2:
                throw std::bad_alloc();
            case 3:
                throw std::logic_error("a fault of ours");
            case 4:
                throw 4;
            case 5:
                automation::get(*this, "NoSuchMember");
                break;
            default:
                break;
        }
    }
    double add(double left, double right) { return left + right; }
    std::int32_t count() const { return 3; }
    ObjectRef items() const {
        return automation::enumerate(
            3, [this](std::int64_t at) { return item(static_cast<std::int32_t>(at) + 1, automation::Missing{}); });
    }
    ObjectRef self() { return shared_from_this(); }
    void keep(const ObjectRef& object) { held_ = object; }

    std::string written;

  private:
    Value held_;
};

// An object that raises the events of Excel's Application, without a member table.
class Speaker final : public automation::Object, public automation::EventSource {
  public:
    std::vector<automation::EventListener*> listeners;
    std::vector<std::string> asked;

    Value invoke(std::string_view member, automation::Call, automation::Arguments& arguments) override {
        std::string line(member);
        for (const Value& argument : arguments.positional) line += " " + automation::to_text(argument);
        for (const auto& [name, value] : arguments.named) line += " " + name + ":=" + automation::to_text(value);
        asked.push_back(line);
        return line;
    }
    [[nodiscard]] std::string_view type_name() const override { return "Application"; }

    std::unique_ptr<automation::Subscription> subscribe(automation::EventListener listener) override {
        class Hears final : public automation::Subscription {
          public:
            Hears(Speaker& speaker, automation::EventListener listener)
                : speaker_(speaker), listener_(std::move(listener)) {
                speaker_.listeners.push_back(&listener_);
            }
            ~Hears() override { std::erase(speaker_.listeners, &listener_); }

          private:
            Speaker& speaker_;
            automation::EventListener listener_;
        };
        return std::make_unique<Hears>(*this, std::move(listener));
    }

    void raise(std::string_view event, automation::Arguments& arguments) {
        const auto hearing = listeners;
        for (automation::EventListener* listener : hearing) (*listener)(event, arguments);
    }
};

}  // namespace kestrune::windows
