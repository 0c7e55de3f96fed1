#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "automation/MemberTable.h"
#include "brvblib/CommandBracket.h"
#include "brvblib/Library.h"

namespace kestrune::brvblib {

// The products that use the library: who they are, what is set for them on this machine, and when one of their
// commands runs.
class iProduct : public automation::Served<iProduct> {
  public:
    explicit iProduct(std::shared_ptr<Library> library);
    static const automation::MemberTable& members();

  private:
    // Registering a name again replaces what was said before.
    void register_client(const std::string& client_name, const std::string& product_name, const std::string& title);
    [[nodiscard]] bool show_examples_at_start() const;
    [[nodiscard]] bool allows_training() const;
    [[nodiscard]] automation::Value machine_value(const std::string& name) const;
    // Before a command (ended False) and after it (True) of the product named.
    void command_bracket(bool ended, const std::string& product);
    // A user message by its number and language; bad index where there is none. The language is 1033, English.
    [[nodiscard]] std::string_view message(std::int32_t number, std::int32_t language) const;

    // The user's own folder for the product's files, ending in a separator. It is made when it is not there; where that
    // fails, the trace is told and reading or writing in it will say why. Fails when the system has no such place.
    [[nodiscard]] std::string data_folder() const;
    // Opens the product's help. When it is missing or cannot be opened, one message says so.
    void show_help() const;

    std::shared_ptr<Library> library_;
    CommandBracket bracket_;
};

}  // namespace kestrune::brvblib
