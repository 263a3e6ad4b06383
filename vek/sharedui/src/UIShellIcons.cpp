// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/UIShellIcons.h"

#include <string>

#include "lumcore/filesupport/File.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "vek/utility/VekResources.h"

namespace vek::sharedui {

using lumui::drawbot::SupplierInterface;

namespace {

ImageP GetImage(SupplierInterface const& inSupplier, const char* inName) {
  return utility::GetLibraryImage(inSupplier, lumcore::utility::ToUTF8(inName));
}

}  // namespace

ImageP ImageVelloCompIcon(SupplierInterface const& inSupplier) {
  return GetImage(inSupplier, "SP_LiveLink_Sm_N");
}

ImageP ImageComputerIcon(SupplierInterface const& inSupplier) {
  return GetImage(inSupplier, "UIShell_MyComputer");
}

ImageP ImageFolderIcon(SupplierInterface const& inSupplier, lumcore::filesupport::Dir const&) {
  return GetImage(inSupplier, "UIShell_Folder");
}

ImageP ImageMyDocumentsIcon(SupplierInterface const& inSupplier) {
  return GetImage(inSupplier, "UIShell_MyDocuments");
}

ImageP ImageUIRootIcon(SupplierInterface const& inSupplier) {
  return GetImage(inSupplier, "UIShell_Desktop");
}

ImageP ImageVolumeIcon(SupplierInterface const& inSupplier) {
  return GetImage(inSupplier, "UIShell_Drive");
}

ImageP ImageFileIcon(lumcore::filesupport::File const& inFile,
                     SupplierInterface const& inSupplier) {
  const std::string extension =
      lumcore::utility::ToStdString(lumcore::utility::ToLowerCase(inFile.GetExtension(true)));
  for (const char* const known : {".vlp", ".vlpx", ".vlcap"}) {
    if (extension == known) return GetImage(inSupplier, "UIShell_VLXProj");
  }
  if (extension == ".mrproj") return GetImage(inSupplier, "UIShell_MRXProj");
  return GetImage(inSupplier, "SP_GenericFile_Md_N");
}

}  // namespace vek::sharedui
