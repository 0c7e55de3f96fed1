#pragma once

#include <memory>
#include <string>
#include <tuple>

#include "automation/MemberTable.h"
#include "brvblib/Library.h"
#include "brvblib/iConst.h"
#include "brvblib/iDate.h"
#include "brvblib/iDocProp.h"
#include "brvblib/iFile.h"
#include "brvblib/iGUID.h"
#include "brvblib/iHTTP.h"
#include "brvblib/iHotKeys.h"
#include "brvblib/iProduct.h"
#include "brvblib/iScreen.h"
#include "brvblib/iSort.h"
#include "brvblib/iString.h"
#include "brvblib/iWinAPI.h"
#include "brvblib/iXML.h"

namespace kestrune::brvblib {

// The library's entry object: its sub-objects, and what concerns the library as a whole.
class iPublic : public automation::Served<iPublic> {
  public:
    explicit iPublic(std::shared_ptr<Library> library);
    static const automation::MemberTable& members();

  private:
    // The Excel application whose window and screen updating the library looks after.
    void set_application(const automation::ObjectRef& application) { library_->application = application; }
    // Whether the client was registered. With its last client the library lets go of the application.
    bool unregister_client(const std::string& client_name);

    template <class Part>
    [[nodiscard]] std::shared_ptr<Part> part() const {
        return std::get<std::shared_ptr<Part>>(parts_);
    }

    std::shared_ptr<Library> library_;
    std::tuple<std::shared_ptr<iConst>, std::shared_ptr<iDate>, std::shared_ptr<iDocProp>, std::shared_ptr<iFile>,
               std::shared_ptr<iGUID>, std::shared_ptr<iHotKeys>, std::shared_ptr<iHTTP>, std::shared_ptr<iProduct>,
               std::shared_ptr<iScreen>, std::shared_ptr<iSort>, std::shared_ptr<iString>, std::shared_ptr<iWinAPI>,
               std::shared_ptr<iXML>>
        parts_;
};

}  // namespace kestrune::brvblib
