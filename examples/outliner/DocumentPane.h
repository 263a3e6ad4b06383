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

namespace lumui::controls {
class UI_ScrollView;
}

namespace outliner {

class OutlineDocument;
class OutlineView;
class StatusLine;
class TitleStrip;

// Shows one document: title strip, rows, status line. It is the current command handler while its
// rows have the keyboard, and gives the context for keys; commands it leaves to the application,
// which every walk asks behind it.
//
// The document is borrowed until Detach; behind that the pane is blank and deaf.
class DocumentPane final
    : public lumui::ui::UI_SubView,
      public vek::uisupport::CommandHandler,
      private vek::messaging::Listener<const vek::selection::SelectionChangeMessage&>,
      private vek::messaging::Listener<const vek::undo::ItemsChangedMsg&> {
 public:
  // inStateChanged is called when the document's title or dirty mark may be another.
  DocumentPane(OutlineDocument& inDocument, std::function<void()> inStateChanged);
  ~DocumentPane() override;
  void Detach();

  // Gives the keyboard to the rows.
  void FocusRows();
  OutlineView& GetRows() { return *mView; }

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
  void ShowSelection(std::size_t inMostRows);
  void ShowState();
  lumcore::UTF16String DescribeCounts() const;
  lumcore::UTF16String DescribeNews() const;

  OutlineDocument* mDocument;
  std::function<void()> mStateChanged;
  boost::intrusive_ptr<TitleStrip> mTitleStrip;
  boost::intrusive_ptr<OutlineView> mView;
  boost::intrusive_ptr<lumui::controls::UI_ScrollView> mScrollView;
  boost::intrusive_ptr<StatusLine> mStatusLine;
  std::size_t mSelectedCount = 0;
};

}  // namespace outliner
