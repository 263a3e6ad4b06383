// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/controls/UI_Popup.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QStyleOptionComboBox>
#include <limits>
#include <memory>
#include <utility>

#include "controls/ControlPeer.h"
#include "controls/EditWidget.h"
#include "drawbot/QtConvert.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/controls/UI_Popup_Combo.h"

namespace lumui::controls {

namespace {

class ComboBox : public EditWidgetT<QComboBox> {
 public:
  using EditWidgetT::EditWidgetT;

  bool mBelow = false;
  bool mDivider = false;
  QString mShownText;  // where nothing is chosen, or in the place of what is
  std::function<void(const QString&)> mOnTyped;
  std::function<void()> mOnTypingEnded;

  void MakeEditable(bool inEditable) {
    if (isEditable() == inEditable) return;
    setEditable(inEditable);
    if (!inEditable) return;
    setInsertPolicy(QComboBox::NoInsert);
    lineEdit()->setMaxLength(std::numeric_limits<int>::max());
    // What is typed is taken as it is.
    setCompleter(nullptr);
    connect(lineEdit(), &QLineEdit::textEdited, this, [this](const QString& inText) {
      if (!signalsBlocked()) mOnTyped(inText);
    });
    connect(lineEdit(), &QLineEdit::editingFinished, this, [this] {
      // A widget without signals has lost its node; its field still has them.
      if (!signalsBlocked()) mOnTypingEnded();
    });
  }

 protected:
  void initStyleOption(QStyleOptionComboBox* outOption) const override {
    EditWidgetT::initStyleOption(outOption);
    if (!isEditable()) outOption->currentText = mShownText;
  }
  void paintEvent(QPaintEvent* inEvent) override {
    QComboBox::paintEvent(inEvent);
    if (!mDivider) return;
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect arrow =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawLine(arrow.left(), 4, arrow.left(), height() - 5);
  }
  // Qt's list closes before the press comes, at the event that announces it, and then the press
  // would go to the control and on to the dialog's button.
  bool eventFilter(QObject* inObject, QEvent* inEvent) override {
    if (inEvent->type() == QEvent::ShortcutOverride) {
      mKeyInList = static_cast<QKeyEvent*>(inEvent)->key();
    }
    return EditWidgetT::eventFilter(inObject, inEvent);
  }
  void showPopup() override {
    mKeyInList = 0;
    if (view() != mFiltered) {
      mFiltered = view();
      mFiltered->installEventFilter(this);
    }
    EditWidgetT::showPopup();
    if (!mBelow) return;
    // The style may have put it over the control.
    QWidget* const list = mFiltered->window();
    const QPoint below = mapToGlobal(QPoint(0, height()));
    const bool fits = below.y() + list->height() <= screen()->availableGeometry().bottom();
    if (fits) list->move(below);
  }
  void keyPressEvent(QKeyEvent* inEvent) override {
    const bool ofList = std::exchange(mKeyInList, 0) == inEvent->key();
    const int key = inEvent->key();
    if (ofList && (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape)) {
      Keep(*inEvent);
    } else if (isEditable()) {
      EditWidgetT::keyPressEvent(inEvent);
    } else {
      QComboBox::keyPressEvent(inEvent);
    }
  }
  void keyReleaseEvent(QKeyEvent* inEvent) override {
    mKeyInList = 0;
    EditWidgetT::keyReleaseEvent(inEvent);
  }

 private:
  QPointer<QAbstractItemView> mFiltered;
  int mKeyInList = 0;
};

}  // namespace

class PopupPeer : public ControlPeer {
  UI_Popup& Popup() const { return static_cast<UI_Popup&>(GetControl()); }

