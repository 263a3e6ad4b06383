// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/UI_Node.h"

#include <QApplication>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <utility>

#include "lumcore/debug/Contract.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/OS_Window.h"
#include "lumui/utility/InteractionRegistry.h"
#include "ui/EventGate.h"
#include "ui/NodeManagerImpl.h"
#include "ui/NodePeer.h"

namespace lumui::ui {

namespace {

Qt::FocusReason QtFromReason(int inReason) {
  switch (inReason) {
    case kFocusTab:
      return Qt::TabFocusReason;
    case kFocusPointer:
      return Qt::MouseFocusReason;
    case kFocusWindow:
      return Qt::ActiveWindowFocusReason;
    default:
      return Qt::OtherFocusReason;
  }
}

int Rounded(float inValue) {
  return static_cast<int>(std::floor(inValue + 0.5f));
}

}  // namespace

UI_Node::UI_Node() : UI_Node(std::make_unique<NodePeer>()) {}

UI_Node::UI_Node(std::unique_ptr<NodePeer> inPeer) : mPeer(std::move(inPeer)) {
  LUM_INPUT_CONTRACT(mPeer != nullptr);
  mPeer->Bind(*this);
}

UI_Node::~UI_Node() {
  if (auto* const manager = NodeManagerImplIfAny()) {
    manager->timers.RemoveAll(*this);
    auto& nodes = manager->prePointerNodes;
    nodes.erase(std::remove(nodes.begin(), nodes.end(), this), nodes.end());
  }
  mPeer->Destroy();
  for (const auto& child : mChildren)
    child->mParent = nullptr;
}

void UI_Node::UI_AddChild(const boost::intrusive_ptr<UI_Node>& inChild) {
  UI_InsertChild(inChild, mChildren.size());
}

void UI_Node::UI_InsertChild(const boost::intrusive_ptr<UI_Node>& inChild, std::size_t inIndex) {
  LUM_INPUT_CONTRACT(inChild && inChild != this && !inChild->UI_IsAncestorOf(*this));
  const boost::intrusive_ptr<UI_Node> child = inChild;  // inChild may be the parent's own reference
  if (child->mParent) child->mParent->UI_RemoveChild(child.get());
  const std::size_t index = std::min(inIndex, mChildren.size());
  mChildren.insert(mChildren.begin() + static_cast<std::ptrdiff_t>(index), child);
  child->mParent = this;
  mPeer->PlaceChild(*child, UI_GetChild(index + 1));
  NoteChange();
}

bool UI_Node::UI_RemoveChild(UI_Node* inChild) {
  const auto isChild = [&](const auto& inEntry) { return inEntry.get() == inChild; };
  if (std::none_of(mChildren.begin(), mChildren.end(), isChild)) return false;
  const boost::intrusive_ptr<UI_Node> child = inChild;
  if (auto* const manager = NodeManagerImplIfAny()) manager->capture.CancelFor(*child);
  // The end of the capture may have changed the children.
  const auto found = std::find_if(mChildren.begin(), mChildren.end(), isChild);
  if (found == mChildren.end()) return true;
  mChildren.erase(found);
  child->mParent = nullptr;
  child->mPeer->TakeOut();
  NoteChange();
  return true;
}

// For those who show the tree; see UI_NodeManager::InstallNodeChangedFunction.
void UI_Node::NoteChange() {
  if (auto* const manager = NodeManagerImplIfAny()) manager->TellNodeChanged(*this);
}

UI_Node* UI_Node::UI_GetChild(std::size_t inIndex) const {
  return inIndex < mChildren.size() ? mChildren[inIndex].get() : nullptr;
}

OS_Window* UI_Node::UI_GetWindowNode() const {
  for (const UI_Node* node = this; node; node = node->mParent) {
    const auto* const window = dynamic_cast<const OS_Window*>(node);
    if (window) return const_cast<OS_Window*>(window);
  }
  return nullptr;
}

bool UI_Node::UI_IsAncestorOf(const UI_Node& inNode) const {
  for (const UI_Node* node = inNode.mParent; node; node = node->mParent) {
    if (node == this) return true;
  }
  return false;
}

void UI_Node::UI_SetNodeID(const lumcore::UTF8String& inID) {
  mNodeID = inID;
  NoteChange();
}

void UI_Node::UI_SetNodeID(const char* inID) {
  UI_SetNodeID(lumcore::utility::ToUTF8(std::string_view(inID)));
}

UI_Node* UI_Node::UI_GetNodeForID(const lumcore::UTF8String& inID) {
  if (mNodeID == inID) return this;
  for (const auto& child : mChildren) {
    if (UI_Node* const found = child->UI_GetNodeForID(inID)) return found;
  }
  return nullptr;
}

void UI_Node::UI_Show(bool inShow) {
  mVisible = inShow;
  mPeer->ApplyVisible();
  NoteChange();
}

bool UI_Node::UI_IsShown() const {
  const QWidget* const widget = mPeer->GetWidget();
  return widget && widget->isVisible();
}

void UI_Node::UI_SetDisabled(bool inDisabled) {
  mDisabled = inDisabled;
  mPeer->ApplyDisabled();
  NoteChange();
}

void UI_Node::UI_SetOpaque(bool inOpaque) {
  mPeer->SetOpaque(inOpaque);
}

void UI_Node::UI_SetToolTip(const lumcore::UTF16String& inText) {
  mToolTip = inText;
  mPeer->ApplyToolTip();
}

void UI_Node::UI_SetLocalRectF(const lumcore::geom::RectT<float>& inRect) {
  const bool resized = inRect.width != mLocalRect.width || inRect.height != mLocalRect.height;
  const bool changed = inRect != mLocalRect;
  mLocalRect = inRect;
  mPeer->ApplyRect();
  if (changed) NoteChange();
  if (resized) UI_SizeChanged(lumcore::geom::RectT<float>(0, 0, inRect.width, inRect.height));
}

void UI_Node::UI_SizeChanged(const lumcore::geom::RectT<float>&) {}

void UI_Node::UI_Draw(drawbot::Drawbot*) const {}

void UI_Node::UI_DispatchDrawFromRoot(const drawbot::ColorRGBA& inGround,
                                      drawbot::Drawbot* inDrawbot, bool inFill) const {
  if (!inFill) return;
  const lumcore::geom::RectT<float> all(0, 0, mLocalRect.width, mLocalRect.height);
  inDrawbot->FillRect(all, inGround);
}

bool UI_Node::UI_DoMouseEvent(UI_Node*, const MouseEvent&) {
  return false;
}

bool UI_Node::UI_DoCursor(UI_Node*, const MouseEvent&) {
  return false;
}

bool UI_Node::UI_DoKeyboardEvent(UI_Node*, const KeyboardEvent&) {
  return false;
}

bool UI_Node::UI_WantsKeyboardFocus() const {
  return mWantsFocus;
}

void UI_Node::UI_DoTimerNotify(unsigned int) {}

void UI_Node::UI_FocusChanged(int) {}

bool UI_Node::UI_DoMouseWheel(UI_Node*, const WheelEvent&) {
  return false;
}

bool UI_Node::UI_DoPrePointerEvent(const MouseEvent&) {
  return false;
}

AccessibleItems* UI_Node::UI_GetAccessibleItems() {
  return nullptr;
}

bool UI_Node::UI_SupportsDrawbot() const {
  return true;
}

drawbot::SupplierInterface* UI_Node::UI_GetDrawSupplier() const {
  return drawbot::GetDefaultSupplier();
}

bool UI_Node::UI_SetKeyboardFocus(int inReason) {
  QWidget* const widget = mPeer->GetWidget();
  if (!widget || !UI_GetWindowNode()) return false;
  widget->setFocus(QtFromReason(inReason));
  return UI_HasKeyboardFocus();
}

bool UI_Node::UI_HasKeyboardFocus() const {
  const QWidget* const widget = mPeer->GetWidget();
  return widget && NodePeer::NodeOf(QApplication::focusWidget()) == this;
}

void UI_Node::UI_SetWantsKeyboardFocus(bool inWants) {
  mWantsFocus = inWants;
  mPeer->ApplyWantsFocus();
  NoteChange();
}

void UI_Node::UI_SetWantsPrePointerEvents(bool inWants) {
  auto& nodes = NodeManagerImpl().prePointerNodes;
  const auto found = std::find(nodes.begin(), nodes.end(), this);
  if (inWants && found == nodes.end()) nodes.push_back(this);
  if (!inWants && found != nodes.end()) nodes.erase(found);
  NoteChange();
}

bool UI_Node::UI_WantsPrePointerEvents() const {
  const auto* const manager = NodeManagerImplIfAny();
  if (!manager) return false;
  const auto& nodes = manager->prePointerNodes;
  return std::find(nodes.begin(), nodes.end(), this) != nodes.end();
}

bool UI_Node::UI_DispatchPrePointerEvent(UI_Node* inRoot, const MouseEvent& inEvent) {
  utility::InteractionRegistry::Get().Note();
  auto& nodes = NodeManagerImpl().prePointerNodes;
  const std::vector<UI_Node*> atStart = nodes;
  for (UI_Node* node : atStart) {
    // A node that was asked may have taken others with it.
    if (std::find(nodes.begin(), nodes.end(), node) == nodes.end()) continue;
    if (node != inRoot && !inRoot->UI_IsAncestorOf(*node)) continue;
    const lumcore::utility::StKeepAlive keepAlive(*node);
    if (node->UI_DoPrePointerEvent(inEvent)) return true;
  }
  return false;
}

void UI_Node::UI_InstallTimer(float inSeconds, unsigned int inTimerID) {
  NodeManagerImpl().timers.Install(*this, inTimerID, inSeconds);
}

void UI_Node::UI_RemoveTimer(unsigned int inTimerID, bool inMustRun) {
  const bool removed = NodeManagerImpl().timers.Remove(*this, inTimerID);
  LUM_INPUT_CONTRACT(removed || !inMustRun);
}

void UI_Node::UI_Invalidate(const lumcore::geom::RectT<int>& inRect,
                            lumcore::utility::Flags<unsigned int>) {
  mPeer->Invalidate(inRect);
}

void UI_Node::UI_InvalidateAll() {
  mPeer->InvalidateAll();
}

void UI_Node::UI_UpdateNow(lumcore::utility::Flags<unsigned int>) {
  QWidget* const widget = mPeer->GetWidget();
  if (!widget || !widget->isVisible() || EventGate::Get()->IsPainting()) return;
  // What is waiting stands as one event of the window, the whole window's.
  QCoreApplication::sendPostedEvents(widget->window(), QEvent::UpdateRequest);
}

void UI_Node::UI_LocalToGlobal(lumcore::geom::PointT<int>& ioPoint) const {
  const OS_Window* const window = UI_GetWindowNode();
  const QWidget* const top = window ? window->GetPeer()->GetWidget() : nullptr;
  const QWidget* const widget = mPeer->GetWidget();
  if (top && widget && top->isAncestorOf(widget)) {
    const QPoint point = widget->mapTo(top, QPoint(ioPoint.x, ioPoint.y));
    ioPoint =
        lumcore::geom::PointT<int>(point.x(), point.y() - window->GetPeer()->GetChromeHeight());
    return;
  }
  for (const UI_Node* node = this; node->mParent && node != window; node = node->mParent) {
    ioPoint.x += Rounded(node->mLocalRect.x);
    ioPoint.y += Rounded(node->mLocalRect.y);
  }
}

void UI_Node::UI_GlobalToLocal(lumcore::geom::PointT<int>& ioPoint) const {
  lumcore::geom::PointT<int> origin;
  UI_LocalToGlobal(origin);
  ioPoint = ioPoint - origin;
}

}  // namespace lumui::ui
