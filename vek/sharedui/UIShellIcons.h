// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>

#include "lumui/drawbot/Image.h"
#include "vek/config/Export.h"

namespace lumcore::filesupport {
class Dir;
class File;
}  // namespace lumcore::filesupport
namespace lumui::drawbot {
class SupplierInterface;
}

namespace vek::sharedui {

// Pictures of what a shell tree shows, out of the library's image cache, which must be there
// (see vek/utility/VekResources.h). Never null.
using ImageP = boost::intrusive_ptr<lumui::drawbot::ImageInterface>;

VEK_API ImageP ImageVelloCompIcon(lumui::drawbot::SupplierInterface const& inSupplier);
VEK_API ImageP ImageComputerIcon(lumui::drawbot::SupplierInterface const& inSupplier);
VEK_API ImageP ImageFolderIcon(lumui::drawbot::SupplierInterface const& inSupplier,
                               lumcore::filesupport::Dir const& inDir);
VEK_API ImageP ImageMyDocumentsIcon(lumui::drawbot::SupplierInterface const& inSupplier);
VEK_API ImageP ImageUIRootIcon(lumui::drawbot::SupplierInterface const& inSupplier);
VEK_API ImageP ImageVolumeIcon(lumui::drawbot::SupplierInterface const& inSupplier);
// By its extension.
VEK_API ImageP ImageFileIcon(lumcore::filesupport::File const& inFile,
                             lumui::drawbot::SupplierInterface const& inSupplier);

}  // namespace vek::sharedui
