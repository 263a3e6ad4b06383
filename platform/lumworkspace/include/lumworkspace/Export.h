// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

// LUMWORKSPACE_API marks what the shared library gives out; all else stays hidden in it.
#if defined(_WIN32)
#if defined(LUMWORKSPACE_EXPORTS)
#define LUMWORKSPACE_API __declspec(dllexport)
#else
#define LUMWORKSPACE_API __declspec(dllimport)
#endif
#else
#define LUMWORKSPACE_API __attribute__((visibility("default")))
#endif
