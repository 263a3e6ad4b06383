// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "layout/Layout.h"
#include "lumcore/Strings.h"

namespace lumcore::proplist {
class PropList;
}

namespace lumworkspace::layout {

// Not damaged, and not to be read here.
bool IsOfLaterVersion(const lumcore::proplist::PropList& inList);

// A layout as a property list.
lumcore::proplist::PropList ToPropList(const Layout& inLayout);

// Throws lumcore::config::Error with inName and the cause for a list that is no layout: of another
// program, of a later version of this one, or edited to what cannot be. inName is a path, or what
// else names the place.
Layout FromPropList(const lumcore::proplist::PropList& inList, const lumcore::UTF16String& inName);

}  // namespace lumworkspace::layout
