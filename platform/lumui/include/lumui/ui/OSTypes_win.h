// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

// The one header of the platform that brings the system's own in, and without the macros that would
// rename our operations.
#if !defined(NOMINMAX)
#define NOMINMAX
#endif
#if !defined(WIN32_LEAN_AND_MEAN)
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>
#undef CreateFont
#undef DrawText
#undef LoadImage
#undef MessageBox
