#include "host/objects/ErrorValues.h"

#include <utility>

#include "automation/Text.h"

namespace kestrune::host {
namespace {

constexpr std::pair<CellError, std::string_view> errors[] = {
    {CellError::Null, "#NULL!"},       {CellError::Div0, "#DIV/0!"},
    {CellError::Value, "#VALUE!"},     {CellError::Ref, "#REF!"},
    {CellError::Name, "#NAME?"},       {CellError::Num, "#NUM!"},
    {CellError::NA, "#N/A"},           {CellError::GettingData, "#GETTING_DATA"},
    {CellError::Spill, "#SPILL!"},     {CellError::Connect, "#CONNECT!"},
    {CellError::Blocked, "#BLOCKED!"}, {CellError::Unknown, "#UNKNOWN!"},
    {CellError::Field, "#FIELD!"},     {CellError::Calc, "#CALC!"},
};

constexpr std::uint32_t excel_facility = 0x800A0000;

}  // namespace

std::optional<CellError> error_of_text(std::string_view text) {
    for (const auto& [error, spelling] : errors) {
        if (automation::same_text(spelling, text)) return error;
    }
    return std::nullopt;
}

std::string_view text_of_error(CellError error) {
    for (const auto& [known, spelling] : errors) {
        if (known == error) return spelling;
    }
    return "#VALUE!";
}

std::int32_t code_of_error(CellError error) {
    return static_cast<std::int32_t>(excel_facility + static_cast<std::uint32_t>(error));
}

CellError error_of_code(std::int32_t code) {
    const auto number = static_cast<std::int32_t>(static_cast<std::uint32_t>(code) & 0xFFFFU);
    for (const auto& [error, spelling] : errors) {
        if (static_cast<std::int32_t>(error) == number) return error;
    }
    return CellError::Value;
}

}  // namespace kestrune::host
