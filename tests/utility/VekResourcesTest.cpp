// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/utility/VekResources.h"

#include <gtest/gtest.h>

#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/UI_SubView.h"
#include "lumui/utility/DrawbotImageResourceCache.h"
#include "lumui/utility/ImageProvider.h"
#include "lumui/utility/ResourceManager.h"
#include "vek/uisupport/MainWindowLookup.h"

using namespace vek::utility;
using lumcore::utility::ToUTF16;
using lumcore::utility::ToUTF8;

// In one test, as there is one life of them in a process.
TEST(VekResources, LiveFromFirstUseToDisposal) {
  EXPECT_THROW(GetImageProvider(), lumcore::config::Error);  // there is no window yet
  const boost::intrusive_ptr<lumui::ui::UI_Node> window(new lumui::ui::UI_SubView);
  vek::uisupport::SetDrawSupplierLookup([&window] { return window->UI_GetDrawSupplier(); });
  lumui::utility::ImageProvider* const provider = GetImageProvider();
  const auto image = provider->GetImage(ToUTF8("SP_DisclosureTriangleDown_Xs_N.png"));
  EXPECT_EQ(GetDrawbotImageCache()->GetImage(*GetResourceManager(), *window->UI_GetDrawSupplier(),
                                             ToUTF8("SP_DisclosureTriangleDown_Xs_N")),
            image);
  vek::uisupport::SetDrawSupplierLookup({});
  EXPECT_EQ(GetImageProvider(), provider);

  for (int times = 0; times < 2; ++times) {
    DisposeVekResources();
    EXPECT_EQ(GetDrawbotImageCache(), nullptr);
    EXPECT_EQ(GetImageProvider(), provider);
    EXPECT_TRUE(GetResourceManager()->HasBinary(ToUTF16("UIShell_Drive"), "PNG"));
    EXPECT_TRUE(GetLibraryImage(*window->UI_GetDrawSupplier(), ToUTF8("UIShell_Drive")));
    EXPECT_EQ(GetDrawbotImageCache(), nullptr);
  }
  EXPECT_EQ(image->GetWidth(), 10);
}
