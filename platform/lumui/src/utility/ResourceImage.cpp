// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "utility/ResourceImage.h"

#include <string>
#include <string_view>
#include <vector>

#include "lumcore/utility/StringUtils.h"
#include "lumui/drawbot/Image.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/ModuleHandle.h"
#include "lumui/utility/ResourceManager.h"
#include "utility/ResourceError.h"

namespace lumui::utility {

using lumcore::UTF16String;
using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;
using ImageP = boost::intrusive_ptr<drawbot::ImageInterface>;

namespace {

struct NamedScale {
  float scale;
  const char* suffix;
};
constexpr NamedScale kScales[] = {{1, ""}, {1.5f, "_AT_3TO2X"}, {2, "_AT_2X"}, {3, "_AT_3X"}};

constexpr const char* kPNG = "PNG";
constexpr const char* kSVG = "SVG";

// Null if there is no such resource.
ImageP LoadOne(const ResourceManager& inResources, const drawbot::SupplierInterface& inSupplier,
               const UTF16String& inName, const char* inType, float inScale) {
  std::vector<unsigned char> bytes;
  if (!inResources.GetBinary(inName, inType, bytes)) return {};
  // Errors of the picture itself tell where it is from.
  const std::string name =
      ui::NameOfModule(inResources.GetModule()) + "/" + inType + "/" + ToStdString(inName);
  return inSupplier.NewImageFromBytes(
      std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size()), name, inScale);
}

}  // namespace

UTF16String ImageNameWithoutEnding(const UTF16String& inName) {
  for (const char* ending : {".PNG", ".SVG"}) {
    const UTF16String text = ToUTF16(ending);
    if (inName.size() <= text.size()) continue;
    const auto start = inName.size() - text.size();
    if (lumcore::utility::ToUpperCase(inName.substr(start)) == text) return inName.substr(0, start);
  }
  return inName;
}

ImageP LoadResourceImage(const ResourceManager& inResources,
                         const drawbot::SupplierInterface& inSupplier, const UTF16String& inName) {
  std::vector<ImageP> rasters;
  for (const NamedScale& scale : kScales) {
    const UTF16String name = inName + ToUTF16(scale.suffix);
    const ImageP raster = LoadOne(inResources, inSupplier, name, kPNG, scale.scale);
    if (raster) rasters.push_back(raster);
  }
  if (!rasters.empty()) return inSupplier.NewMultiScaleImage(rasters);
  // A vector picture has every scale, so any one of the names will do.
  for (const NamedScale& scale : kScales) {
    const UTF16String name = inName + ToUTF16(scale.suffix);
    if (const ImageP image = LoadOne(inResources, inSupplier, name, kSVG, 1)) return image;
  }
  ThrowMissingResource(inResources.GetModule(), inName, ToUTF16(kPNG));
}

}  // namespace lumui::utility
