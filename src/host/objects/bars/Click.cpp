#include "host/objects/bars/Click.h"

namespace kestrune::host {
namespace {

// Makes a control the one whose action runs, as long as it lives.
class Action {
  public:
    Action(CommandBars& bars, const std::shared_ptr<BarControl>& control) : bars_(bars), before_(bars.action_control) {
        bars_.action_control = control;
    }
    ~Action() { bars_.action_control = before_; }
    Action(const Action&) = delete;
    Action& operator=(const Action&) = delete;

  private:
    CommandBars& bars_;
    std::weak_ptr<BarControl> before_;
};

}  // namespace

automation::Value click(HostSession& session, const std::shared_ptr<BarControl>& control) {
    if (control->on_action.empty()) return {};
    const Action action(*session.command_bars, control);
    const std::string macro = control->on_action;  // the control may go while its action runs
    return session.run_call(macro);
}

}  // namespace kestrune::host
