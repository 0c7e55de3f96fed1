#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "automation/Value.h"
#include "styles/cStyles.h"

namespace kestrune::settings {

// What a whole number or a text of a field stands for.
enum class Sense { plain, color, style_name };  // color: BGR

// One field of a record. Whatever reads, writes, shows or changes settings walks tables of these.
template <class Record>
struct Field {
    std::string_view name;  // as preferences files know it
    std::variant<bool Record::*, std::int32_t Record::*, double Record::*, std::string Record::*,
                 automation::Date Record::*, styles::StyleRef Record::*>
        member;
    Sense sense = Sense::plain;
    std::span<const std::string_view> keywords = {};  // the texts that it may hold; any when there are none
};

// A field's content as a typed value; a style is its name, empty for none.
automation::Value value_of(bool content);
automation::Value value_of(std::int32_t content);
automation::Value value_of(double content);
automation::Value value_of(const std::string& content);
automation::Value value_of(automation::Date content);
automation::Value value_of(const styles::StyleRef& content);

// The opposite. Numbers, Booleans and dates may also be spelt as texts, a date as 2026-01-31. A style is looked up in
// the library by its name; none of that name leaves the field empty. Type-mismatch or overflow when the value does not
// convert; the content stays what it was.
void take(bool& content, const automation::Value& value, const styles::cStyles& library);
void take(std::int32_t& content, const automation::Value& value, const styles::cStyles& library);
void take(double& content, const automation::Value& value, const styles::cStyles& library);
void take(std::string& content, const automation::Value& value, const styles::cStyles& library);
void take(automation::Date& content, const automation::Value& value, const styles::cStyles& library);
void take(styles::StyleRef& content, const automation::Value& value, const styles::cStyles& library);

template <class Record>
automation::Value value_of(const Field<Record>& field, const Record& record) {
    return std::visit([&](auto member) { return value_of(record.*member); }, field.member);
}

template <class Record>
void take(const Field<Record>& field, Record& record, const automation::Value& value, const styles::cStyles& library) {
    std::visit([&](auto member) { take(record.*member, value, library); }, field.member);
}

}  // namespace kestrune::settings
