// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

namespace vek::hierarchyview {

class HierarchyEntryBase;

// True where nobody overrides how the entry answers for its state, so that it changes by
// SetNodeState of the base only. False where that is so or cannot be told. Not for an entry whose
// constructor may be running.
bool AnswersItsOwnState(HierarchyEntryBase const& inEntry);

}  // namespace vek::hierarchyview
