#pragma once

#include <cstdint>

// The records of a project's dir stream ([MS-OVBA] 2.3.4.2) that are written or read here: number, length, data. Texts
// come twice, in the project's code page and, under the second number, in UTF-16.
namespace kestrune::vba {

enum class DirRecord : std::uint16_t {
    SystemKind = 0x0001,
    Lcid = 0x0002,
    CodePage = 0x0003,
    Name = 0x0004,
    Description = 0x0005,
    HelpFile = 0x0006,
    HelpContext = 0x0007,
    LibraryFlags = 0x0008,
    Version = 0x0009,  // its length says 4 and its data are 6 bytes
    Constants = 0x000C,
    Modules = 0x000F,
    Terminator = 0x0010,
    Cookie = 0x0013,
    LcidInvoke = 0x0014,
    ModuleName = 0x0019,
    ModuleStream = 0x001A,
    ModuleDescription = 0x001C,
    ModuleHelpContext = 0x001E,
    ModuleStandard = 0x0021,
    ModuleOther = 0x0022,
    ModuleTerminator = 0x002B,
    ModuleCookie = 0x002C,
    ModuleOffset = 0x0031,
    ModuleStreamUnicode = 0x0032,
    ConstantsUnicode = 0x003C,
    HelpFileAgain = 0x003D,
    DescriptionUnicode = 0x0040,
    ModuleNameUnicode = 0x0047,
    ModuleDescriptionUnicode = 0x0048,
};

}  // namespace kestrune::vba
