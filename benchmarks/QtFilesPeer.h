// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

// A new QFileSystemModel under a QTreeView in a shown window, from the folder's name to all of its
// files painted. It reads on a thread of its own; this waits for it.
void ShowFolderInQt(const std::string& inFolder, int inFiles);
