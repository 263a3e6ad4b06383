// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <functional>

#include "MapOverlay.h"
#include "MapTools.h"
#include "lumui/ui/UI_SubView.h"
#include "vek/app/DocStatusMessage.h"
#include "vek/messaging/Listener.h"
#include "vek/selection/Messages.h"
#include "vek/trackview/PlatformView.h"
#include "vek/uisupport/CommandHandler.h"
#include "vek/undo/MultiUndoer.h"

namespace vek::trackview {
class PlatformScrollView;
}

namespace outliner {

class MapOverview;
class MapView;

// The current document as a map: the view in its scroll view, over its corner the overview where
// not all is to be seen. It follows the application's messages about documents, and shares the
// selection with the outline through the document's manager.
//
// It is the current command handler while its view has the keyboard, and gives the context for the
// keys of the tools. The commands themselves are the application's (MapCommands), since its menus
// have them as well; those that type go to the outline with the keyboard.
class MapPane final
    : public lumui::ui::UI_SubView,
      public vek::uisupport::CommandHandler,
      private vek::messaging::Listener<const vek::app::DocStatusMessage>,
      private vek::messaging::Listener<const vek::selection::SelectionChangeMessage&>,
      private vek::messaging::Listener<const vek::undo::ItemsChangedMsg&> {
 public:
  struct Functions {
    std::function<void()> focusOutline;  // shows it, with the keyboard in its rows
    std::function<void(const lumcore::geom::PointT<int>& inScreenPlace)> openRowMenu;
  };

  MapPane(OutlineDocument* inDocument, Functions inFunctions);  // the current one, or null
  ~MapPane() override;

  // Gives the keyboard to the map.
  void FocusMap();
  OutlineDocument* GetDocument() { return mOverlay->GetScene().GetDocument(); }

  MapTool GetTool() const { return mTool; }
  void SetTool(MapTool inTool);
  // By steps, with the middle of the view staying where it is. 0 goes back to scale 1.
  void Zoom(int inSteps);
  void ZoomToFit();
  // To the first selected row in the outline.
  void GoToRow();

  vek::trackview::TrackView& GetTrackView() { return *mTrackView; }
  MapScene& GetScene() { return mOverlay->GetScene(); }

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;
  bool DoHandleCommand(int inCommand) override;
  bool DoCommandEnabled(int inCommand, bool& ioEnabled, bool& ioChecked,
                        lumcore::UTF16String& ioTitle) override;
  const lumcore::UTF8String& DoGetCommandContext() override;

 private:
  using Point = vek::trackview::Point;

  void ListenToMessage(const vek::app::DocStatusMessage inMessage) override;
  void ListenToMessage(const vek::selection::SelectionChangeMessage& inMessage) override;
  void ListenToMessage(const vek::undo::ItemsChangedMsg&) override;

  void BuildNodes();
  void Follow(OutlineDocument* inDocument);
  void ShowRoot();
  void FocusChanged();
  void ZoomTo(float inScale, const Point& inFixedPoint);
  float FitScale() const;
  void MapChanged();
  void PlaceOverview();
  void OpenRowMenu(const Point& inLocalPoint);

  Functions mFunctions;
  boost::intrusive_ptr<MapView> mView;
  boost::intrusive_ptr<vek::trackview::PlatformScrollView> mScrollView;
  boost::intrusive_ptr<MapOverview> mOverview;
  vek::trackview::TrackView* mTrackView;            // the view's
  MapOverlay* mOverlay;                             // the track view's
  vek::trackview::Overlay* mToolOverlay = nullptr;  // the same; null while the map selects
  vek::trackview::PlatformView::PositionListener mMoved;
  MapTool mTool = MapTool::kSelect;
  bool mShowsRootNext = false;
};

}  // namespace outliner
