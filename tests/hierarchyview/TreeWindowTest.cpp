// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "support/TreeRig.h"
