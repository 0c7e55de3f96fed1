#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "automation/Value.h"

namespace kestrune::host {

// What a macro does with its arguments, and what it answers: Empty for a Sub.
using Macro = std::function<automation::Value(std::span<const automation::Value> arguments)>;

// A macro as Application.Run and OnAction name it: "mPublic.Init", "Book1.xlsm!Init", "'My book.xls'!mPublic.Init",
// "'C:\models\My book.xls'!Init". In quotes an apostrophe is written twice.
struct MacroName {
    std::string workbook;  // name or full name; empty when the text names none
    std::string macro;

    static MacroName parse(std::string_view text);
};

// The macros of the embedded Excel, which runs no VBA: functions take their place.
class Macros {
  public:
    // A macro ("mPublic.Init") of a workbook ("Kestrune Examples.xls"), which need not be open yet. Registering one
    // again replaces it. An empty workbook stands for an add-in that is always there.
    void add(std::string workbook, std::string macro, Macro function);

    // The macro of a workbook by "Module.Macro", or by "Macro" alone where only one module has it. Null when there
    // is none.
    [[nodiscard]] const Macro* find(std::string_view workbook, std::string_view macro) const;

  private:
    struct Entry {
        std::string workbook;
        std::string name;
        Macro function;
    };
    std::vector<Entry> entries_;
};

}  // namespace kestrune::host
