#include "cli/HostFormats.h"

#include "host/model/CustomFormats.h"

namespace kestrune::cli {

std::vector<brxllib::CustomFormat> HostFormats::of(const excel::Workbook& workbook) {
    const host::OpenWorkbook* opened = session_.find(workbook.FullName());
    if (!opened) return {};
    std::vector<brxllib::CustomFormat> formats;
    for (host::CustomNumberFormat& format : host::custom_number_formats(*opened->model))
        formats.push_back({std::move(format.code), format.in_use});
    return formats;
}

}  // namespace kestrune::cli
