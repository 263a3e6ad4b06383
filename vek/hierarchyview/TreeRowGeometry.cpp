// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/TreeRowGeometry.h"

namespace vek::hierarchyview {

TreeRowGeometry::TreeRowGeometry(HierarchyEntryBase const* inEntry,
                                 lumcore::geom::PointT<float> const& inPosition)
    : mEntry(inEntry), mPosition(inPosition) {}

TreeRowGeometry::~TreeRowGeometry() = default;

bool TreeRowGeometry::DrawFocusMarquee() const {
  return true;
}

TreeRowGeometryFactory::~TreeRowGeometryFactory() = default;

}  // namespace vek::hierarchyview
