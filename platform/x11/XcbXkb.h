// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

// This C header has a member with a name that C++ keeps for itself.
#define explicit explicitActions
#include <xcb/xkb.h>
#undef explicit
