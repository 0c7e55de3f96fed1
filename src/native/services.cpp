#include "native/services.h"

#include "brvblib/Paths.h"
#include "native/PosixFiles.h"
#include "native/ProductFile.h"
#include "native/PugiXmlParser.h"
#include "native/UserFolders.h"

namespace kestrune::native {

brvblib::Services services(const automation::Trace& trace, forms::Presenter& presenter,
                           const std::string& installation_folder) {
    return {.trace = trace,
            .presenter = presenter,
            .products = std::make_shared<ProductFile>(product_file(), trace),
            .files = std::make_shared<PosixFiles>(),
            .xml = std::make_shared<PugiXmlParser>(),
            .data_folder = data_folder(),
            .installation_folder = brvblib::with_separator(installation_folder)};
}

}  // namespace kestrune::native
