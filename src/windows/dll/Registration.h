#pragma once

#include <windows.h>

namespace kestrune::windows {

// Whose programs find the DLL's classes: everybody's on this machine, which takes an administrator, or one person's.
enum class Scope { Machine, User };

// Tells the registry about the DLL's creatable classes, its type library and its interfaces. All of it or, when
// something fails, nothing.
HRESULT register_module(Scope scope) noexcept;

// Takes back whatever of that is there, goes on when something fails, and answers the first failure. What belongs to
// others stays: another version of the type library, a name that another class took over, and what the DLL of the other
// width (32 and 64 bits share names and type libraries) still needs.
HRESULT unregister_module(Scope scope) noexcept;

}  // namespace kestrune::windows
