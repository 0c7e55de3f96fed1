#include "core/iPublic.h"

#include "automation/ResumeNext.h"
#include "core/HotKeys.h"
#include "core/StartUp.h"
#include "core/iGlobal.h"

namespace kestrune::core {

using automation::MemberTable;
using automation::method;
using automation::ObjectRef;

iPublic::~iPublic() { shut_down(*shared_); }

std::shared_ptr<iPublic> iPublic::new_public(const ObjectRef& application, const ObjectRef& workbook) {
    auto self = std::static_pointer_cast<iPublic>(shared_from_this());
    if (opened_) return self;
    opened_ = true;
    shared_->application = application;
    if (!start_up(shared_)) return self;

    const automation::ResumeNext attempt(shared_->trace);
    shared_->xl = std::make_shared<cXL>();
    shared_->xl->Init(application);
    attempt([&] { shared_->spreadsheet().set_application(application); });
    attempt([&] { shared_->general().set_application(application); });
    shared_->add_in_workbook = workbook;
    start_hot_keys(*shared_);
    return self;
}

std::shared_ptr<iGlobal> iPublic::new_global() const {
    if (!opened_) return nullptr;
    return std::make_shared<iGlobal>(shared_);
}

const MemberTable& iPublic::members() {
    static constexpr auto rows =
        automation::member_rows(method<&iPublic::new_public>("NewPublic", 1, "Application, Workbook"),
                                method<&iPublic::new_global>("NewGlobal", 2));
    static constexpr MemberTable table("iPublic", rows);
    return table;
}

}  // namespace kestrune::core
