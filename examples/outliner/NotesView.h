// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>

#include "OutlineRow.h"
#include "lumui/controls/UI_TextEdit.h"
#include "lumui/ui/UI_SubView.h"
#include "vek/app/DocStatusMessage.h"
#include "vek/messaging/Listener.h"
#include "vek/selection/Messages.h"
#include "vek/undo/MultiUndoer.h"

namespace outliner {

class OutlineDocument;

// The note of the row that is selected in the current document, in a field to write in. It follows
// the application's messages about documents. What is typed goes into the document's editor of
// notes letter by letter, and becomes a deed when the field loses the keyboard; so the view may go,
// or show another note, at any time.
class NotesView final
    : public lumui::ui::UI_SubView,
      private vek::messaging::Listener<const vek::app::DocStatusMessage>,
      private vek::messaging::Listener<const vek::selection::SelectionChangeMessage&>,
      private vek::messaging::Listener<const vek::undo::ItemsChangedMsg&> {
 public:
  explicit NotesView(OutlineDocument* inDocument);  // the current one, or null
  ~NotesView() override;

  // Gives the keyboard to the field.
  void FocusField();
  lumui::controls::UI_TextEdit& GetField() { return *mField; }

  void UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const override;

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;

 private:
  using Message = lumui::controls::UI_InteractiveControlChangedMessage;

  void ListenToMessage(const vek::app::DocStatusMessage inMessage) override;
  void ListenToMessage(const vek::selection::SelectionChangeMessage&) override { ShowNote(); }
  void ListenToMessage(const vek::undo::ItemsChangedMsg&) override { ShowNote(); }

  void Follow(OutlineDocument* inDocument);
  OutlineRow* FindRow() const;  // the one that is selected; null for none and for several
  lumcore::UTF16String TextFor(const OutlineRow& inRow) const;
  void ShowNote();
  void Edited(Message& inMessage);

  OutlineDocument* mDocument = nullptr;
  OutlineRow::Id mRow = 0;  // of the note in the field; 0 for none
  lumcore::UTF16String mTitle;
  OutlineRow::Id mTitledRow = 0;  // an empty title is drawn where there is a row
  boost::intrusive_ptr<lumui::controls::UI_TextEdit> mField;
  boost::shared_ptr<lumui::controls::UI_InteractiveControlView::ChangedFunction> mEdited;
};

}  // namespace outliner
