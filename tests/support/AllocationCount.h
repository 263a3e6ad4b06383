// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>

namespace test_support {

// How often operator new has been called in this process. Its own source file replaces the
// operator, so only programs that list it count.
std::size_t AllocationCount();

}  // namespace test_support
