// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <cstddef>
#include <functional>

#include "OutlineColumns.h"
#include "lumui/ui/UI_SubView.h"
#include "vek/hierarchyview/ColumnStateChangeMessage.h"
#include "vek/messaging/Listener.h"
#include "vek/trackview/PlatformView.h"

namespace vek::trackview {
class LUMPlatformView;
class PlatformScrollView;
}  // namespace vek::trackview

namespace outliner {

class OutlineDocument;
class OutlineHeader;
class OutlineTreeList;
class RowField;

// A document's rows as one node: the header with the columns, below it the list in its scroll view,
// and over a row of it the field in which the row's text is typed.
//
// Without columns of the user's own the list shows the texts and whatever of types, times and links
// its rows have; the column of the texts takes the room that the others leave.
class OutlineList final
    : public lumui::ui::UI_SubView,
      private vek::messaging::Listener<vek::hierarchyview::ColumnStateChangeMessage const> {
 public:
  struct Functions {
    std::function<void()> focusChanged;  // of the rows and of the field
    std::function<void(const lumcore::geom::PointT<int>& inScreenPlace)> openRowMenu;
    // The columns as the user has left them, in the form of WriteColumns; empty for none.
    std::function<lumcore::UTF16String()> getColumns;
    std::function<void(const lumcore::UTF16String&)> keepColumns;
  };

  OutlineList(OutlineDocument& inDocument, Functions inFunctions);
  ~OutlineList() override;
  // The document goes; the node may stay for the event that runs.
  void Detach();

  OutlineTreeList& GetRows() { return *mList; }
  RowField& GetField() { return *mField; }

  // The keyboard in the field, if one is open, or else in the rows.
  void FocusRows();
  bool HasKeyboard() const;
  void DocumentChanged();
  // Opens the field, moves it or closes it, as the document's editor says.
  void ShowEditor();

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;

 private:
  class View;

  void ListenToMessage(vek::hierarchyview::ColumnStateChangeMessage const inMessage) override;

  void BuildNodes();
  void BuildRows();
  void Follow(vek::trackview::PlatformView& inFollowed, vek::trackview::PlatformView& inFollower,
              vek::trackview::PlatformView::PositionListener& outListener);
  void InsertColumns();
  void OfferColumns();
  void FillWithText();
  void KeepColumns();
  void PlaceField();
  void FocusChanged();
  void OpenRowMenu(const vek::trackview::Point& inLocalPoint);
  bool Type(unsigned short inUnit);

  OutlineDocument* mDocument;
  Functions mFunctions;
  boost::intrusive_ptr<View> mView;
  boost::intrusive_ptr<vek::trackview::LUMPlatformView> mHeaderView;
  boost::intrusive_ptr<vek::trackview::PlatformScrollView> mHeaderScroll;
  boost::intrusive_ptr<vek::trackview::PlatformScrollView> mListScroll;
  boost::intrusive_ptr<RowField> mField;
  OutlineHeader* mHeader = nullptr;  // owned by its view, as is the list
  OutlineTreeList* mList = nullptr;
  vek::trackview::PlatformView::PositionListener mHeaderFollows;
  vek::trackview::PlatformView::PositionListener mListFollows;
  bool mTextFills = true;  // the column of the texts takes the room that is left
  bool mIsFilling = false;
  std::size_t mCaret;  // of a field that opens; beyond the end is the end
};

}  // namespace outliner
