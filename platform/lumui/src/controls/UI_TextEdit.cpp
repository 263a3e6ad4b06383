// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/controls/UI_TextEdit.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <algorithm>
#include <limits>
#include <memory>

#include "controls/ControlPeer.h"
#include "controls/EditWidget.h"
#include "drawbot/QtConvert.h"
#include "lumcore/debug/Contract.h"

namespace lumui::controls {

bool IsEditingKey(QKeyEvent& inEvent) {
  for (const auto key : {QKeySequence::Cut, QKeySequence::Copy, QKeySequence::Paste,
                         QKeySequence::Undo, QKeySequence::Redo, QKeySequence::SelectAll}) {
    if (inEvent.matches(key)) return true;
  }
  const Qt::KeyboardModifiers modifiers = inEvent.modifiers();
  if (modifiers & (Qt::AltModifier | Qt::MetaModifier)) return false;
  const bool chord = modifiers & Qt::ControlModifier;
  switch (inEvent.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
      return true;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      return !chord;
    default:
      return !chord && !inEvent.text().isEmpty() && inEvent.text().at(0).isPrint();
  }
}

namespace {

// As it was typed: toPlainText makes plain blanks of those that do not break.
QString TextOf(const QPlainTextEdit& inArea) {
  QString text = inArea.document()->toRawText();
  for (QChar& unit : text) {
    if (unit == QChar::ParagraphSeparator || unit == QChar::LineSeparator) unit = u'\n';
  }
  return text;
}

}  // namespace

class TextEditPeer : public ControlPeer {
 private:
  using LineEdit = EditWidgetT<QLineEdit>;
  using TextArea = EditWidgetT<QPlainTextEdit>;

  UI_TextEdit& Edit() const { return static_cast<UI_TextEdit&>(GetControl()); }

  QWidget* DoMakeControl(QWidget* inParent) override {
    return Edit().IsMultiLine() ? MakeTextArea(inParent) : MakeLineEdit(inParent);
  }

  QWidget* MakeLineEdit(QWidget* inParent) {
    auto* const edit = new ControlWidgetT<LineEdit, QStyleOptionFrame>(*this, inParent);
    // Of a longer text the rest would be lost with the first edit.
    edit->setMaxLength(std::numeric_limits<int>::max());
    edit->mOnEnter = [this] {
      ByUser([&] { Edit().Commit(); });
      return !IsInDialog() && !Edit().LeavesLineKeys();
    };
    edit->mLeavesArrows = [this] { return Edit().LeavesLineKeys(); };
    ConnectEscape(*edit);
    QObject::connect(edit, &QLineEdit::textEdited, edit, [this](const QString& inText) {
      ByUser([&] { Edit().HandleEdited(drawbot::FromQt(inText)); });
    });
    QObject::connect(edit, &QLineEdit::editingFinished, edit,
                     [this] { ByUser([&] { Edit().Commit(); }); });
    const auto select = [this, edit] {
      const int start = edit->hasSelectedText() ? edit->selectionStart() : edit->cursorPosition();
      KeepSelection(start, start + edit->selectionLength());
    };
    QObject::connect(edit, &QLineEdit::selectionChanged, edit, select);
    QObject::connect(edit, &QLineEdit::cursorPositionChanged, edit, select);
    return edit;
  }

  QWidget* MakeTextArea(QWidget* inParent) {
    // The keyboard leaves it with the Tab key, as it leaves all other controls.
    auto* const edit = new ui::NodeWidgetT<Area>(*this, inParent);
    edit->setTabChangesFocus(true);
    ConnectEscape(*edit);
    edit->mOnFocusLost = [this] { ByUser([&] { Edit().Commit(); }); };
    QObject::connect(edit, &QPlainTextEdit::textChanged, edit, [this, edit] {
      const lumcore::UTF16String text = drawbot::FromQt(TextOf(*edit));
      // Composing with an input method changes how the text looks, and not the text.
      if (text != Edit().GetText()) ByUser([&] { Edit().HandleEdited(text); });
    });
    const auto select = [this, edit] {
      const QTextCursor cursor = edit->textCursor();
      KeepSelection(cursor.selectionStart(), cursor.selectionEnd());
    };
    QObject::connect(edit, &QPlainTextEdit::selectionChanged, edit, select);
    QObject::connect(edit, &QPlainTextEdit::cursorPositionChanged, edit, select);
    return edit;
  }

  class Area : public TextArea {
   public:
    using TextArea::TextArea;
    std::function<void()> mOnFocusLost;

