#pragma once

#include <array>
#include <memory>
#include <string>

#include "automation/MemberTable.h"
#include "brxllib/Library.h"
#include "brxllib/iAutoColor.h"

namespace kestrune::brxllib {

// The library's entry object: its sub-objects, and what concerns the library as a whole.
class iPublic : public automation::Served<iPublic> {
  public:
    explicit iPublic(std::shared_ptr<Library> library);
    static const automation::MemberTable& members();

  private:
    enum Part : std::size_t {
        Const,
        Control,
        Display,
        Formula,
        Menu,
        Product,
        Range,
        UndoRedo,
        Workbook,
        Worksheet,
        parts
    };

    // The Excel application that the library works in.
    void set_application(const automation::ObjectRef& application);
    // Whether the client was registered. With its last client the library lets go of the application.
    bool unregister_client(const std::string& client_name);

    [[nodiscard]] std::shared_ptr<iAutoColor> auto_color() const { return auto_color_; }
    template <Part part>
    [[nodiscard]] automation::ObjectRef object() const {
        return objects_[part];
    }

    std::shared_ptr<Library> library_;
    std::shared_ptr<iAutoColor> auto_color_;
    std::array<automation::ObjectRef, parts> objects_;
};

}  // namespace kestrune::brxllib
