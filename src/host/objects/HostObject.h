#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "automation/MemberTable.h"
#include "host/model/ModelError.h"
#include "host/objects/HostSession.h"
#include "host/objects/Refusal.h"

namespace kestrune::host {

using automation::Arguments;
using automation::Call;
using automation::Member;
using automation::MemberTable;
using automation::method;
using automation::Missing;
using automation::Null;
using automation::ObjectRef;
using automation::property;
using automation::read_only;
using automation::Value;

// An object of the embedded Excel: served by its class's member table, its calls from outside counted. One that tells
// its home, the workbook that it is part of, answers no more when that is closed.
template <class Derived>
class HostObject : public automation::Served<Derived> {
  public:
    Value invoke(std::string_view member, Call kind, Arguments& arguments) override {
        const HostSession::Entry entry(session_);
        if constexpr (requires(const Derived& object) { object.home(); }) {
            if (!session_.is_open(static_cast<const Derived*>(this)->home())) {
                throw automation::AutomationError(automation::hresult::workbook_gone,
                                                  std::string(this->type_name()) + "." + std::string(member),
                                                  "the workbook is closed");
            }
        }
        try {
            return automation::Served<Derived>::invoke(member, kind, arguments);
        } catch (const ModelError& error) {
            refuse(std::string(this->type_name()) + "." + std::string(member), error.what());
        }
    }

    [[nodiscard]] ObjectRef application() const { return make_application(session_); }

  protected:
    explicit HostObject(HostSession& session) : session_(session), kept_(session.weak_from_this().lock()) {}

    [[nodiscard]] HostSession& session() const { return session_; }

  private:
    HostSession& session_;
    std::shared_ptr<HostSession> kept_;  // null for a session that somebody else sees to
};

}  // namespace kestrune::host
