// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/workspace/TopLevelWindowT.h"

#include "lumui/controls/UI_TextEdit.h"
#include "lumui/ui/KeyboardEvent.h"
#include "vek/uisupport/KeyCommandManager.h"

namespace vek::workspace {

namespace {

constexpr unsigned kCaptionAndSizingFrame = 0xC40000;

// Beginning above the node: what a text field itself leaves is no text.
bool IsWithinTextEdit(const lumui::ui::UI_Node& inNode) {
  for (const lumui::ui::UI_Node* node = inNode.UI_GetParentNode(); node;
       node = node->UI_GetParentNode()) {
    if (dynamic_cast<const lumui::controls::UI_TextEdit*>(node)) return true;
  }
  return false;
}

}  // namespace

template <class Base>
bool TopLevelWindowT<Base>::mSupportsMegaZoomB = false;

template <class Base>
TopLevelWindowT<Base>::TopLevelWindowT(lumworkspace::workspace::Workspace* inWorkspace,
                                       lumui::ui::OSEventFunction inEventFunction,
                                       bool inConstructNow)
    : Base(inWorkspace, true, inEventFunction) {
  if (!inConstructNow) return;
  Base::ConstructWindow(nullptr);
  mDropTarget.Attach(*this);
}

template <class Base>
TopLevelWindowT<Base>::TopLevelWindowT(lumworkspace::workspace::Workspace* inWorkspace,
                                       bool inIsMain, const Rect* inRect,
                                       lumui::ui::OSEventFunction inEventFunction, bool inFrameless,
                                       bool inConstructNow)
    : Base(inWorkspace, inIsMain, inEventFunction) {
  if (!inConstructNow) return;
  Base::ConstructWindow(inRect);
  mDropTarget.Attach(*this);
  if (inFrameless) {
    this->UI_SetWindowStyleFlags(this->UI_GetWindowStyleFlags() & ~kCaptionAndSizingFrame);
  }
}

template <class Base>
TopLevelWindowT<Base>::~TopLevelWindowT() = default;

template <class Base>
void TopLevelWindowT<Base>::ConstructWindow(const Rect* inRect) {
  Base::ConstructWindow(inRect);
  mDropTarget.Attach(*this);
}

template <class Base>
bool TopLevelWindowT<Base>::CanMegaZoom() const {
  return mSupportsMegaZoomB;
}

template <class Base>
bool TopLevelWindowT<Base>::GetSupportsMegaZoom() {
  return mSupportsMegaZoomB;
}

template <class Base>
void TopLevelWindowT<Base>::SetSupportsMegaZoom(bool inSupports) {
  mSupportsMegaZoomB = inSupports;
}

template <class Base>
void TopLevelWindowT<Base>::SetDragDropFallbackHandler(
    boost::shared_ptr<lumui::ui::UI_DragDropHandler>& inHandler) {
  mDropTarget.SetFallbackHandler(inHandler);
}

template <class Base>
bool TopLevelWindowT<Base>::UI_DoKeyboardEvent(lumui::ui::UI_Node* inNode,
                                               const lumui::ui::KeyboardEvent& inEvent) {
  if (Base::UI_DoKeyboardEvent(inNode, inEvent)) return true;
  if (IsWithinTextEdit(*inNode)) return false;
  const bool routed = uisupport::KeyCommandManager::Get().RouteKeyEvent(inEvent);
  if (routed) lumui::ui::FlushPostActionKeyEvents(inEvent);
  return routed;
}

template class TopLevelWindowT<lumworkspace::workspace::TopLevelWindow>;
template class TopLevelWindowT<lumworkspace::workspace::TouchTopLevelWindow>;

}  // namespace vek::workspace
