// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <boost/intrusive_ptr.hpp>
#include <functional>
#include <vector>

#include "layout/Layout.h"
#include "lumui/ui/UI_SubView.h"

class QDockWidget;

namespace lumworkspace::workspace {
class WorkspaceFrameBase;
}

namespace lumworkspace::docking {

// The docks of one window, around a node in the centre; without one they fill the window. It shows
// what it is told, tells what stands there, and notes whether the user has changed it since.
class DockArea : public lumui::ui::UI_SubView {
 public:
  using Frame = workspace::WorkspaceFrameBase;
  using Roots = std::array<layout::Item, workspace::kDockAreaCount>;
  using FindFrame = std::function<Frame*(const lumcore::UTF8String&)>;

  DockArea(bool inIsMain, bool inForTouch);
  ~DockArea() override;

  bool IsMain() const { return mIsMain; }
  void SetCentralNode(const boost::intrusive_ptr<lumui::ui::UI_Node>& inNode);
  lumui::ui::UI_Node* GetCentralNode() const { return mCentral.get(); }

  // Shows the open tabs that inFind finds a frame for, and no others. The sizes are scaled to the
  // window where it differs from inWidth by inHeight.
  void Arrange(const Roots& inRoots, int inWidth, int inHeight, const FindFrame& inFind);
  // What stands there, measured.
  Roots Capture() const;
  // Brings the order of tabs and the tabs in front up to date, where a group is still the same.
  void CaptureTabs(layout::Item& ioRoot) const;

  // The user has moved or resized docks since they were arranged.
  bool IsEdited() const { return mEdited; }
  void SetEdited(bool inEdited) { mEdited = inEdited; }
  void BringToFront(Frame& inFrame);

  struct Group {
    std::vector<lumcore::UTF8String> types;
    lumcore::UTF8String current;
  };
  Group GetGroupOf(const Frame& inFrame) const;
  // Where a dock that is dropped at a point of the screen shall stand. False where nothing takes
  // it.
  bool GetPlaceAt(int inX, int inY, workspace::TabPlace& outPlace) const;

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;

 private:
  class Peer;
  Peer& GetAreaPeer() const;
  std::vector<Frame*> GetFrames() const;
  std::vector<Group> GetGroups() const;
  QDockWidget* DockOf(const lumcore::UTF8String& inType) const;
  QDockWidget* FirstDockIn(const layout::Item& inItem) const;
  bool IsShown(const lumcore::UTF8String& inType) const { return DockOf(inType) != nullptr; }
  void Split(const layout::Item& inItem);
  void StackTabs(const layout::Item& inItem);
  void ApplySizes();
  void ApplySizes(const layout::Item& inItem, double inFactorX, double inFactorY);

  bool mIsMain;
  bool mEdited = false;
  bool mArranging = false;
  boost::intrusive_ptr<lumui::ui::UI_Node> mCentral;
  Roots mArranged;  // as it was told, for when the window gets another size
  int mArrangedWidth = 0;
  int mArrangedHeight = 0;
};

}  // namespace lumworkspace::docking
