#pragma once

#include <windows.h>

#include <atomic>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

namespace kestrune::windows {

// A message box as a person sees it.
struct SeenBox {
    std::string title;
    std::string text;
    std::string icon;  // "critical", "question", "exclamation", "information" or "none"
    std::vector<std::string> buttons;
};

// Watches this process for message boxes, writes down what each shows and presses its default button.
class BoxWatcher {
  public:
    // A picture of the first box goes to the file.
    explicit BoxWatcher(std::filesystem::path picture);
    ~BoxWatcher();
    BoxWatcher(const BoxWatcher&) = delete;
    BoxWatcher& operator=(const BoxWatcher&) = delete;

    // The boxes seen, in their order.
    std::vector<SeenBox> stop();

  private:
    void watch();

    std::filesystem::path picture_;
    std::vector<SeenBox> boxes_;
    std::atomic<bool> stopping_ = false;
    std::thread thread_;
};

}  // namespace kestrune::windows
