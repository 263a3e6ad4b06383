// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QKeyEvent>
#include <QSet>
#include <functional>

namespace lumui::controls {

// Whether a key works on text: types, moves the caret, deletes, or uses the clipboard or undo.
bool IsEditingKey(QKeyEvent& inEvent);

// A widget of Qt in which text is edited, that keeps the keys of editing from whoever is around it:
// Qt's own give back those that happen to change nothing. A key that was kept is kept until it is
// let go.
template <class Base>
class EditWidgetT : public Base {
 public:
  using Base::Base;

  // Null lets the widget have the key. Else the answer says whether the key is kept.
  std::function<bool()> mOnEnter;
  std::function<bool()> mOnEscape;
  // Whether the arrows up and down are not the widget's.
  std::function<bool()> mLeavesArrows;

 protected:
  void keyPressEvent(QKeyEvent* inEvent) override {
    const bool enter = inEvent->key() == Qt::Key_Return || inEvent->key() == Qt::Key_Enter;
    const bool plain = !(inEvent->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier));
    const bool escape = inEvent->key() == Qt::Key_Escape;
    const auto& own = enter ? mOnEnter : mOnEscape;
    const bool arrow = inEvent->key() == Qt::Key_Up || inEvent->key() == Qt::Key_Down;
    if (plain && arrow && mLeavesArrows && mLeavesArrows()) {
      inEvent->ignore();
    } else if (plain && (enter || escape) && own) {
      inEvent->setAccepted(own());
    } else {
      Base::keyPressEvent(inEvent);
      if (!inEvent->isAccepted()) inEvent->setAccepted(IsEditingKey(*inEvent));
    }
    if (inEvent->isAccepted()) Keep(*inEvent);
  }
  void keyReleaseEvent(QKeyEvent* inEvent) override {
    Base::keyReleaseEvent(inEvent);
    inEvent->setAccepted(mKept.remove(inEvent->key()));
  }
  void focusOutEvent(QFocusEvent* inEvent) override {
    mKept.clear();
    Base::focusOutEvent(inEvent);
  }

  // A press that the widget has taken in its own way.
  void Keep(QKeyEvent& ioEvent) {
    ioEvent.accept();
    mKept.insert(ioEvent.key());
  }

 private:
  QSet<int> mKept;
};

}  // namespace lumui::controls
