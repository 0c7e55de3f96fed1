#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace kestrune::automation {

class Object;
class Array;

// A reference to an automation object; a null reference is Visual Basic's Nothing.
using ObjectRef = std::shared_ptr<Object>;

struct Empty {
    bool operator==(const Empty&) const = default;
};
// What Excel answers for a property whose cells differ. Neither Empty nor an error.
struct Null {
    bool operator==(const Null&) const = default;
};
// An optional argument that the caller left out.
struct Missing {
    bool operator==(const Missing&) const = default;
};
// Days since 30 December 1899, the time of day as the fraction.
struct Date {
    double serial = 0;
    bool operator==(const Date&) const = default;
};
// An error value, as a 32-bit HRESULT. Excel's cell errors are 0x800A0000 + 2000..2050.
struct Error {
    std::int32_t code = 0;
    bool operator==(const Error&) const = default;
};

// One automation value, the portable twin of an OLE VARIANT. Text is UTF-8.
class Value {
  public:
    using Storage = std::variant<Empty, Null, Missing, bool, std::int32_t, double, Date, Error, std::string, ObjectRef,
                                 std::shared_ptr<const Array>>;
    // In the order of Storage's alternatives.
    enum class Kind { Empty, Null, Missing, Boolean, Integer, Double, Date, Error, String, Object, Array };

    Value() = default;
    Value(Empty) {}
    Value(Null v) : data_(v) {}
    Value(Missing v) : data_(v) {}
    Value(bool v) : data_(v) {}
    Value(std::int32_t v) : data_(v) {}
    Value(double v) : data_(v) {}
    Value(Date v) : data_(v) {}
    Value(Error v) : data_(v) {}
    Value(std::string v) : data_(std::move(v)) {}
    Value(std::string_view v) : data_(std::string(v)) {}
    Value(const char* v) : data_(std::string(v)) {}
    Value(Array v);
    Value(std::nullptr_t) : data_(ObjectRef()) {}  // Nothing; not a null text
    template <class T>
    requires std::is_convertible_v<T*, Object*> Value(std::shared_ptr<T> v) : data_(ObjectRef(std::move(v))) {}
    template <class T>
    Value(T*) = delete;  // a pointer would silently become a Boolean

    [[nodiscard]] Kind kind() const { return static_cast<Kind>(data_.index()); }
    [[nodiscard]] bool is(Kind k) const { return kind() == k; }
    [[nodiscard]] bool is_number() const {
        return is(Kind::Integer) || is(Kind::Double) || is(Kind::Date) || is(Kind::Boolean);
    }

    // The alternative itself, or null when the value is of another kind.
    template <class T>
    [[nodiscard]] const T* if_is() const {
        return std::get_if<T>(&data_);
    }
    [[nodiscard]] const Array* array() const;

    // Calls the visitor with the alternative that is held.
    template <class Visitor>
    decltype(auto) visit(Visitor&& visitor) const {
        return std::visit(std::forward<Visitor>(visitor), data_);
    }

    // Same kind and same content; objects by identity, arrays element by element.
    bool operator==(const Value& other) const;

  private:
    Storage data_;
};

// A one- or two-dimensional array with lower bounds, as SAFEARRAYs have them.
class Array {
  public:
    struct Bound {
        std::int32_t lower = 1;
        std::int32_t count = 0;
        bool operator==(const Bound&) const = default;
    };

    explicit Array(Bound only) : bounds_{only}, elements_(size_of(only)) {}
    Array(Bound rows, Bound columns) : bounds_{rows, columns}, elements_(size_of(rows) * size_of(columns)) {}

    [[nodiscard]] std::size_t dimensions() const { return bounds_.size(); }
    [[nodiscard]] const Bound& bound(std::size_t dimension) const { return bounds_[dimension]; }
    // All elements, row by row.
    [[nodiscard]] const std::vector<Value>& elements() const { return elements_; }
    [[nodiscard]] std::vector<Value>& elements() { return elements_; }

    // Elements by index, counted from the lower bounds. Outside: AutomationError, DISP_E_BADINDEX.
    [[nodiscard]] const Value& at(std::int32_t index) const { return elements_[offset(index)]; }
    [[nodiscard]] Value& at(std::int32_t index) { return elements_[offset(index)]; }
    [[nodiscard]] const Value& at(std::int32_t row, std::int32_t column) const {
        return elements_[offset(row, column)];
    }
    [[nodiscard]] Value& at(std::int32_t row, std::int32_t column) { return elements_[offset(row, column)]; }

    bool operator==(const Array&) const = default;

  private:
    static std::size_t size_of(Bound b) { return b.count < 0 ? 0 : static_cast<std::size_t>(b.count); }
    [[nodiscard]] std::size_t offset(std::int32_t index) const;
    [[nodiscard]] std::size_t offset(std::int32_t row, std::int32_t column) const;

    std::vector<Bound> bounds_;
    std::vector<Value> elements_;
};

}  // namespace kestrune::automation
