// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "utility/ksv/CommandList.h"

#include <algorithm>
#include <cmath>

#include "lumcore/utility/StringUtils.h"
#include "lumui/controls/UI_ScrollBar.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/AccessibleList.h"
#include "lumui/ui/Fonts.h"
#include "lumui/ui/InputCapture.h"
#include "lumui/ui/KeyboardEvent.h"
#include "lumui/ui/PointerEvent.h"
#include "lumui/ui/UI_NodeManager.h"
#include "utility/ksv/KeyboardColors.h"

namespace lumui::utility::ksv {

namespace {

using lumcore::UTF16String;
using lumcore::geom::PointT;
using lumcore::geom::RectT;
using ui::KeyboardCode;
using ui::PointerEvent;
namespace colors = ui::themev5;

// In units.
constexpr float kRowHeight = 22;
constexpr float kIndent = 20;
constexpr float kMargin = 8;
constexpr float kKeysPart = 0.38f;  // of the width, at the right
constexpr float kDragDistance = 4;  // less is a click

lumcore::utility::Flags<unsigned int> ListFlags() {
  return lumcore::utility::Flags<unsigned int>(controls::UI_ScrollView::kNoHorizontalBar);
}

}  // namespace

// Stands from the press on; becomes a drag once the pointer has gone a little way.
class CommandList::Drag : public ui::InputCapture {
 public:
  Drag(CommandList& ioList, ui::UI_Node& inContent, const PointT<float>& inStart)
      : InputCapture(&inContent), mList(&ioList), mStart(inStart) {}

  bool DoMouseEvent(const ui::MouseEvent& inEvent) override {
    const PointT<float>& at = inEvent.GetPosition();
    mLast = ToWindow(at);
    if (inEvent.GetAction() == PointerEvent::kActionMove) {
      mDragging =
          mDragging || std::abs(at.x - mStart.x) + std::abs(at.y - mStart.y) > kDragDistance;
      if (mDragging) Tell(false, false);
    } else if (inEvent.GetAction() == PointerEvent::kActionRelease) {
      ui::UI_NodeManager::Get(true)->EndInputCapture(false);
    }
    return true;
  }
  void DoEnd() override {
    if (mDragging) Tell(true, HasBeenCancelled());
  }

 private:
  PointT<float> ToWindow(const PointT<float>& inPoint) const {
    const RectT<float> viewed = mList->GetViewedContentRectF();
    PointT<int> point(static_cast<int>(inPoint.x - viewed.x),
                      static_cast<int>(inPoint.y - viewed.y));
    mList->UI_LocalToGlobal(point);
    return PointT<float>(static_cast<float>(point.x), static_cast<float>(point.y));
  }
  void Tell(bool inDone, bool inCancelled) {
    const DragFunction function = mList->mDrag;
    if (function) function(mLast, inDone, inCancelled);
  }

  boost::intrusive_ptr<CommandList> mList;
  PointT<float> mStart;
  PointT<float> mLast;
  bool mDragging = false;
};

// The rows as a list, in which categories are texts alone.
class CommandList::Accessible : public ui::AccessibleList {
 public:
  Accessible(ui::UI_Node& inContent, CommandList*& inList)
      : AccessibleList(inContent), mContent(inContent), mList(inList) {}

 protected:
  std::size_t DoCount() const override { return mList->mRows.size(); }
  ui::AccessibleItem DoDescribe(std::size_t inRow) const override {
    const Row& row = mList->mRows[inRow];
    ui::AccessibleItem item;
    item.role = row.command ? ui::AccessibleRole::kListItem : ui::AccessibleRole::kText;
    item.name = row.text;
    item.rect = mList->RectOf(inRow);
    if (!row.command) return item;
    item.value = row.keys;
    item.description = row.command->description;
    item.actions = ui::kAccessiblePress | ui::kAccessibleSelect | ui::kAccessibleShow;
    item.states = ui::kAccessibleSelectable | ui::kAccessibleFocusable;
    if (row.command->id == mList->mSelected) item.states |= ui::kAccessibleSelected;
    if (DoFindFocus() == inRow) item.states |= ui::kAccessibleFocused;
    return item;
  }
  Index DoFindAt(const PointT<float>& inPosition) const override {
    const float row = inPosition.y / kRowHeight;
    if (row < 0 || row >= static_cast<float>(DoCount())) return std::nullopt;
    return static_cast<std::size_t>(row);
  }
  Index DoFindFocus() const override {
    return mContent.UI_HasKeyboardFocus() ? mList->FindRow(mList->mSelected) : std::nullopt;
  }
  bool DoPerform(std::size_t inRow, ui::AccessibleAction inAction) override {
    const Command* const command = mList->mRows[inRow].command;
    if (!command) return false;
    const boost::intrusive_ptr<CommandList> list = mList;
    const int id = command->id;
    if (inAction == ui::kAccessibleShow) {
      list->ScrollIntoView(list->RectOf(inRow), false);
      return true;
    }
    list->SelectCommand(id);
    const auto activated = list->mActivated;
    if (inAction == ui::kAccessiblePress && activated) activated();
    return true;
  }

