#include "brvblib/SystemServices.h"

#include <windows.h>

#include <gtest/gtest.h>
#include <objbase.h>

#include "windows/services/MsxmlParser.h"
#include "windows/services/Win32Files.h"

namespace kestrune::brvblib {
namespace {

// Excel's thread is in an apartment of its own.
struct Apartment : testing::Environment {
    void SetUp() override { ASSERT_TRUE(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))); }
    void TearDown() override { ::CoUninitialize(); }
};
const auto* const apartment = testing::AddGlobalTestEnvironment(std::make_unique<Apartment>().release());

}  // namespace

void add_system_services(Services& services) {
    services.files = std::make_shared<windows::Win32Files>();
    services.xml = std::make_shared<windows::MsxmlParser>();
}

}  // namespace kestrune::brvblib
