#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

#include "host/model/StyleTable.h"

namespace kestrune::host {

// The numbers that positions of a growing list have in the file. Entries of the file keep theirs; of the added ones
// only those in use are written, one behind the other, so that steps on the way to a format leave nothing behind.
// Broken files name entries beyond the end of a list: these numbers are left out, by entries that fill it up.
class FileNumbers {
  public:
    FileNumbers() = default;
    // named: how far the numbers go that the file names.
    FileNumbers(std::uint32_t in_file, std::uint32_t size, std::uint32_t named)
        : in_file_(in_file),
          first_(named > most ? in_file : std::max(in_file, named)),
          numbers_(size > in_file ? size - in_file : 0) {}

    void use(std::uint32_t position) {
        if (position < in_file_ || position - in_file_ >= numbers_.size()) return;
        auto& number = numbers_[position - in_file_];
        if (number != 0) return;
        added_.push_back(position);
        number = first_ + static_cast<std::uint32_t>(added_.size());
    }

    // The number in the file; 0 for what is not in use.
    [[nodiscard]] std::uint32_t operator()(std::uint32_t position) const {
        if (position < in_file_) return position;
        const auto offset = position - in_file_;
        return offset < numbers_.size() && numbers_[offset] != 0 ? numbers_[offset] - 1 : 0;
    }

    [[nodiscard]] std::uint32_t in_file() const { return in_file_; }
    [[nodiscard]] std::uint32_t size() const {
        return in_file_ + filling() + static_cast<std::uint32_t>(added_.size());
    }
    // How many entries fill up the list before the added ones.
    [[nodiscard]] std::uint32_t filling() const { return added_.empty() ? 0 : first_ - in_file_; }
    [[nodiscard]] const std::vector<std::uint32_t>& added() const { return added_; }  // positions, in the file's order

  private:
    static constexpr std::uint32_t most = 65'536;  // more than Excel has of anything here

    std::uint32_t in_file_ = 0;
    std::uint32_t first_ = 0;             // the number of the first added entry
    std::vector<std::uint32_t> numbers_;  // 1 + the number of each added entry; 0: not in use
    std::vector<std::uint32_t> added_;
};

}  // namespace kestrune::host
