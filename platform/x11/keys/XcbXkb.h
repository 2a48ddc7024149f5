// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

// This C header has a member with a name that C++ keeps for itself.
#ifdef __clang__
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wkeyword-macro"
#endif
#define explicit explicitActions
#include <xcb/xkb.h>
#undef explicit
#ifdef __clang__
#pragma clang diagnostic pop
#endif
