// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

namespace vek_test {

// Makes the process's application object on first use, on the "offscreen" platform unless the
// environment names another. It lives until all tests of the program have run.
void EnsureGuiApplication();

}  // namespace vek_test
