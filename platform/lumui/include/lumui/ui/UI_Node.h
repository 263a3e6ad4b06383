// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include <boost/intrusive_ptr.hpp>

#include "lumcore/Strings.h"
#include "lumcore/geom/Point.h"
#include "lumcore/geom/Rect.h"
#include "lumcore/utility/Flags.h"
#include "lumcore/utility/RefCounted.h"
#include "lumui/Export.h"
#include "lumui/ui/UI_DragDropHandler.h"

namespace lumui::drawbot {
class Drawbot;
struct ColorRGBA;
class SupplierInterface;
}  // namespace lumui::drawbot

namespace lumui::ui {

class AccessibleItems;
class KeyboardEvent;
class MouseEvent;
class NodePeer;
class OS_Window;
class WheelEvent;

// Why the keyboard focus went from one node to another.
enum FocusChangeReason : int {
  kFocusOther = 0,
  kFocusTab = 1,      // the Tab key
  kFocusPointer = 2,  // a press of a button
  kFocusWindow = 3,   // the window came to the front or left it
};

// A rectangle on the screen that draws, takes events and holds other nodes. A parent owns its
// children by counted reference; whoever else keeps one holds a reference of its own. The window
// system's part behind a node is made when the node is first placed in a window.
//
// Every event operation may remove the node it is called on, drop the last reference to it, or
// destroy its window: the caller holds it until the operation returns, and the event ends there.
// What an operation throws goes to the application's error function and counts as an event taken.
class LUMUI_API UI_Node : public lumcore::utility::RefCountedObject, public UI_DragDropHandler {
 public:
  UI_Node(const UI_Node&) = delete;
  UI_Node& operator=(const UI_Node&) = delete;
  ~UI_Node() override;

  // The tree. A node that has a parent is taken out of it first; a node is never its own ancestor
  // (a contract). inIndex counts from 0; at the end, or beyond it, the child is in front of all.
  void UI_AddChild(const boost::intrusive_ptr<UI_Node>& inChild);
  void UI_InsertChild(const boost::intrusive_ptr<UI_Node>& inChild, std::size_t inIndex);
  // False if inChild is no child of this node. Its reference is dropped, so it may die here.
  bool UI_RemoveChild(UI_Node* inChild);
  UI_Node* UI_GetParentNode() const { return mParent; }
  std::size_t UI_GetChildCount() const { return mChildren.size(); }
  UI_Node* UI_GetChild(std::size_t inIndex) const;  // null beyond the end
  // The top-level window that holds this node, itself included; null outside a window.
  OS_Window* UI_GetWindowNode() const;
  bool UI_IsAncestorOf(const UI_Node& inNode) const;  // false for itself

  // The name by which the node is looked up. Several nodes may share one.
  void UI_SetNodeID(const lumcore::UTF8String& inID);
  void UI_SetNodeID(const char* inID);
  const lumcore::UTF8String& UI_GetNodeID() const { return mNodeID; }
  // This node or the first below it, in depth-first order; null if there is none.
  UI_Node* UI_GetNodeForID(const lumcore::UTF8String& inID);

  // Whether the node itself is to be seen; it is seen if its ancestors are as well. A node starts
  // visible, a top-level window hidden.
  void UI_Show(bool inShow);
  bool UI_IsVisible() const { return mVisible; }
  // Whether it is on the screen: in a window that shows, with all that holds it, and not behind
  // another tab. What other windows or nodes cover counts as shown.
  bool UI_IsShown() const;
  // A disabled node and what it holds get no pointer and key events; its parent gets them.
  void UI_SetDisabled(bool inDisabled);
  bool UI_IsDisabled() const { return mDisabled; }
  // Whether the node fills all of its rectangle at each paint, so that nothing behind it is drawn.
  // It fills the drawbot's clip bounds first, which are whole pixels: with parts of pixels in a
  // unit the edges of other rectangles are blended with what was there before.
  void UI_SetOpaque(bool inOpaque);
  void UI_SetToolTip(const lumcore::UTF16String& inText);
  const lumcore::UTF16String& UI_GetToolTip() const { return mToolTip; }

  // In the coordinates of the parent's top left corner, never moved by scrolling; for a top-level
  // window in those of the screen, without its frame.
  const lumcore::geom::RectT<float>& UI_GetLocalRectF() const { return mLocalRect; }

  // Published operations, to be overridden.

