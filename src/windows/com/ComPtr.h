#pragma once

#include <windows.h>

#include <unknwn.h>
#include <wrl/client.h>

namespace kestrune::windows {

using Microsoft::WRL::ComPtr;

// Takes over a reference that is owned already. ComPtr::Attach is not used: mingw-w64's adds a reference of its own.
template <class Interface>
ComPtr<Interface> adopt(Interface* owned) noexcept {
    ComPtr<Interface> pointer;
    *pointer.GetAddressOf() = owned;
    return pointer;
}

}  // namespace kestrune::windows
