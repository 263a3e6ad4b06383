// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/controls/UI_TextEdit.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <memory>
#include <utility>

#include "drawbot/QtConvert.h"
#include "lumcore/utility/ScopedValue.h"
#include "ui/EventGate.h"
#include "ui/NodePeer.h"

namespace lumui::controls {

// The text is kept here too: the widget is made late, and may be gone before the node.
class UI_TextEdit::Peer : public ui::NodePeer {
 public:
  explicit Peer(bool inManyLines) : NodePeer(Kind::kNative), mManyLines(inManyLines) {}

  void SetText(const QString& inText) {
    const lumcore::utility::StScopedValue<bool> applying(mApplying, true);
    mText = inText;
    if (mLine) mLine->setText(inText);
    if (mMany) mMany->setPlainText(inText);
    if (mLine) mText = mLine->text();
  }
  void SetReadOnly(bool inReadOnly) {
    mReadOnly = inReadOnly;
    if (mLine) mLine->setReadOnly(inReadOnly);
    if (mMany) mMany->setReadOnly(inReadOnly);
  }
  void SelectAll() {
    if (mLine) mLine->selectAll();
    if (mMany) mMany->selectAll();
  }
  const QString& GetText() const { return mText; }

  std::function<void()> mChanged;

 private:
  QWidget* DoMakeWidget(QWidget* inParent) override {
    if (mManyLines) {
      mMany = new ui::NodeWidgetT<QPlainTextEdit>(*this, inParent);
      mMany->setTabChangesFocus(true);
      QObject::connect(mMany, &QPlainTextEdit::textChanged, mMany,
                       [this] { TakeText(mMany->toPlainText()); });
    } else {
      mLine = new ui::NodeWidgetT<QLineEdit>(*this, inParent);
      QObject::connect(mLine, &QLineEdit::textChanged, mLine,
                       [this](const QString& inText) { TakeText(inText); });
    }
    SetText(mText);
    SetReadOnly(mReadOnly);
    return mManyLines ? static_cast<QWidget*>(mMany) : mLine;
  }
  void TakeText(const QString& inText) {
    if (mApplying) return;
    mText = inText;
    const auto changed = mChanged;
    if (changed) ui::EventGate::Get()->RunGuarded(changed);
  }

  bool mManyLines;
  bool mReadOnly = false;
  bool mApplying = false;
  QString mText;
  QPointer<QLineEdit> mLine;
  QPointer<QPlainTextEdit> mMany;
};

UI_TextEdit::UI_TextEdit(bool inManyLines) : UI_SubView(std::make_unique<Peer>(inManyLines)) {
  UI_SetNodeID("UI_TextEdit");
}

UI_TextEdit::~UI_TextEdit() = default;

UI_TextEdit::Peer& UI_TextEdit::GetTextPeer() const {
  return static_cast<Peer&>(*GetPeer());
}

void UI_TextEdit::SetText(const lumcore::UTF16String& inText) {
  GetTextPeer().SetText(drawbot::ToQt(inText));
}

lumcore::UTF16String UI_TextEdit::GetText() const {
  return drawbot::FromQt(GetTextPeer().GetText());
}

void UI_TextEdit::SetReadOnly(bool inReadOnly) {
  GetTextPeer().SetReadOnly(inReadOnly);
}

void UI_TextEdit::SelectAll() {
  GetTextPeer().SelectAll();
}

void UI_TextEdit::SetChangedFunction(std::function<void()> inFunction) {
  GetTextPeer().mChanged = std::move(inFunction);
}

}  // namespace lumui::controls
