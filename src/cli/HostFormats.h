#pragma once

#include <vector>

#include "brxllib/Surroundings.h"
#include "host/objects/HostSession.h"

namespace kestrune::cli {

// The custom number formats of workbooks that are open in the embedded Excel.
class HostFormats : public brxllib::CustomFormats {
  public:
    explicit HostFormats(const host::HostSession& session) : session_(session) {}

    std::vector<brxllib::CustomFormat> of(const excel::Workbook& workbook) override;

  private:
    const host::HostSession& session_;
};

}  // namespace kestrune::cli
