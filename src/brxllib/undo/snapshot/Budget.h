#pragma once

#include <cstddef>

namespace kestrune::brxllib::undo {

// Thrown while a record is made that grows past what it may hold.
struct RecordTooLarge {};

// The memory that a record may take.
class Budget {
  public:
    explicit Budget(std::size_t bytes) : left_(bytes) {}

    void spend(std::size_t bytes) {
        if (bytes > left_) throw RecordTooLarge{};
        left_ -= bytes;
    }

  private:
    std::size_t left_;
};

}  // namespace kestrune::brxllib::undo
