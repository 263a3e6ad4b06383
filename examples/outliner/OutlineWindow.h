// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <cstddef>
#include <functional>
#include <memory>
#include <utility>

#include "DocumentCommands.h"
#include "OutlineDocument.h"
#include "RowEditor.h"
#include "lumui/ui/OS_Window.h"
#include "vek/messaging/Listener.h"
#include "vek/selection/Messages.h"
#include "vek/uisupport/CommandHandler.h"
#include "vek/undo/MultiUndoer.h"

namespace lumui::controls {
class UI_ScrollView;
}

namespace outliner {

class OutlineView;
class StatusLine;
class TitleStrip;

// The window of one document, which it owns: title strip, rows, status line. It is the current
// command handler while it has the keyboard; the application stands behind it.
//
// Closing asks about what is not saved; a save that fails keeps the window. The native window may
// go before this object.
class OutlineWindow final
    : public lumui::ui::OS_Window,
      public vek::uisupport::CommandHandler,
      private vek::messaging::Listener<const vek::selection::SelectionChangeMessage&>,
      private vek::messaging::Listener<const vek::undo::ItemsChangedMsg&> {
 public:
  using Function = std::function<void()>;

  OutlineWindow(std::unique_ptr<OutlineDocument> inDocument,
                vek::uisupport::CommandHandler* inParent);
  ~OutlineWindow() override;

  OutlineDocument& GetDocument() { return *mDocument; }
  RowEditor& GetEditor() { return *mEditor; }

  // Whether there is anything to save, what is being typed included.
  bool IsDirty() const { return mEditor->IsModified() || mDocument->IsDirty(); }

  // Gives the keyboard to the rows.
  void FocusRows();

  // Called once when the window has closed.
  void SetClosedFunction(Function inClosed) { mClosed = std::move(inClosed); }

  // Commit what is being typed and write the file; both throw what OutlineDocument::SaveAs throws.
  void Save();
  void SaveAs(const lumcore::filesupport::File& inFile);
  // Commits what is being typed, and asks if there is anything that is not saved. True if the
  // window may close now.
  bool MayClose();

  void UI_DoClose() override;
  // What no node has taken means a command, if the key map has one for it.
  bool UI_DoKeyboardEvent(lumui::ui::UI_Node* inNode,
                          const lumui::ui::KeyboardEvent& inEvent) override;

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;
  bool DoHandleCommand(int inCommand) override;
  bool DoCommandEnabled(int inCommand, bool& ioEnabled, bool& ioChecked,
                        lumcore::UTF16String& ioTitle) override;
  // That of texts while one is edited, else none.
  const lumcore::UTF8String& DoGetCommandContext() override;

 private:
  static void OnEvent(lumui::ui::OS_Event* ioEvent);

  void ListenToMessage(const vek::selection::SelectionChangeMessage&) override;
  void ListenToMessage(const vek::undo::ItemsChangedMsg&) override;

  void BuildNodes();
  void ShowSelection(std::size_t inMostRows);
  void ShowState();
  lumcore::UTF16String DescribeCounts() const;
  lumcore::UTF16String DescribeNews() const;
  int AskAboutChanges();
  bool TrySave();

  std::unique_ptr<OutlineDocument> mDocument;
  std::unique_ptr<RowEditor> mEditor;
  std::unique_ptr<DocumentCommands> mCommands;
  boost::intrusive_ptr<TitleStrip> mTitleStrip;
  boost::intrusive_ptr<OutlineView> mView;
  boost::intrusive_ptr<lumui::controls::UI_ScrollView> mScrollView;
  boost::intrusive_ptr<StatusLine> mStatusLine;
  Function mClosed;
  std::size_t mSelectedCount = 0;
  bool mIsAsking = false;
};

}  // namespace outliner
