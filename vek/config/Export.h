// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

// VEK_API marks what the shared library gives out; all else stays hidden in it.
#if defined(_WIN32)
#if defined(VEK_EXPORTS)
#define VEK_API __declspec(dllexport)
#else
#define VEK_API __declspec(dllimport)
#endif
#else
#define VEK_API __attribute__((visibility("default")))
#endif
