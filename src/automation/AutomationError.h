#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace kestrune::automation {

using HResult = std::int32_t;

// The codes that cross the automation boundary, under OLE's values.
namespace hresult {
constexpr HResult of(std::uint32_t code) { return static_cast<HResult>(code); }

inline constexpr HResult ok = 0;
inline constexpr HResult member_not_found = of(0x80020003);    // DISP_E_MEMBERNOTFOUND
inline constexpr HResult type_mismatch = of(0x80020005);       // DISP_E_TYPEMISMATCH
inline constexpr HResult unknown_name = of(0x80020006);        // DISP_E_UNKNOWNNAME
inline constexpr HResult exception = of(0x80020009);           // DISP_E_EXCEPTION
inline constexpr HResult overflow = of(0x8002000A);            // DISP_E_OVERFLOW
inline constexpr HResult bad_index = of(0x8002000B);           // DISP_E_BADINDEX
inline constexpr HResult bad_argument_count = of(0x8002000E);  // DISP_E_BADPARAMCOUNT
inline constexpr HResult not_optional = of(0x8002000F);        // DISP_E_PARAMNOTOPTIONAL
inline constexpr HResult class_not_registered = of(0x80040154);
inline constexpr HResult workbook_gone = of(0x800401A8);    // what Excel answers for an object of a closed workbook
inline constexpr HResult object_required = of(0x800A01A8);  // run-time error 424
inline constexpr HResult excel_error = of(0x800A03EC);      // run-time error 1004
}  // namespace hresult

// The one way in which an automation call fails.
class AutomationError : public std::runtime_error {
  public:
    // member: the member or argument that failed; description: one line for a person.
    AutomationError(HResult code, std::string_view member, std::string_view description)
        : std::runtime_error(std::string(member) + ": " + std::string(description)),
          code_(code),
          member_(member),
          description_(description) {}

    [[nodiscard]] HResult code() const { return code_; }
    [[nodiscard]] const std::string& member() const { return member_; }
    [[nodiscard]] const std::string& description() const { return description_; }

  private:
    HResult code_;
    std::string member_;
    std::string description_;
};

// A call that did not fit the member: nothing ran. What fails inside a member is a plain AutomationError, even when a
// call that the member made itself was wrong.
class WrongCall final : public AutomationError {
  public:
    // argument: the position among the member's parameters of an argument of the wrong type, counted from 0.
    WrongCall(HResult code, std::string_view member, std::string_view description,
              std::optional<std::size_t> argument = std::nullopt)
        : AutomationError(code, member, description), argument_(argument) {}

    [[nodiscard]] std::optional<std::size_t> argument() const { return argument_; }

  private:
    std::optional<std::size_t> argument_;
};

}  // namespace kestrune::automation
