#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "automation/Value.h"

namespace kestrune::brxllib::undo {

// What some cells have in common in one respect: the answers that together say it.
using Reading = std::vector<automation::Value>;

[[nodiscard]] inline std::size_t bytes_of(const Reading& reading) {
    std::size_t sum = sizeof(Reading);
    for (const automation::Value& value : reading) {
        const auto* text = value.if_is<std::string>();
        sum += sizeof(automation::Value) + (text ? text->capacity() : 0);
    }
    return sum;
}

// Puts a reading together from several questions. Nothing when an answer is Null: the cells differ.
class Answers {
  public:
    // Whether to go on asking.
    bool add(automation::Value answer) {
        mixed_ = mixed_ || answer.is(automation::Value::Kind::Null);
        answers_.push_back(std::move(answer));
        return !mixed_;
    }
    bool add(std::optional<Reading> part) {
        if (!part) return !(mixed_ = true);
        for (automation::Value& answer : *part) answers_.push_back(std::move(answer));
        return !mixed_;
    }
    std::optional<Reading> take() {
        if (mixed_) return std::nullopt;
        return std::move(answers_);
    }

  private:
    Reading answers_;
    bool mixed_ = false;
};

}  // namespace kestrune::brxllib::undo
