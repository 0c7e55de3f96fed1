#pragma once

#include <memory>
#include <string>
#include <tuple>

#include "automation/MemberTable.h"
#include "brxllib/Library.h"
#include "brxllib/iAutoColor.h"
#include "brxllib/iConst.h"
#include "brxllib/iControl.h"
#include "brxllib/iDisplay.h"
#include "brxllib/iFormula.h"
#include "brxllib/iMenu.h"
#include "brxllib/iProduct.h"
#include "brxllib/iRange.h"
#include "brxllib/iUndoRedo.h"
#include "brxllib/iWorkbook.h"
#include "brxllib/iWorksheet.h"

namespace kestrune::brxllib {

// The library's entry object: its sub-objects, and what concerns the library as a whole.
class iPublic : public automation::Served<iPublic> {
  public:
    explicit iPublic(std::shared_ptr<Library> library);
    static const automation::MemberTable& members();

  private:
    // The Excel application that the library works in.
    void set_application(const automation::ObjectRef& application);
    // Whether the client was registered. With its last client the library lets go of the application.
    bool unregister_client(const std::string& client_name);

    template <class Part>
    [[nodiscard]] std::shared_ptr<Part> part() const {
        return std::get<std::shared_ptr<Part>>(parts_);
    }

    std::shared_ptr<Library> library_;
    std::tuple<std::shared_ptr<iAutoColor>, std::shared_ptr<iConst>, std::shared_ptr<iControl>,
               std::shared_ptr<iDisplay>, std::shared_ptr<iFormula>, std::shared_ptr<iMenu>, std::shared_ptr<iProduct>,
               std::shared_ptr<iRange>, std::shared_ptr<iUndoRedo>, std::shared_ptr<iWorkbook>,
               std::shared_ptr<iWorksheet>>
        parts_;
};

}  // namespace kestrune::brxllib
