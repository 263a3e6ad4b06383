// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/shared_ptr.hpp>
#include <deque>
#include <vector>

#include "lumcore/Strings.h"
#include "lumcore/proplist/PropList.h"

namespace lumui::ui {

// The archives of the dialogs that were opened last, as they were read: a user opens the same few
// again and again, and reading one takes longer than making its nodes. They are known by their
// bytes, so it does not matter where those come from.
class DialogArchives {
 public:
  // Made on first use, alive until the process ends.
  static DialogArchives& Get();

  // Throws what reading throws, and then keeps nothing of it. The name stands in errors alone.
  boost::shared_ptr<const lumcore::proplist::PropList> Read(
      const std::vector<unsigned char>& inBytes, const lumcore::UTF16String& inName);

 private:
  struct Archive {
    lumcore::UTF8String bytes;
    boost::shared_ptr<const lumcore::proplist::PropList> list;
  };

  std::deque<Archive> mArchives;  // the one that was read last stands last
};

}  // namespace lumui::ui
