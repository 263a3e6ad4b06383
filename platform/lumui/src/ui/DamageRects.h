// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRegion>
#include <vector>

#include "lumui/Export.h"

namespace lumui::ui {

// The rectangles that a node draws one after the other to mend a damage: the damage itself, with
// those put together that cost less as one. They do not overlap, so that nothing is laid over
// itself, and cover the damage; what they cover beside it is for the painter to clip.
LUMUI_API std::vector<QRect> SplitDamage(const QRegion& inDamage);

}  // namespace lumui::ui
