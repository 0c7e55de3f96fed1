#pragma once

#include <memory>
#include <string>
#include <utility>

#include "automation/MemberTable.h"
#include "brxllib/Library.h"

namespace kestrune::brxllib {

// Shows things to a person.
class iDisplay : public automation::Served<iDisplay> {
  public:
    explicit iDisplay(std::shared_ptr<Library> library) : library_(std::move(library)) {}
    static const automation::MemberTable& members();

  private:
    // Shows an array as a table of texts in a message box; large ones are cut, and the box says so. A value that is no
    // array shows alone.
    void display_array(const automation::Value& array, const std::string& title);

    std::shared_ptr<Library> library_;
};

}  // namespace kestrune::brxllib
