// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/controls/UI_StaticText.h"

#include <QKeySequence>
#include <QLabel>
#include <QShortcutEvent>
#include <QStylePainter>
#include <QTextLayout>
#include <algorithm>
#include <memory>

#include "controls/ControlPeer.h"
#include "drawbot/QtConvert.h"

namespace lumui::controls {

namespace {

// A label that shortens its text, and whose mnemonic needs no widget named beforehand.
class Label : public QLabel {
 public:
  using QLabel::QLabel;

  void SetElide(Qt::TextElideMode inMode) { mElide = inMode; }
  void SetMnemonicOf(const QString& inText) {
    const QKeySequence keys = QKeySequence::mnemonic(inText);
    if (keys == mKeys) return;
    if (mShortcut) releaseShortcut(mShortcut);
    mKeys = keys;
    mShortcut = keys.isEmpty() ? 0 : grabShortcut(keys);
  }

 protected:
  bool event(QEvent* inEvent) override {
    if (inEvent->type() != QEvent::Shortcut ||
        static_cast<QShortcutEvent*>(inEvent)->shortcutId() != mShortcut) {
      return QLabel::event(inEvent);
    }
    FocusNext();
    return true;
  }

  void paintEvent(QPaintEvent*) override {
    QStylePainter painter(this);
    const bool underlines = style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this) != 0;
    const int flags = int(alignment()) | (wordWrap() ? Qt::TextWordWrap : 0) |
                      (underlines ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
    const QString shown =
        wordWrap() ? WholeLines()
                   : fontMetrics().elidedText(text(), mElide, width(), Qt::TextShowMnemonic);
    painter.drawItemText(rect(), flags, palette(), isEnabled(), shown, foregroundRole());
  }

 private:
  // Of a text that is too long for the height, what fits, with the last line shortened.
  QString WholeLines() const {
    const int most = std::max(1, height() / fontMetrics().lineSpacing());
    QString all = text();
    all.replace(QLatin1Char('\n'), QChar::LineSeparator);
    QTextLayout layout(all, font());
    layout.beginLayout();
    int last = 0;
    int count = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
      line.setLineWidth(width());
      if (++count == most) last = line.textStart();
    }
    layout.endLayout();
    if (count <= most || mElide == Qt::ElideNone) return text();
    const QString rest = text().mid(last).replace(QLatin1Char('\n'), QLatin1Char(' '));
    return text().left(last) + fontMetrics().elidedText(rest, Qt::ElideRight, width());
  }

  void FocusNext() {
    const ui::UI_Node* const node = ui::NodePeer::NodeOf(this);
    const ui::UI_Node* const parent = node ? node->UI_GetParentNode() : nullptr;
    bool behind = false;
    for (std::size_t i = 0; parent && i < parent->UI_GetChildCount(); ++i) {
      ui::UI_Node* const child = parent->UI_GetChild(i);
      QWidget* const widget = child->GetPeer()->GetWidget();
      const bool takes = widget && widget->isVisible() && widget->isEnabled() &&
                         (child->UI_WantsKeyboardFocus() || widget->focusPolicy() & Qt::TabFocus);
      if (behind && takes) return widget->setFocus(Qt::ShortcutFocusReason);
      behind = behind || child == node;
    }
  }

  Qt::TextElideMode mElide = Qt::ElideRight;
  QKeySequence mKeys;
  int mShortcut = 0;
};

class StaticTextPeer : public ControlPeer {
  QWidget* DoMakeControl(QWidget* inParent) override {
    auto* const label = new ui::NodeWidgetT<Label>(*this, inParent);
    label->setTextFormat(Qt::PlainText);
    return label;
  }
};

Qt::Alignment QtFromAlignment(drawbot::TextAlignment inAlignment) {
  switch (inAlignment) {
    case drawbot::TextAlignment::kCenter:
      return Qt::AlignHCenter;
    case drawbot::TextAlignment::kRight:
      return Qt::AlignRight;
    default:
      return Qt::AlignLeft;
  }
}

Qt::TextElideMode QtFromTruncation(drawbot::TextTruncation inTruncation) {
  switch (inTruncation) {
    case drawbot::TextTruncation::kNone:
      return Qt::ElideNone;
    case drawbot::TextTruncation::kMiddle:
      return Qt::ElideMiddle;
    default:
      return Qt::ElideRight;
  }
}

}  // namespace

UI_StaticText::UI_StaticText() : UI_ControlView(std::make_unique<StaticTextPeer>()) {
  UI_SetNodeID("UI_StaticText");
}

UI_StaticText::~UI_StaticText() = default;

void UI_StaticText::SetText(const lumcore::UTF16String& inText) {
  mText = inText;
  ShowState();
}

void UI_StaticText::SetAlignment(drawbot::TextAlignment inAlignment) {
  mAlignment = inAlignment;
  ShowState();
}

void UI_StaticText::SetMultiLine(bool inMultiLine) {
  mMultiLine = inMultiLine;
  ShowState();
}

void UI_StaticText::SetTruncation(drawbot::TextTruncation inTruncation) {
  mTruncation = inTruncation;
  ShowState();
}

void UI_StaticText::SetFontSize(float inSize) {
  mFontSize = inSize;
  ShowState();
}

lumcore::UTF16String UI_StaticText::DoGetAccessibleName() const {
  return mText;
}

void UI_StaticText::DoShowState() {
  auto* const label = static_cast<Label*>(GetPeer()->GetWidget());
  const QString text = drawbot::ToQt(mText);
  label->setText(text);
  label->SetMnemonicOf(text);
  label->setWordWrap(mMultiLine);
  label->setAlignment(QtFromAlignment(mAlignment) | (mMultiLine ? Qt::AlignTop : Qt::AlignVCenter));
  label->SetElide(QtFromTruncation(mTruncation));
  ApplyFontSize(*label, mFontSize);
  ShowStateOfNextSibling();
}

}  // namespace lumui::controls
