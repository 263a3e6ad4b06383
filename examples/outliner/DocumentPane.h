// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <cstddef>
#include <functional>

#include "lumui/ui/UI_SubView.h"
#include "vek/messaging/Listener.h"
#include "vek/selection/Messages.h"
#include "vek/uisupport/CommandHandler.h"
#include "vek/undo/MultiUndoer.h"

namespace outliner {

class LineField;
class OutlineDocument;
class OutlineList;
class StatusLine;
class TitleStrip;

// Shows one document: title strip, the field that finds rows, the rows, status line. It is the
// current command handler while one of these has the keyboard, and gives the context for keys;
// commands it leaves to the application, which every walk asks behind it. Those that go from row to
// row go by the rows that show here.
//
// The document is borrowed until Detach; behind that the pane is blank and deaf.
class DocumentPane final
    : public lumui::ui::UI_SubView,
      public vek::uisupport::CommandHandler,
      private vek::messaging::Listener<const vek::selection::SelectionChangeMessage&>,
      private vek::messaging::Listener<const vek::undo::ItemsChangedMsg&> {
 public:
  struct Functions {
    std::function<void()> stateChanged;  // the document's title or dirty mark may be another
    std::function<void(const lumcore::geom::PointT<int>& inScreenPlace)> openRowMenu;
    // See OutlineList.
    std::function<lumcore::UTF16String()> getColumns;
    std::function<void(const lumcore::UTF16String&)> keepColumns;
  };

  DocumentPane(OutlineDocument& inDocument, Functions inFunctions);
  ~DocumentPane() override;
  void Detach();

  // Gives the keyboard to the rows.
  void FocusRows();
  // Gives the keyboard to the field that finds rows.
  void FocusFind();
  OutlineList& GetList() { return *mList; }

  void UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const override;

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;
  bool DoHandleCommand(int inCommand) override;
  bool DoCommandEnabled(int inCommand, bool& ioEnabled, bool& ioChecked,
                        lumcore::UTF16String& ioTitle) override;
  // That of texts while one is edited, else none.
  const lumcore::UTF8String& DoGetCommandContext() override;

 private:
  void ListenToMessage(const vek::selection::SelectionChangeMessage&) override;
  void ListenToMessage(const vek::undo::ItemsChangedMsg&) override;

  void BuildNodes();
  void Find(const lumcore::UTF16String& inText);
  void FocusChanged();
  void ShowSelection(std::size_t inMostRows);
  void ShowState();
  lumcore::UTF16String DescribeCounts() const;
  lumcore::UTF16String DescribeNews() const;

  OutlineDocument* mDocument;
  Functions mFunctions;
  boost::intrusive_ptr<TitleStrip> mTitleStrip;
  boost::intrusive_ptr<LineField> mFind;
  boost::intrusive_ptr<OutlineList> mList;
  boost::intrusive_ptr<StatusLine> mStatusLine;
  std::size_t mSelectedCount = 0;
};

}  // namespace outliner
