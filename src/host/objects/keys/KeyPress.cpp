#include "host/objects/keys/KeyPress.h"

#include "host/model/ModelError.h"
#include "host/objects/Refusal.h"
#include "host/objects/keys/ExcelActions.h"
#include "keys/ExcelKeys.h"
#include "keys/KeyText.h"

namespace kestrune::host {

KeyPress press_key(HostSession& session, const keys::Key& key) {
    using Effect = KeyPress::Effect;
    if (const auto bound = session.bound_keys.find(key); bound != session.bound_keys.end()) {
        if (bound->second.empty()) return {Effect::Swallowed, {}, {}};
        const std::string macro = bound->second;  // the macro may bind the key anew
        return {Effect::Bound, macro, session.run_call(macro)};
    }
    const std::string meaning(keys::excel_meaning(key));
    const HostSession::Entry entry(session);
    try {
        return {act_as_excel(session, key) ? Effect::Excel : Effect::Unknown, meaning, {}};
    } catch (const ModelError& error) {
        refuse(keys::key_text(key), error.what());
    }
}

}  // namespace kestrune::host
