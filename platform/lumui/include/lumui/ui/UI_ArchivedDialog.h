// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/ui/UI_Dialog.h"
#include "lumui/ui/UI_NodeBuilder.h"

namespace lumui::ui {

// A dialog whose controls stand in an archive. It opens in the size of the archive's root, which
// fills it from then on; the root's constraints are the least size of the dialog.
class LUMUI_API UI_ArchivedDialog : public UI_Dialog {
 public:
  // The archive is a resource of the type "xml". Throws a config::Error that names it where it is
  // not there, empty or damaged. See UI_NodeBuilder for the function.
  UI_ArchivedDialog(const drawbot::SupplierInterface* inSupplier,
                    const utility::ResourceManager& inResources,
                    const lumcore::UTF16String& inResource, const lumcore::UTF16String& inTitle,
                    UI_Node* inParent, const UI_NodeBuilder::CustomNodeFunction& inCustomNode = {});
  ~UI_ArchivedDialog() override;

  UI_Node* GetRoot() const { return mRoot.get(); }  // never null

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;

 private:
  boost::intrusive_ptr<UI_Node> mRoot;
};

}  // namespace lumui::ui
