#pragma once

#include <unistd.h>

#include <utility>

namespace kestrune::host {

/// An open file of the operating system, closed with its owner; -1 stands for none.
class Descriptor {
  public:
    explicit Descriptor(int number = -1) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }

    explicit operator bool() const { return number_ >= 0; }
    int number() const { return number_; }
    /// Closes now. False when the system reports an error, which is the last chance to see a failed write.
    bool close() { return ::close(std::exchange(number_, -1)) == 0; }

  private:
    int number_;
};

}  // namespace kestrune::host
