#include "idl/Identities.h"

#include <algorithm>
#include <array>

namespace kestrune::idl {
namespace {

// clang-format off
constexpr auto libraries = std::to_array<LibraryIdentity>({
    {"KestruneXL", "Brannoch Kestrune", "9f4343bd-9c27-4685-b10f-147ef466efe5"},
    {"BRVBLib", "Brannoch VB Library", "1e06d009-8926-40d3-92e8-119af24fc291"},
    {"BRXLLib", "BR Excel Library", "2783cb60-05d1-4e46-9b86-b2e95a17e44e"},
    {"KestruneHost", "Kestrune test host", "7dd6bc05-4abc-41ca-987f-a3dbf0c5252b"},
});

constexpr auto classes = std::to_array<ClassIdentity>({
    {"KestruneXL", "iPublic", "42475813-2bc6-49b6-a4af-cdca2a16fbcf", "600e7fc3-191d-4f9a-81d6-a52e0925b90c"},
    {"KestruneXL", "iGlobal", "9fcf4d15-b746-4e51-aa9e-4c548d25e23b", "e9cd5279-2ada-4455-8104-de982f2eefe7"},
    {"BRVBLib", "iPublic", "aa85c9bb-5da1-431a-a838-b0fbec366ca0", "29392de8-933a-4ad5-ba2c-1fe5b5f31884"},
    {"BRVBLib", "iConst", "ad337106-c2aa-4a1f-853d-bf4390edda4b", "9399e727-3851-4aab-9b45-0fe941705849"},
    {"BRVBLib", "iDate", "7448c1d9-298c-4450-94fd-591ab355cceb", "369f3b02-e625-478e-a5c3-81d6635f0bae"},
    {"BRVBLib", "iDocProp", "b518348c-6a9b-46cc-84a1-5969482154fe", "5f34e79a-8766-4324-9f14-9690452ed68e"},
    {"BRVBLib", "iFile", "22e80fdb-dcea-4f73-9e1e-eaee938b2ec9", "2f53aadb-0d86-4650-82bf-55ddce9a68e8"},
    {"BRVBLib", "iGUID", "62e55310-3cec-4888-888a-6da93d0107c7", "0db2c222-b259-4be4-889f-bb4c77f56094"},
    {"BRVBLib", "iHotKeys", "a0744a4f-dcc0-4ca2-8fcb-c382978a9f9d", "fc5239ca-a6e3-40a4-8868-1e897defdded"},
    {"BRVBLib", "iHTTP", "ef3b6446-c6d2-4135-85fa-6e735a6be487", "4a15242c-23a4-4215-8f51-29fc97184df1"},
    {"BRVBLib", "iProduct", "2208f89e-4561-47fa-a858-24565bf5552a", "6ef60d44-3d55-4217-ac02-aec92d756907"},
    {"BRVBLib", "iScreen", "2f24ab2d-3d0a-455b-a841-95d4814b8db2", "80707e56-bf82-4992-bf21-3541a8a6a40b"},
    {"BRVBLib", "iSort", "5c30a953-dc54-4c4b-9c97-25fc762bf69c", "5b8e1826-4b81-46e8-ac9a-2a667dd4d47e"},
    {"BRVBLib", "iString", "0376c500-986c-4d3a-b1c3-67332bae5de4", "d1f50d69-7d74-45d0-862e-823300d8cc3d"},
    {"BRVBLib", "iWinAPI", "4ee77b04-3774-4799-9474-4bcc054b6294", "3590dba4-da5f-4409-8eca-4fff5e806c0c"},
    {"BRVBLib", "iXML", "ca2d5514-c6d1-4b6e-99a2-e01720dde650", "5eb679bf-81c2-4f82-bd38-dfe38da67e53"},
    {"BRVBLib", "HotKeyRegistry", "6c2348da-0bc9-4125-b34b-c6f81d79daab", "8608a210-63c3-48ba-9f24-4e5122447ad7"},
    {"BRXLLib", "iPublic", "b4e4f905-d966-4d2c-b28f-e40c79c2d934", "16aff0ff-ff89-41f0-81d9-a78df9021d53"},
    {"BRXLLib", "iAutoColor", "2829c108-4216-426c-9dc7-efb32cbaeda1", "f0928238-7ec6-4521-a494-2143f964b06d"},
    {"BRXLLib", "iConst", "f768196a-360f-481f-81e1-db6768ce210c", "8ab62fde-de1c-48ea-b298-a4ebe0bebcdf"},
    {"BRXLLib", "iControl", "91c0b26b-063b-4b80-8191-178ebb224573", "586f2122-2072-4d63-8df5-dbed6cc682c0"},
    {"BRXLLib", "iDisplay", "60b3b110-b6bc-4548-81ca-0a21a8ab9c7e", "c9ac8510-b4d2-4f2c-9952-b33706f5053f"},
    {"BRXLLib", "iFormula", "6aa6f706-463d-4b86-8801-090d8660e908", "6fce8738-c021-4084-96d0-bec5475de3cb"},
    {"BRXLLib", "iMenu", "acaa3c07-a3e2-4379-8676-54dc9ab46299", "3f73c77d-c39d-4877-ab5a-f84acfa322e9"},
    {"BRXLLib", "iProduct", "12869a19-381b-49f8-87ff-0e1e274479b2", "3cf8159d-45a7-44e9-988a-f562f161480d"},
    {"BRXLLib", "iRange", "3ccfe9b7-9d62-4b52-a17e-1213bffdf866", "a023f4a2-9a65-4a0c-87e6-8c5934519edd"},
    {"BRXLLib", "iUndoRedo", "63c9ea2d-fd1a-4e14-a704-a398a3bf1d68", "ce1d4a48-c6b8-45ad-b91b-ed8217f7c3fc"},
    {"BRXLLib", "iWorkbook", "cb1ce89e-06b4-47f6-8383-15d6f3497729", "e51d6576-5384-49ba-9353-c94f0d24a974"},
    {"BRXLLib", "iWorksheet", "ffc44189-896b-47fd-8e42-1c7eca580613", "c9b774df-c609-4e5e-b081-2bae4a975c53"},
    {"KestruneHost", "Application", "5f35627c-37e8-41f7-b92d-d79357daab24", "7e9a2939-723a-4bb5-9c4b-0b846a8df683"},
    {"KestruneHost", "Areas", "4043c214-2476-4fc4-9db9-e589c96f8b77", "3fb73eed-57b3-4598-a8d5-0f1adbeb24f9"},
    {"KestruneHost", "Border", "86c5b382-da61-49cf-b9ac-5cc54ea0dd7a", "8c3a846a-7f2b-4ef2-8ca4-08f048044d94"},
    {"KestruneHost", "Borders", "ed9d308e-8837-424f-a027-f31d9cc18741", "c72ffedf-c4a4-4e86-80eb-432a6be7df56"},
    {"KestruneHost", "Chart", "128a9d13-4c96-4ee4-a802-74d2dcdfd8e7", "d6167815-91ae-449d-ab2d-cd9efcb51e04"},
    {"KestruneHost", "Font", "fa3914a8-859c-4a8f-b04a-cd4aa82546cd", "b3219fd8-829a-47bc-bdc6-801d48aec4fb"},
    {"KestruneHost", "FormatCondition", "0d1eed46-eb7b-481d-8088-42c25eee85d6", "71284b8d-aa5b-42c4-bb8d-3afa8d099b06"},
    {"KestruneHost", "FormatConditions", "601179c0-8de0-46a5-914c-a20ccd1d44cf", "c3ccdaea-b49e-4706-b269-1cd4d021338c"},
    {"KestruneHost", "Interior", "1a08953f-a9d4-44e5-abb0-a9a093bc0b64", "55e877f8-704c-461b-9957-4038fa36ef52"},
    {"KestruneHost", "Name", "b61f7f28-558b-4c94-b24b-b71974621db7", "0ecaf2c1-09e6-4c00-b70c-80c7781fdd74"},
    {"KestruneHost", "Names", "5f2cdb7d-4f17-44e4-b7e5-ea6b70b3930d", "58a8e9b3-e1ca-47e4-b5fc-ea75548b07cb"},
    {"KestruneHost", "Outline", "e2cd84ef-a80e-40f6-baee-9a3a0f232f2d", "6d2c938e-1d3c-49a9-bcbb-55e912e5a8ed"},
    {"KestruneHost", "Range", "b98ae29e-6cfd-400b-a0d2-0a10e2d93d9c", "83f75deb-ff21-4b46-babe-71a0bc31b1c5"},
    {"KestruneHost", "Sheets", "e53e33a5-46f8-4151-b6e2-7ea0fa910448", "33f6c045-ea79-4984-9804-35f0714c98f5"},
    {"KestruneHost", "Style", "e1955dc5-5c27-41ce-aae5-30b7967f4160", "6e0a17d6-4ba1-4c6e-84f8-48faf85ba0f7"},
    {"KestruneHost", "Styles", "7f7d4d77-020b-4d0c-bd18-cd1a6aa4ad19", "5dd49f79-eb45-4df4-8c30-816c4cf151b2"},
    {"KestruneHost", "Window", "7902cb6b-f6f5-428a-a120-f086c6f54981", "4daaf17e-308c-4b68-9ece-cad0b8b42635"},
    {"KestruneHost", "Windows", "f1f96c98-7e21-4562-8639-afc0c1915da3", "49c480fe-bfcc-46e3-9806-64c3a5053056"},
    {"KestruneHost", "Workbook", "4aebf349-4ca8-4a1f-84cc-bd06b09b3ffa", "5ea4ceb1-d50c-4de2-97e4-98a2ab93afd3"},
    {"KestruneHost", "Workbooks", "4a8f3b56-b30f-4a2c-bdcb-aabe4792b996", "f08e39a8-65f7-45d3-889c-f96465742177"},
    {"KestruneHost", "Worksheet", "56c85e02-b029-4596-a6dc-9dcf8bd5bc32", "af59ca79-9ea5-43fa-a183-a36d2308553d"},
    {"KestruneHost", "Worksheets", "1d75809a-de0a-460e-9655-eaef0971e92e", "1e44421f-0631-4225-99df-320b5e5b7686"},
});
// clang-format on

}  // namespace

const LibraryIdentity* library_identity(std::string_view name) {
    const auto row = std::ranges::find(libraries, name, &LibraryIdentity::name);
    return row == libraries.end() ? nullptr : &*row;
}

const ClassIdentity* class_identity(std::string_view library, std::string_view name) {
    const auto row =
        std::ranges::find_if(classes, [&](const ClassIdentity& c) { return c.library == library && c.name == name; });
    return row == classes.end() ? nullptr : &*row;
}

}  // namespace kestrune::idl
