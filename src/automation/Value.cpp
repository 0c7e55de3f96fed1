#include "automation/Value.h"

#include "automation/AutomationError.h"

namespace kestrune::automation {

Value::Value(Array v) : data_(std::make_shared<const Array>(std::move(v))) {}

const Array* Value::array() const {
    const auto* held = std::get_if<std::shared_ptr<const Array>>(&data_);
    return held ? held->get() : nullptr;
}

bool Value::operator==(const Value& other) const {
    if (const Array* mine = array()) {
        const Array* theirs = other.array();
        return mine == theirs || (theirs && *mine == *theirs);
    }
    return data_ == other.data_;
}

std::size_t Array::offset(std::int32_t index) const {
    const Bound& only = bounds_[0];
    if (bounds_.size() != 1 || index < only.lower || index - only.lower >= only.count) {
        throw AutomationError(hresult::bad_index, "array", "the index is outside the array");
    }
    return static_cast<std::size_t>(index - only.lower);
}

std::size_t Array::offset(std::int32_t row, std::int32_t column) const {
    if (bounds_.size() != 2 || row < bounds_[0].lower || row - bounds_[0].lower >= bounds_[0].count ||
        column < bounds_[1].lower || column - bounds_[1].lower >= bounds_[1].count) {
        throw AutomationError(hresult::bad_index, "array", "the index is outside the array");
    }
    return static_cast<std::size_t>(row - bounds_[0].lower) * size_of(bounds_[1]) +
           static_cast<std::size_t>(column - bounds_[1].lower);
}

}  // namespace kestrune::automation
