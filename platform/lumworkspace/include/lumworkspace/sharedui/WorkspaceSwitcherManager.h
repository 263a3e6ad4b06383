// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "lumcore/Strings.h"
#include "lumworkspace/Export.h"

namespace lumworkspace::sharedui {

class LUMWORKSPACE_API WorkspaceSwitcherListener {
 public:
  virtual ~WorkspaceSwitcherListener();
  virtual void WorkspacesConfigurationChanged() = 0;
};

// What the user has arranged in the workspace switcher: which workspaces stand in it and in which
// order. It is one text that whoever keeps settings stores as it stands. There is one manager,
// which is never destroyed; listeners are borrowed, and whoever goes removes itself.
class LUMWORKSPACE_API WorkspaceSwitcherManager {
 public:
  static WorkspaceSwitcherManager* Get();

  const lumcore::UTF8String& GetData() const { return mData; }
  // Tells the listeners if the text is another one.
  void SetData(const lumcore::UTF8String& inData);

  // A listener stands here once, however often it is added.
  void AddListener(WorkspaceSwitcherListener* inListener);
  void RemoveListener(WorkspaceSwitcherListener* inListener);

 private:
  lumcore::UTF8String mData;
  std::vector<WorkspaceSwitcherListener*> mListeners;
};

}  // namespace lumworkspace::sharedui