  QWidget* DoMakeControl(QWidget* inParent) override {
    auto* const combo = new ControlWidgetT<ComboBox, QStyleOptionComboBox>(*this, inParent);
    combo->mOnTyped = [this](const QString& inText) {
      ByUser([&] { Popup().HandleTyped(drawbot::FromQt(inText)); });
    };
    combo->mOnTypingEnded = [this] { ByUser([&] { Popup().Commit(); }); };
    combo->mOnEnter = [this] {
      ByUser([&] { Popup().Commit(); });
      return !IsInDialog();
    };
    QObject::connect(combo, &QComboBox::activated, combo,
                     [this](int inIndex) { ByUser([&] { Popup().HandleChosen(inIndex); }); });
    return combo;
  }
};

UI_Popup::UI_Popup() : UI_Popup(false) {
  UI_SetNodeID("UI_Popup");
}

UI_Popup::UI_Popup(bool inEditable)
    : UI_InteractiveControlView(std::make_unique<PopupPeer>()), mEditable(inEditable) {}

UI_Popup::~UI_Popup() = default;

UI_Popup_Combo::UI_Popup_Combo() : UI_Popup(true) {
  UI_SetNodeID("UI_Popup_Combo");
}

UI_Popup_Combo::~UI_Popup_Combo() = default;

int UI_Popup::AddItem(const lumcore::UTF16String& inText) {
  mItems.push_back(inText);
  ShowState();
  return GetItemCount() - 1;
}

void UI_Popup::SetItems(const std::vector<lumcore::UTF16String>& inItems) {
  mItems = inItems;
  SetValue(-1);
}

lumcore::UTF16String UI_Popup::GetItemString(int inIndex) const {
  const bool known = inIndex >= 0 && inIndex < GetItemCount();
  return known ? mItems[static_cast<std::size_t>(inIndex)] : lumcore::UTF16String();
}

int UI_Popup::FindString(const lumcore::UTF16String& inText) const {
  for (int i = 0; i < GetItemCount(); ++i) {
    if (mItems[static_cast<std::size_t>(i)] == inText) return i;
  }
  return -1;
}

int UI_Popup::FindStringCaseInsensitive(const lumcore::UTF16String& inText) const {
  using lumcore::utility::FoldCase;
  const lumcore::UTF16String wanted = FoldCase(inText);
  for (int i = 0; i < GetItemCount(); ++i) {
    if (FoldCase(mItems[static_cast<std::size_t>(i)]) == wanted) return i;
  }
  return -1;
}

void UI_Popup::SetValue(int inIndex) {
  mValue = inIndex >= 0 && inIndex < GetItemCount() ? inIndex : -1;
  mText = GetItemString(mValue);
  mTyping = false;
  ShowState();
}

void UI_Popup::SetValueString(const lumcore::UTF16String& inText, bool inNotify) {
  mValue = FindString(inText);
  mText = inText;
  mTyping = false;
  ShowState();
  if (inNotify) TellChanged(UI_InteractiveControlChangedMessage::kChanged, false);
}

void UI_Popup::SetShownText(const lumcore::UTF16String& inText) {
  mText = inText;
  mTyping = false;
  ShowState();
}

void UI_Popup::SetPopupType(int inType) {
  mType = inType;
  ShowState();
}

void UI_Popup::SetDrawDivider(bool inDraw) {
  mDrawDivider = inDraw;
  ShowState();
}

void UI_Popup::SetFontSize(float inSize) {
  mFontSize = inSize;
  ShowState();
}

void UI_Popup::SetEditableState(bool inEditable) {
  mEditable = inEditable;
  ShowState();
}

void UI_Popup::HandleChosen(int inIndex) {
  const bool same = inIndex == mValue && !mTyping;
  if (same && !mAlwaysNotify) return;
  mValue = inIndex;
  mText = GetItemString(inIndex);
  mTyping = false;
  ShowState();
  TellChanged(UI_InteractiveControlChangedMessage::kChanged, true);
}

void UI_Popup::HandleTyped(const lumcore::UTF16String& inText) {
  mValue = -1;
  mText = inText;
  mTyping = true;
  TellChanged(UI_InteractiveControlChangedMessage::kChanging, true);
}

void UI_Popup::Commit() {
  if (!mTyping) return;
  mTyping = false;
  TellChanged(UI_InteractiveControlChangedMessage::kChanged, true);
}

void UI_Popup::DoShowState() {
  auto* const combo = static_cast<ComboBox*>(GetPeer()->GetWidget());
  combo->setFocusPolicy(UI_WantsKeyboardFocus() ? Qt::WheelFocus : Qt::NoFocus);
  ApplyFontSize(*combo, mFontSize);
  combo->MakeEditable(mEditable);
  combo->mDivider = mDrawDivider;
  combo->mBelow = mType == kBelowItem;
  QStringList items;
  for (const lumcore::UTF16String& item : mItems)
    items << drawbot::ToQt(item);
  QStringList shown;
  for (int i = 0; i < combo->count(); ++i)
    shown << combo->itemText(i);
  if (items != shown) {
    combo->clear();
    combo->addItems(items);
  }
  if (combo->currentIndex() != mValue) combo->setCurrentIndex(mValue);
  const QString text = drawbot::ToQt(mText);
  if (mEditable) {
    if (combo->currentText() != text) combo->setEditText(text);
    return;
  }
  combo->mShownText = text;
  const bool isItem = mValue >= 0 && mText == GetItemString(mValue);
  combo->setAccessibleDescription(isItem ? QString() : text);
}

}  // namespace lumui::controls