   protected:
    void focusOutEvent(QFocusEvent* inEvent) override {
      TextArea::focusOutEvent(inEvent);
      const Qt::FocusReason reason = inEvent->reason();
      if (reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason) return;
      // A widget without signals has lost its node.
      if (!signalsBlocked()) mOnFocusLost();
    }
  };

  template <class Widget>
  void ConnectEscape(Widget& ioWidget) {
    ioWidget.mOnEscape = [this] {
      bool kept = false;
      if (!IsInDialog()) ByUser([&] { kept = Edit().Revert(); });
      return kept;
    };
  }

  void KeepSelection(int inStart, int inEnd) {
    if (Edit().IsShowingState()) return;
    Edit().mSelectionStart = static_cast<std::size_t>(inStart);
    Edit().mSelectionEnd = static_cast<std::size_t>(inEnd);
  }
};

UI_TextEdit::UI_TextEdit(bool inMultiLine)
    : UI_InteractiveControlView(std::make_unique<TextEditPeer>()), mMultiLine(inMultiLine) {
  UI_SetNodeID("UI_TextEdit");
}

UI_TextEdit::~UI_TextEdit() = default;

void UI_TextEdit::SetText(const lumcore::UTF16String& inText) {
  mText = inText;
  if (!mMultiLine) std::replace(mText.begin(), mText.end(), '\n', ' ');
  mCommittedText = mText;
  mUncommitted = false;
  mSelectionStart = mSelectionEnd = mText.size();
  ShowState();
}

void UI_TextEdit::SetMultiLine(bool inMultiLine) {
  LUM_INPUT_CONTRACT(!GetPeer()->GetWidget() || inMultiLine == mMultiLine);
  mMultiLine = inMultiLine;
}

void UI_TextEdit::SetReadOnly(bool inReadOnly) {
  mReadOnly = inReadOnly;
  ShowState();
}

void UI_TextEdit::SetPlaceholder(const lumcore::UTF16String& inText) {
  mPlaceholder = inText;
  ShowState();
}

void UI_TextEdit::SetFontSize(float inSize) {
  mFontSize = inSize;
  ShowState();
}

void UI_TextEdit::SetSelection(std::size_t inStart, std::size_t inEnd) {
  mSelectionEnd = std::min(inEnd, mText.size());
  mSelectionStart = std::min(inStart, mSelectionEnd);
  ShowState();
}

void UI_TextEdit::HandleEdited(const lumcore::UTF16String& inText) {
  mText = inText;
  mUncommitted = true;
  TellChanged(UI_InteractiveControlChangedMessage::kChanging, true);
}

void UI_TextEdit::Commit() {
  if (!mUncommitted) return;
  mUncommitted = false;
  mCommittedText = mText;
  TellChanged(UI_InteractiveControlChangedMessage::kChanged, true);
}

bool UI_TextEdit::Revert() {
  if (mText == mCommittedText) return false;
  SetText(mCommittedText);
  TellChanged(UI_InteractiveControlChangedMessage::kChanging, true);
  return true;
}

void UI_TextEdit::DoShowState() {
  QWidget* const widget = GetPeer()->GetWidget();
  const QString text = drawbot::ToQt(mText);
  const int start = static_cast<int>(mSelectionStart);
  const int end = static_cast<int>(mSelectionEnd);
  ApplyFontSize(*widget, mFontSize);
  widget->setFocusPolicy(UI_WantsKeyboardFocus() ? Qt::WheelFocus : Qt::NoFocus);
  if (auto* const line = qobject_cast<QLineEdit*>(widget)) {
    if (line->text() != text) line->setText(text);
    line->setReadOnly(mReadOnly);
    line->setPlaceholderText(drawbot::ToQt(mPlaceholder));
    const bool shown = line->cursorPosition() == end && line->selectionLength() == end - start;
    if (shown) return;
    line->setCursorPosition(end);
    if (end > start) line->setSelection(start, end - start);
    return;
  }
  auto* const area = static_cast<QPlainTextEdit*>(widget);
  if (TextOf(*area) != text) area->setPlainText(text);
  area->setReadOnly(mReadOnly);
  const QString placeholder = drawbot::ToQt(mPlaceholder);
  if (area->placeholderText() != placeholder) {
    area->setPlaceholderText(placeholder);
    area->viewport()->update();  // it leaves one that is shown already as it was drawn
  }
  QTextCursor cursor = area->textCursor();
  if (cursor.selectionStart() == start && cursor.selectionEnd() == end) return;
  cursor.setPosition(start);
  cursor.setPosition(end, QTextCursor::KeepAnchor);
  area->setTextCursor(cursor);
}

}  // namespace lumui::controls
