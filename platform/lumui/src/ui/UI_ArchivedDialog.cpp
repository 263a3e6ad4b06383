// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/UI_ArchivedDialog.h"

#include <vector>

#include "lumcore/config/Localizer.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/utility/ResourceManager.h"
#include "ui/DialogArchives.h"

namespace lumui::ui {

UI_ArchivedDialog::UI_ArchivedDialog(const drawbot::SupplierInterface* inSupplier,
                                     const utility::ResourceManager& inResources,
                                     const lumcore::UTF16String& inResource,
                                     const lumcore::UTF16String& inTitle, UI_Node* inParent,
                                     const UI_NodeBuilder::CustomNodeFunction& inCustomNode)
    : UI_Dialog(inTitle, inParent) {
  const std::vector<unsigned char> bytes = inResources.GetRequiredBinary(inResource, "xml");
  if (bytes.empty()) {
    throw lumcore::config::Error(lumcore::utility::ReplaceInString(
        lumcore::config::Localizer::Get()->GetLocalizedString(
            "$$$/lumui/nodes/Error/Empty=@0: the archive is empty"),
        {inResource}));
  }
  UI_NodeBuilder builder(DialogArchives::Get().Read(bytes, inResource), inResource);
  builder.SetResources(&inResources);
  UI_NodeBuilder::NodeMap nodes;
  mRoot = builder.Build(inSupplier, nodes, inCustomNode);
  const lumcore::geom::RectT<float> size = mRoot->UI_GetLocalRectF();
  GetContent().UI_AddChild(mRoot);
  if (const auto* const view = dynamic_cast<const UI_SubView*>(mRoot.get())) {
    SetMinimumSize(view->GetConstraints().minWidth, view->GetConstraints().minHeight);
  }
  SetSize(size.width, size.height);
}

UI_ArchivedDialog::~UI_ArchivedDialog() = default;

void UI_ArchivedDialog::UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) {
  UI_Dialog::UI_SizeChanged(inRect);
  if (mRoot) mRoot->UI_SetLocalRectF(inRect);
}

}  // namespace lumui::ui