  // Whoever overrides it calls the base operation, which stores and applies the rectangle and calls
  // UI_SizeChanged if the size is another.
  virtual void UI_SetLocalRectF(const lumcore::geom::RectT<float>& inRect);
  // Draws the node itself, in its local coordinates (content coordinates in a scroll view), clipped
  // to it. The children draw themselves over it, later. The base operation draws nothing.
  virtual void UI_Draw(drawbot::Drawbot* inDrawbot) const;
  // For a node that is a ground for others: fills all of it with the colour, if inFill says so.
  // What it holds is drawn over that, as always.
  void UI_DispatchDrawFromRoot(const drawbot::ColorRGBA& inGround, drawbot::Drawbot* inDrawbot,
                               bool inFill) const;
  // For the events below inNode is where the event began, also when an ancestor is asked. True
  // takes the event; else the parent is asked. The base operations answer false.
  virtual bool UI_DoMouseEvent(UI_Node* inNode, const MouseEvent& inEvent);
  // Asked before each move of the pointer: who answers true has set the cursor through the node
  // manager. If nobody does, it becomes the arrow, and the move may still set another.
  virtual bool UI_DoCursor(UI_Node* inNode, const MouseEvent& inEvent);
  virtual bool UI_DoKeyboardEvent(UI_Node* inNode, const KeyboardEvent& inEvent);
  // Whether the Tab key stops at the node. A node that wants the focus at a press takes it itself.
  // The base operation answers what UI_SetWantsKeyboardFocus said, false at start.
  virtual bool UI_WantsKeyboardFocus() const;
  virtual void UI_DoTimerNotify(unsigned int inTimerID);
  // After the node has gained or lost the focus: UI_HasKeyboardFocus tells which.
  virtual void UI_FocusChanged(int inReason);
  virtual bool UI_DoMouseWheel(UI_Node* inNode, const WheelEvent& inEvent);
  // Asked before a press is dispatched anywhere in the window, if UI_SetWantsPrePointerEvents said
  // so. True swallows the press.
  virtual bool UI_DoPrePointerEvent(const MouseEvent& inEvent);
  virtual bool UI_SupportsDrawbot() const;
  // What the node draws, for those who do not see it; null, as the base operation answers, for
  // nothing. Asked when the node is first read, and then each time.
  virtual AccessibleItems* UI_GetAccessibleItems();
  // What makes images, fonts and paths for drawing on this node. Borrowed, never null.
  drawbot::SupplierInterface* UI_GetDrawSupplier() const;

  // Focus. A node that is not in a window has none and takes none; true if it has it now.
  bool UI_SetKeyboardFocus(int inReason);
  bool UI_HasKeyboardFocus() const;
  void UI_SetWantsKeyboardFocus(bool inWants);
  // While the node has the focus, each key is an event for it before any mnemonic: for who takes
  // keys as such, to be stored.
  void UI_SetClaimsAllKeys(bool inClaims) { mClaimsAllKeys = inClaims; }
  bool UI_ClaimsAllKeys() const { return mClaimsAllKeys; }

  void UI_SetWantsPrePointerEvents(bool inWants);
  bool UI_WantsPrePointerEvents() const;
  // Offers the event to the nodes under inRoot (itself included) that want it, in the order in
  // which they said so. True as soon as one takes it.
  static bool UI_DispatchPrePointerEvent(UI_Node* inRoot, const MouseEvent& inEvent);

  // Timers repeat until they are removed or the node goes. An id is the node's own; installing one
  // that runs starts it anew. inSeconds is above 0 (a contract).
  void UI_InstallTimer(float inSeconds, unsigned int inTimerID);
  // A timer that does not run is no failure unless inMustRun says so (a contract then).
  void UI_RemoveTimer(unsigned int inTimerID, bool inMustRun);

  // Asks for drawing. The rectangle is in the coordinates in which UI_Draw draws. No flags are in
  // use: pass none, or all.
  void UI_Invalidate(const lumcore::geom::RectT<int>& inRect,
                     lumcore::utility::Flags<unsigned int> inFlags);
  void UI_InvalidateAll();
  // Draws now what is waiting to be drawn, in this node and in those it holds.
  void UI_UpdateNow(lumcore::utility::Flags<unsigned int> inFlags);

  // Between the node's local coordinates (scrolling not counted) and those of the top-level window,
  // which begin below its menu bar, as the positions of the pointer do. Outside a window the
  // topmost ancestor stands for it. To the screen it is one step more:
  // OS_Window::UI_WindowToScreen.
  void UI_LocalToGlobal(lumcore::geom::PointT<int>& ioPoint) const;
  void UI_GlobalToLocal(lumcore::geom::PointT<int>& ioPoint) const;

  // What the platform's own sources work with; null in no case.
  NodePeer* GetPeer() const { return mPeer.get(); }

 protected:
  UI_Node();
  // For nodes that wrap a control of the window system.
  explicit UI_Node(std::unique_ptr<NodePeer> inPeer);

  // After the size has changed: the new rectangle in the node's own coordinates, origin (0, 0).
  virtual void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect);

 private:
  friend class NodePeer;

  void NoteChange();

  UI_Node* mParent = nullptr;
  std::vector<boost::intrusive_ptr<UI_Node>> mChildren;
  lumcore::UTF8String mNodeID;
  lumcore::UTF16String mToolTip;
  lumcore::geom::RectT<float> mLocalRect;
  bool mVisible = true;
  bool mDisabled = false;
  bool mWantsFocus = false;
  bool mClaimsAllKeys = false;
  std::unique_ptr<NodePeer> mPeer;
};

}  // namespace lumui::ui
