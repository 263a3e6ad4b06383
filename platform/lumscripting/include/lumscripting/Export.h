// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

// LUMSCRIPTING_API marks what the shared library gives out; all else stays hidden in it.
#if defined(_WIN32)
#if defined(LUMSCRIPTING_EXPORTS)
#define LUMSCRIPTING_API __declspec(dllexport)
#else
#define LUMSCRIPTING_API __declspec(dllimport)
#endif
#else
#define LUMSCRIPTING_API __attribute__((visibility("default")))
#endif
