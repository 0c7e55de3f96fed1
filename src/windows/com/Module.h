#pragma once

#include <atomic>

namespace kestrune::windows {

// What keeps this DLL loaded: the COM objects that are out, and the locks that clients hold on it.
class Module {
  public:
    static void hold() noexcept { ++holds(); }
    static void release() noexcept { --holds(); }
    [[nodiscard]] static long count() noexcept { return holds(); }
    [[nodiscard]] static bool can_unload() noexcept { return holds() == 0; }

    // Held by every COM object for as long as it lives.
    class Use {
      public:
        Use() noexcept { hold(); }
        ~Use() { release(); }
        Use(const Use&) = delete;
        Use& operator=(const Use&) = delete;
    };

  private:
    static std::atomic<long>& holds() noexcept {
        static constinit std::atomic<long> count = 0;
        return count;
    }
};

}  // namespace kestrune::windows
