#pragma once

#include <string>
#include <string_view>

namespace kestrune::number_format {

// Files protect plain signs in format codes ("$"#,##0_);\("$"#,##0\)); the object model shows the same code without
// that
// ($#,##0_);($#,##0)). Quotes and backslashes that the meaning needs stay, and so does a code that Excel refuses.
[[nodiscard]] std::string object_model_spelling(std::string_view file_code);
[[nodiscard]] std::string file_spelling(std::string_view object_model_code);

}  // namespace kestrune::number_format
