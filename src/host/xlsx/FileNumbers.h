#pragma once

#include <cstdint>
#include <vector>

#include "host/model/StyleTable.h"

namespace kestrune::host {

// The numbers that positions of a growing list have in the file. Entries of the file keep theirs; of the added ones
// only those in use are written, one behind the other, so that steps on the way to a format leave nothing behind.
class FileNumbers {
  public:
    FileNumbers() = default;
    FileNumbers(std::uint32_t in_file, std::uint32_t size)
        : in_file_(in_file), numbers_(size > in_file ? size - in_file : 0) {}

    void use(std::uint32_t position) {
        if (position < in_file_ || position - in_file_ >= numbers_.size()) return;
        auto& number = numbers_[position - in_file_];
        if (number != 0) return;
        added_.push_back(position);
        number = in_file_ + static_cast<std::uint32_t>(added_.size());
    }

    // The number in the file; 0 for what is not in use.
    [[nodiscard]] std::uint32_t operator()(std::uint32_t position) const {
        if (position < in_file_) return position;
        const auto offset = position - in_file_;
        return offset < numbers_.size() && numbers_[offset] != 0 ? numbers_[offset] - 1 : 0;
    }

    [[nodiscard]] std::uint32_t in_file() const { return in_file_; }
    [[nodiscard]] std::uint32_t size() const { return in_file_ + static_cast<std::uint32_t>(added_.size()); }
    [[nodiscard]] const std::vector<std::uint32_t>& added() const { return added_; }  // positions, in the file's order

  private:
    std::uint32_t in_file_ = 0;
    std::vector<std::uint32_t> numbers_;  // 1 + the number of each added entry; 0: not in use
    std::vector<std::uint32_t> added_;
};

}  // namespace kestrune::host
