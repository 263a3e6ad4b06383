// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/Export.h"

namespace lumui::ui {

// The fonts of the interface by number: 0 is the default, in which rows, labels and menus are
// drawn. Every other number answers the same; a host that wants another font names it. The family
// is that of the system's interface font, asked for once when an application object runs; the size
// is 12 units, which rests on the row and text heights of trees and lists (16 and 20 units).

// UTF-8. Valid as long as the process, never null.
LUMUI_API const char* GetFontName(int inFont);
// In units, which are pixels at scale 1.
LUMUI_API float GetFontSize(int inFont);

}  // namespace lumui::ui
