#include "automation/Enumeration.h"

#include <string>
#include <utility>

#include "automation/AutomationError.h"

namespace kestrune::automation {
namespace {

class NumberedItems final : public Enumeration {
  public:
    NumberedItems(std::int64_t count, std::function<Value(std::int64_t)> item, std::int64_t at = 0)
        : count_(count), item_(std::move(item)), at_(at) {}

    std::optional<Value> next() override {
        if (at_ >= count_) return std::nullopt;
        Value item = item_(at_);
        ++at_;
        return item;
    }
    void reset() override { at_ = 0; }
    [[nodiscard]] std::shared_ptr<Enumeration> clone() const override {
        return std::make_shared<NumberedItems>(count_, item_, at_);
    }

  private:
    std::int64_t count_;
    std::function<Value(std::int64_t)> item_;
    std::int64_t at_;
};

}  // namespace

Value Enumeration::invoke(std::string_view member, Call, Arguments&) {
    throw AutomationError(hresult::unknown_name, "Enumeration." + std::string(member), "there is no such member");
}

std::shared_ptr<Enumeration> enumerate(std::int64_t count, std::function<Value(std::int64_t)> item) {
    return std::make_shared<NumberedItems>(count, std::move(item));
}

std::shared_ptr<Enumeration> enumerate(std::vector<Value> items) {
    const auto kept = std::make_shared<const std::vector<Value>>(std::move(items));
    return enumerate(static_cast<std::int64_t>(kept->size()),
                     [kept](std::int64_t at) { return (*kept)[static_cast<std::size_t>(at)]; });
}

std::vector<Value> items(Object& collection) {
    const Value answer = get(collection, enumeration_member);
    const auto* object = answer.if_is<ObjectRef>();
    const auto enumeration = object ? std::dynamic_pointer_cast<Enumeration>(*object) : nullptr;
    if (!enumeration) {
        throw AutomationError(hresult::type_mismatch, std::string(collection.type_name()) + "._NewEnum",
                              "answers no enumeration");
    }
    std::vector<Value> all;
    while (auto item = enumeration->next()) all.push_back(std::move(*item));
    return all;
}

}  // namespace kestrune::automation
