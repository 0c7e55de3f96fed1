#include "undo_histories/FaultyExcel.h"

#include "automation/Conversion.h"
#include "automation/Events.h"
#include "automation/Text.h"

namespace kestrune::histories {
namespace {

using automation::Arguments;
using automation::Call;
using automation::ObjectRef;
using automation::Value;

class FaultyObject final : public automation::Object, public automation::EventSource {
  public:
    FaultyObject(ObjectRef real, Fault& fault) : real_(std::move(real)), fault_(fault) {}

    Value invoke(std::string_view member, Call kind, Arguments& arguments) override {
        const bool its_type = fault_.type.empty() || fault_.type == real_->type_name();
        const bool writes = automation::is_put(kind) || kind == Call::Method;
        if (fault_.on && its_type && writes && automation::same_text(member, fault_.member)) {
            ++fault_.swallowed;
            return {};
        }
        for (Value& argument : arguments.positional) unwrap(argument);
        for (auto& [name, argument] : arguments.named) unwrap(argument);
        const Value answer = real_->invoke(member, kind, arguments);
        if (!answer.is(Value::Kind::Object)) return answer;
        return faulty(automation::to_object(answer), fault_);
    }
    [[nodiscard]] std::string_view type_name() const override { return real_->type_name(); }
    std::unique_ptr<automation::Subscription> subscribe(automation::EventListener listener) override {
        return automation::subscribe(real_, std::move(listener));
    }

  private:
    static void unwrap(Value& argument) {
        if (!argument.is(Value::Kind::Object)) return;
        const ObjectRef object = automation::to_object(argument);
        if (const auto* ours = dynamic_cast<const FaultyObject*>(object.get())) argument = Value(ours->real_);
    }

    ObjectRef real_;
    Fault& fault_;
};

}  // namespace

ObjectRef faulty(const ObjectRef& real, Fault& fault) {
    return real ? std::make_shared<FaultyObject>(real, fault) : nullptr;
}

}  // namespace kestrune::histories
