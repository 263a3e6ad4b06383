// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>

#include "lumui/controls/UI_ScrollBar.h"
#include "lumui/controls/UI_ScrollView.h"
#include "vek/config/Export.h"
#include "vek/trackview/LUMPlatformView.h"

namespace vek::trackview {

// The scroll view around a platform view. When the user moves the content by a bar or the wheel,
// the position listeners of the platform view are called.
class VEK_API PlatformScrollView : public lumui::controls::UI_ScrollView {
 public:
  PlatformScrollView(lumcore::utility::Flags<unsigned int> inFlags,
                     boost::intrusive_ptr<LUMPlatformView> inView);
  ~PlatformScrollView() override;

  // One around a new platform view with a new track view: not centred, at the fixed scale 1 until
  // its range is set. All are visible.
  static boost::intrusive_ptr<PlatformScrollView> Create();

  LUMPlatformView& GetPlatformView() const;

 private:
  const boost::shared_ptr<lumui::controls::UI_ScrollBar::ChangedFunction> mScrolled;
};

}  // namespace vek::trackview