 private:
  ui::UI_Node& mContent;
  CommandList*& mList;
};

// Draws the rows and takes what the user does with them.
class CommandList::Content : public ui::UI_SubView {
 public:
  Content() : mAccessible(*this, mList) { UI_SetWantsKeyboardFocus(true); }
  CommandList* mList = nullptr;
  Accessible mAccessible;
  ui::AccessibleItems* UI_GetAccessibleItems() override { return mList ? &mAccessible : nullptr; }

  void UI_Draw(drawbot::Drawbot* inDrawbot) const override;
  bool UI_DoMouseEvent(ui::UI_Node*, const ui::MouseEvent& inEvent) override;
  bool UI_DoKeyboardEvent(ui::UI_Node*, const ui::KeyboardEvent& inEvent) override;
  void UI_FocusChanged(int) override { UI_InvalidateAll(); }

 private:
  const Command* CommandAt(const PointT<float>& inPoint) const {
    const auto row = static_cast<std::size_t>(std::max(0.0f, inPoint.y) / kRowHeight);
    return row < mList->mRows.size() ? mList->mRows[row].command : nullptr;
  }
};

void CommandList::Content::UI_Draw(drawbot::Drawbot* inDrawbot) const {
  const RectT<float> damage = inDrawbot->GetClipBounds();
  inDrawbot->FillRect(damage, ThemeColor(colors::kColor_ListBackground, 1));
  const auto* const supplier = inDrawbot->GetSupplier();
  const auto plain = supplier->NewFont(nullptr, ui::GetFontSize(0));
  const auto bold = supplier->NewFont(nullptr, ui::GetFontSize(0), drawbot::FontStyle::kBold);
  const auto first = static_cast<std::size_t>(std::max(0.0f, damage.y) / kRowHeight);
  for (std::size_t i = first; i < mList->mRows.size(); ++i) {
    const RectT<float> rect = mList->RectOf(i);
    if (rect.y >= damage.Bottom()) break;
    const Row& row = mList->mRows[i];
    auto text = ThemeColor(colors::kColor_ListText, 0.1f);
    if (!row.command) {
      inDrawbot->DrawStringInRect(
          row.text, bold, text,
          RectT<float>(kMargin, rect.y, rect.width - 2 * kMargin, rect.height));
      continue;
    }
    const int command = row.command->id;
    if (command == mList->mSelected) {
      const bool focus = UI_HasKeyboardFocus();
      inDrawbot->FillRect(rect, ThemeColor(focus ? colors::kColor_ListRowSelected
                                                 : colors::kColor_ListRowSelectedInactive,
                                           0.5f));
      if (focus) text = ThemeColor(colors::kColor_ListTextSelected, 1);
    } else if (command == mList->mHovered) {
      inDrawbot->FillRect(rect, ThemeColor(colors::kColor_ListRowHover, 0.85f));
    }
    const float keys = rect.width * kKeysPart;
    inDrawbot->DrawStringInRect(
        row.text, plain, text,
        RectT<float>(kIndent, rect.y, rect.width - keys - kIndent - kMargin, rect.height));
    inDrawbot->DrawStringInRect(
        row.keys, plain, text, RectT<float>(rect.width - keys, rect.y, keys - kMargin, rect.height),
        drawbot::TextAlignment::kRight);
  }
}

bool CommandList::Content::UI_DoMouseEvent(ui::UI_Node*, const ui::MouseEvent& inEvent) {
  const bool leaves = inEvent.GetAction() == PointerEvent::kActionLeave;
  const Command* const at = leaves ? nullptr : CommandAt(inEvent.GetPosition());
  const int command = at ? at->id : 0;
  if (leaves || inEvent.GetAction() == PointerEvent::kActionMove) {
    if (command != mList->mHovered) UI_InvalidateAll();
    mList->mHovered = command;
    return true;
  }
  const bool press = inEvent.GetAction() == PointerEvent::kActionPress &&
                     inEvent.IsButton(PointerEvent::kLeftButton);
  if (!press) return false;
  UI_SetKeyboardFocus(ui::kFocusPointer);
  if (command == 0) return true;
  const bool again = inEvent.GetClickCount() == 2;
  const boost::intrusive_ptr<CommandList> list = mList;
  list->Choose(command);
  if (again) {
    const auto activated = list->mActivated;
    if (activated) activated();
    return true;
  }
  ui::UI_NodeManager::Get(true)->BeginInputCapture(new Drag(*list, *this, inEvent.GetPosition()));
  return true;
}

bool CommandList::Content::UI_DoKeyboardEvent(ui::UI_Node*, const ui::KeyboardEvent& inEvent) {
  if (!inEvent.IsActionKeyDown() || !inEvent.GetModKey().IsEmpty()) return false;
  const boost::intrusive_ptr<CommandList> list = mList;
  const int page = std::max(1, static_cast<int>(list->GetViewedContentRectF().height / kRowHeight));
  switch (inEvent.GetCode().GetControlCode(false)) {
    case KeyboardCode::kUpArrow:
      list->Walk(-1);
      return true;
    case KeyboardCode::kDownArrow:
      list->Walk(1);
      return true;
    case KeyboardCode::kPageUp:
      list->Walk(-page);
      return true;
    case KeyboardCode::kPageDown:
      list->Walk(page);
      return true;
    case KeyboardCode::kReturn: {
      const auto activated = list->mActivated;
      if (activated && list->mSelected != 0) activated();
      return true;
    }
    default:
      return false;
  }
}

CommandList::CommandList(const IDelegateInterface& inDelegate)
    : UI_ScrollView(ListFlags(), boost::intrusive_ptr<ui::UI_Node>(new Content)),
      mDelegate(inDelegate) {
  static_cast<Content*>(GetContentNode())->mList = this;
  SetLineStep(kRowHeight);
  Refresh();
}

CommandList::~CommandList() = default;

void CommandList::SetFilter(const UTF16String& inText) {
  mFilter = lumcore::utility::FoldCase(inText);
  BuildRows();
}

void CommandList::Refresh() {
  mCommands = mDelegate.GetCommands();
  BuildRows();
}

void CommandList::BuildRows() {
  mRows.clear();
  bool isSelectedShown = false;
  UTF16String category;
  for (const Command& command : mCommands) {
    const UTF16String keys = mDelegate.GetKeyTextOf(command.id);
    const UTF16String all = command.category + UTF16String(1, '\n') + command.name +
                            UTF16String(1, '\n') + keys + UTF16String(1, '\n') +
                            command.description;
    if (lumcore::utility::FoldCase(all).find(mFilter) == UTF16String::npos) continue;
    if (command.category != category) mRows.push_back({nullptr, command.category, UTF16String()});
    category = command.category;
    mRows.push_back({&command, command.name, keys});
    isSelectedShown = isSelectedShown || command.id == mSelected;
  }
  mHovered = 0;
  SetContentRectF(RectT<float>(0, 0, 1, kRowHeight * static_cast<float>(mRows.size())));
  Update();
  GetContentNode()->UI_InvalidateAll();
  static_cast<Content*>(GetContentNode())->mAccessible.Notify(ui::AccessibleChange::kItems);
  if (mSelected != 0 && !isSelectedShown) Choose(0);
}

const Command* CommandList::FindCommand(int inCommand) const {
  for (const Command& command : mCommands) {
    if (command.id == inCommand) return &command;
  }
  return nullptr;
}

RectT<float> CommandList::RectOf(std::size_t inRow) const {
  return RectT<float>(0, kRowHeight * static_cast<float>(inRow), GetViewedContentRectF().width,
                      kRowHeight);
}

void CommandList::Choose(int inCommand) {
  if (inCommand == mSelected) return;
  mSelected = inCommand;
  GetContentNode()->UI_InvalidateAll();
  auto& content = static_cast<Content&>(*GetContentNode());
  content.mAccessible.Notify(ui::AccessibleChange::kSelection, FindRow(inCommand));
  if (content.UI_HasKeyboardFocus())
    content.mAccessible.Notify(ui::AccessibleChange::kFocus, FindRow(inCommand));
  const auto changed = mChanged;
  if (changed) changed();
}

std::optional<std::size_t> CommandList::FindRow(int inCommand) const {
  for (std::size_t i = 0; i < mRows.size(); ++i) {
    if (mRows[i].command && mRows[i].command->id == inCommand) return i;
  }
  return std::nullopt;
}

void CommandList::SelectCommand(int inCommand) {
  const std::optional<std::size_t> row = FindRow(inCommand);
  if (!row) return;
  Choose(inCommand);
  ScrollIntoView(RectOf(*row), false);
}

void CommandList::Walk(int inStep) {
  std::vector<int> commands;
  for (const Row& row : mRows) {
    if (row.command) commands.push_back(row.command->id);
  }
  if (commands.empty()) return;
  const auto found = std::find(commands.begin(), commands.end(), mSelected);
  const int last = static_cast<int>(commands.size()) - 1;
  const int at = found == commands.end() ? (inStep > 0 ? -1 : last + 1)
                                         : static_cast<int>(found - commands.begin());
  SelectCommand(commands[static_cast<std::size_t>(std::clamp(at + inStep, 0, last))]);
}

}  // namespace lumui::utility::ksv
