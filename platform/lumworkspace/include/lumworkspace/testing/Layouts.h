// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "lumworkspace/Export.h"

namespace lumworkspace::workspace {
class Workspace;
}

// For tests and for runs by script.
namespace lumworkspace::testing {

// Where the tabs stand, by their types: "left[a|b*] bottom[c / (d + ~e)] center float[f@10,10]".
// Groups have '|' between the tabs and '*' behind the one in front, columns '/' and rows '+'
// between their parts, '~' stands before closed tabs, "center" for a central node. With sizes, ":"
// and its size stands behind each area and each part of a row or column, and a window has its size.
LUMWORKSPACE_API std::string LayoutAsText(const workspace::Workspace& inWorkspace,
                                          bool inWithSizes = false);

}  // namespace lumworkspace::testing
