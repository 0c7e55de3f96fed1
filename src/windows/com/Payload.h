#pragma once

#include <windows.h>

#include <oaidl.h>

namespace kestrune::windows {

// The bytes of a VARIANT of a type, without the type itself: where they are, and how many. Fails with type-mismatch for
// a type that has none.
std::size_t payload_size(VARTYPE type);

// What a VT_BYREF VARIANT (but for VT_VARIANT) refers to, under its own type: a view that owns nothing.
VARIANT dereferenced(const VARIANT& reference);

// The same for an element that stands alone in memory.
VARIANT view_of(VARTYPE type, const void* payload);

// Puts the payload of a VARIANT of the reference's type where the reference points, and frees what was there. The
// VARIANT is empty afterwards.
void move_payload(VARIANT& from, VARTYPE type, void* to);

}  // namespace kestrune::windows
