#pragma once

#include <functional>
#include <string_view>

namespace kestrune::automation {

// Where skipped failures are told, so that "nothing is reported" never means "nobody can find out".
// Off until somebody listens.
class Trace {
  public:
    using Listener = std::function<void(std::string_view line)>;

    void listen(Listener listener) { listener_ = std::move(listener); }
    void skipped(std::string_view what) const {
        if (listener_) listener_(what);
    }

  private:
    Listener listener_;
};

}  // namespace kestrune::automation
