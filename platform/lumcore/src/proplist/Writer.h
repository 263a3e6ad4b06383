// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>

namespace lumcore::proplist {

class PropList;

// Deeper nesting is neither written nor read, as both follow it by recursion or keep a level of
// state for each. A control in a dialog takes four levels.
constexpr std::size_t kMostLevels = 512;

// The whole file. False where the lists are nested too deep; outXML is then incomplete.
bool WriteXML(const PropList& inList, std::string& outXML);

}  // namespace lumcore::proplist
