// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "CommandsView.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "CommandList.h"
#include "Palette.h"
#include "Texts.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/controls/UI_ScrollView.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/AccessibleList.h"
#include "lumui/ui/KeyboardEvent.h"
#include "lumui/ui/PointerEvent.h"
#include "vek/uisupport/CommandHandlerBase.h"
#include "vek/uisupport/CommandRegistry.h"
#include "vek/uisupport/KeyCommandManager.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::utility::FoldCase;
using lumui::ui::KeyboardCode;
using lumui::ui::KeyboardEvent;
using lumui::ui::MouseEvent;
using vek::uisupport::CommandRegistry;

namespace {

constexpr float kLineHeight = 42;
constexpr float kMargin = 12;
constexpr float kMarkRoom = 14;
constexpr float kMarkSize = 6;
constexpr float kTextHeight = 18;
constexpr float kNameTop = 4;
constexpr float kDescriptionTop = 21;
constexpr float kNameSize = 13;
constexpr float kSmallSize = 11;

}  // namespace

class CommandsView::Accessible final : public lumui::ui::AccessibleList {
 public:
  explicit Accessible(CommandsView& inView) : AccessibleList(inView), mView(inView) {}

 protected:
  std::size_t DoCount() const override { return mView.mLines.size(); }
  lumui::ui::AccessibleItem DoDescribe(std::size_t inLine) const override {
    using namespace lumui::ui;
    const Line& line = mView.mLines[inLine];
    AccessibleItem item;
    item.role = AccessibleRole::kListItem;
    item.name = line.name;
    item.value = line.keys;
    item.description = line.description;
    item.rect = mView.RectOf(inLine);
    item.states = kAccessibleSelectable | kAccessibleFocusable;
    item.actions = kAccessibleSelect | kAccessibleShow;
    (line.isEnabled ? item.actions : item.states) |=
        line.isEnabled ? unsigned{kAccessiblePress} : unsigned{kAccessibleDisabled};
    if (inLine == mView.mChosen) item.states |= kAccessibleSelected;
    if (DoFindFocus() == inLine) item.states |= kAccessibleFocused;
    return item;
  }
  Index DoFindAt(const lumcore::geom::PointT<float>& inPosition) const override {
    return mView.FindLine(inPosition.y);
  }
  Index DoFindFocus() const override {
    return mView.UI_HasKeyboardFocus() ? Index(mView.mChosen) : std::nullopt;
  }
  bool DoPerform(std::size_t inLine, lumui::ui::AccessibleAction inAction) override {
    mView.Choose(inLine);
    if (inAction == lumui::ui::kAccessiblePress) mView.RunChosen();
    return true;
  }

 private:
  CommandsView& mView;
};

CommandsView::CommandsView(Functions inFunctions)
    : mFunctions(std::move(inFunctions)), mAccessible(std::make_unique<Accessible>(*this)) {
  UI_SetNodeID("commands");
  Update();
}

CommandsView::~CommandsView() = default;

lumui::ui::AccessibleItems* CommandsView::UI_GetAccessibleItems() {
  return mAccessible.get();
}

// Counted from 0; nothing beside all.
std::optional<std::size_t> CommandsView::FindLine(float inY) const {
  const float line = std::floor(inY / kLineHeight);
  if (line < 0 || line >= static_cast<float>(mLines.size())) return std::nullopt;
  return static_cast<std::size_t>(line);
}

void CommandsView::SetScrollView(lumui::controls::UI_ScrollView* inScrollView) {
  mScrollView = inScrollView;
  mScrollView->SetLineStep(kLineHeight);
  SetFilter(mFilter);
}

void CommandsView::SetFilter(const UTF16String& inText) {
  mFilter = FoldCase(inText);
  mLines.clear();
  Update();
  mChosen = 0;
  if (!mScrollView) return;
  mScrollView->SetContentRectF({0, 0, 1, static_cast<float>(mLines.size()) * kLineHeight});
  mScrollView->SetOffset({0, 0});
  mScrollView->Update();
}

CommandsView::Line CommandsView::LineOf(int inCommand) const {
  const auto found = CommandRegistry::Get().FindCommandByID(inCommand);
  Line line{inCommand,
            TitleOfCommand(inCommand),
            found->second.GetDescription(),
            KeysOfCommand(inCommand),
            false,
            false};
  UTF16String title;
  const bool isAnswered = vek::uisupport::CommandHandlerBase::CallEnablementChain(
      inCommand, line.isEnabled, line.isChecked, title);
  line.isEnabled = line.isEnabled && isAnswered;
  line.isChecked = line.isChecked && isAnswered;
  if (isAnswered && !title.empty()) line.name = title;
  return line;
}

bool CommandsView::Matches(const Line& inLine) const {
  return FoldCase(inLine.name).find(mFilter) != UTF16String::npos ||
         FoldCase(inLine.description).find(mFilter) != UTF16String::npos;
}

// Which commands there are changes with the filter alone, so that none jumps away from under the
// pointer because its text is another.
void CommandsView::Update() {
  bool isOther = mLines.empty();
  if (mLines.empty()) {
    const CommandRegistry& registry = CommandRegistry::Get();
    for (auto at = registry.RegistryBegin(); at != registry.RegistryEnd(); ++at) {
      Line line = LineOf(at->first);
      if (Matches(line)) mLines.push_back(std::move(line));
    }
  } else {
    for (Line& line : mLines) {
      Line now = LineOf(line.command);
      const auto tie = [](const Line& inLine) {
        return std::tie(inLine.name, inLine.keys, inLine.isEnabled, inLine.isChecked);
      };
      if (tie(now) == tie(line)) continue;
      line = std::move(now);
      isOther = true;
    }
  }
  if (!isOther) return;
  UI_InvalidateAll();
  mAccessible->Notify(lumui::ui::AccessibleChange::kItems);
}

UTF16String CommandsView::AsText() const {
  using lumcore::utility::ToUTF16;
  UTF16String text;
  for (std::size_t line = 0; line < mLines.size(); ++line) {
    const Line& each = mLines[line];
    if (line == mChosen) text += ToUTF16("> ");
    if (!each.isEnabled) text += ToUTF16("~ ");
    if (each.isChecked) text += ToUTF16("* ");
    text += each.name + (each.keys.empty() ? UTF16String() : ToUTF16("  ") + each.keys);
    text += '\n';
  }
  return text;
}

void CommandsView::Choose(std::size_t inLine) {
  if (mLines.empty()) return;
  mChosen = std::min(inLine, mLines.size() - 1);
  if (mScrollView) {
    mScrollView->ScrollIntoView({0, RectOf(mChosen).y, 1, kLineHeight}, false);
  }
  UI_InvalidateAll();
  mAccessible->Notify(lumui::ui::AccessibleChange::kSelection, mChosen);
  if (UI_HasKeyboardFocus()) mAccessible->Notify(lumui::ui::AccessibleChange::kFocus, mChosen);
}

// The command may close the panel that this is in.
void CommandsView::RunChosen() {
  if (mChosen >= mLines.size()) return;
  const int command = mLines[mChosen].command;
  if (!LineOf(command).isEnabled) return;
  const boost::intrusive_ptr<CommandsView> keep(this);
  mFunctions.run(command);
}

std::size_t CommandsView::GetPage() const {
  const float height = mScrollView ? mScrollView->GetViewedContentRectF().height : 0;
  return static_cast<std::size_t>(std::max(1.0f, height / kLineHeight - 1));
}

bool CommandsView::HandleKey(const KeyboardEvent& inEvent) {
  if (!inEvent.GetModKey().IsEmpty()) return false;
  switch (inEvent.GetCode().GetControlCode(false)) {
    case KeyboardCode::kUpArrow:
      Choose(mChosen > 0 ? mChosen - 1 : 0);
      return true;
    case KeyboardCode::kDownArrow:
      Choose(mChosen + 1);
      return true;
    case KeyboardCode::kPageUp:
      Choose(mChosen > GetPage() ? mChosen - GetPage() : 0);
      return true;
    case KeyboardCode::kPageDown:
      Choose(mChosen + GetPage());
      return true;
    case KeyboardCode::kHome:
      Choose(0);
      return true;
    case KeyboardCode::kEnd:
      Choose(mLines.size());
      return true;
    case KeyboardCode::kReturn:
    case KeyboardCode::kEnter:
      RunChosen();
      return true;
    case KeyboardCode::kEscape:
      mFunctions.searchFor(UTF16String());
      return true;
    case KeyboardCode::kBackspace: {
      UTF16String text = mFunctions.getSearch();
      if (!text.empty()) text.pop_back();
      mFunctions.searchFor(text);
      return true;
    }
    default:
      return false;
  }
}

bool CommandsView::UI_DoKeyboardEvent(lumui::ui::UI_Node*, const KeyboardEvent& inEvent) {
  if (inEvent.GetAction() == KeyboardEvent::kActionCharacter) {
    const bool isChord = inEvent.GetModKey().Has(lumui::ui::kModCommand) !=
                         inEvent.GetModKey().Has(lumui::ui::kModAlt);
    if (isChord || inEvent.GetCharacter() < ' ') return false;
    mFunctions.searchFor(mFunctions.getSearch() + inEvent.GetCharacter());
    return true;
  }
  if (!inEvent.IsActionKeyDown() || !HandleKey(inEvent)) return false;
  lumui::ui::FlushPostActionKeyEvents(inEvent);
  return true;
}

bool CommandsView::UI_DoMouseEvent(lumui::ui::UI_Node*, const MouseEvent& inEvent) {
  if (inEvent.GetAction() != MouseEvent::kActionPress ||
      !inEvent.IsButton(MouseEvent::kLeftButton)) {
    return false;
  }
  UI_SetKeyboardFocus(lumui::ui::kFocusPointer);
  const auto line = FindLine(inEvent.GetPosition().y);
  if (!line) return true;
  const bool isSame = mChosen == *line;
  Choose(*line);
  if (isSame && inEvent.GetClickCount() == 2) RunChosen();
  return true;
}

void CommandsView::UI_FocusChanged(int inReason) {
  UI_SubView::UI_FocusChanged(inReason);
  // The release of a key that is held now goes to somebody else.
  if (!UI_HasKeyboardFocus()) vek::uisupport::KeyCommandManager::Get().RouteEndHoldCommand();
  UI_InvalidateAll();
}

void CommandsView::UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const {
  const auto clip = inDrawbot->GetClipBounds();
  inDrawbot->FillRect(clip, palette::Paper());
  if (mLines.empty()) {
    const auto font = inDrawbot->GetSupplier()->NewFont(nullptr, kNameSize);
    inDrawbot->DrawStringInRect(Localized("$$$/outliner/Commands/None=No command has this text"),
                                font, palette::FaintInk(),
                                {kMargin, kNameTop, UI_GetLocalRectF().width, kTextHeight});
    return;
  }
  const auto lineAt = [](float inY) {
    return static_cast<std::size_t>(std::max(0.0f, std::floor(inY / kLineHeight)));
  };
  const std::size_t end = std::min(mLines.size(), lineAt(clip.Bottom()) + 1);
  for (std::size_t line = lineAt(clip.y); line < end; ++line)
    DrawLine(*inDrawbot, line);
}

lumcore::geom::RectT<float> CommandsView::RectOf(std::size_t inLine) const {
  const float width =
      mScrollView ? mScrollView->GetViewedContentRectF().width : UI_GetLocalRectF().width;
  return {0, static_cast<float>(inLine) * kLineHeight, width, kLineHeight};
}

void CommandsView::DrawLine(lumui::drawbot::Drawbot& ioDrawbot, std::size_t inLine) const {
  const Line& line = mLines[inLine];
  const auto rect = RectOf(inLine);
  const float width = rect.width;
  const float top = rect.y;
  const bool isLit = inLine == mChosen && UI_HasKeyboardFocus();
  if (inLine == mChosen) {
    ioDrawbot.FillRect({0, top, width, kLineHeight},
                       isLit ? palette::Selection() : palette::IdleSelection());
  }
  ioDrawbot.FillRect({kMargin, top + kLineHeight - 1, width - 2 * kMargin, 1}, palette::Guide());
  const auto faint = isLit ? palette::SelectionInk() : palette::FaintInk();
  const auto ink = isLit            ? palette::SelectionInk()
                   : line.isEnabled ? palette::RowInk()
                                    : palette::DisabledInk();
  if (line.isChecked) {
    ioDrawbot.FillRect(
        {kMargin, top + kNameTop + (kTextHeight - kMarkSize) / 2, kMarkSize, kMarkSize},
        isLit ? ink : palette::Accent());
  }
  const auto* const supplier = ioDrawbot.GetSupplier();
  const auto nameFont = supplier->NewFont(
      nullptr, kNameSize,
      line.isEnabled ? lumui::drawbot::FontStyle::kBold : lumui::drawbot::FontStyle::kPlain);
  const auto smallFont = supplier->NewFont(nullptr, kSmallSize);
  const float left = kMargin + kMarkRoom;
  const float room = std::max(0.0f, width - left - kMargin);
  const float keys =
      std::min(line.keys.empty() ? 0 : smallFont->MeasureWidth(line.keys) + 1, room / 2);
  ioDrawbot.DrawStringInRect(line.keys, smallFont, line.isEnabled ? faint : ink,
                             {left + room - keys, top + kNameTop, keys, kTextHeight},
                             lumui::drawbot::TextAlignment::kRight);
  ioDrawbot.DrawStringInRect(
      line.name, nameFont, ink,
      {left, top + kNameTop, std::max(0.0f, room - keys - kMargin), kTextHeight});
  ioDrawbot.DrawStringInRect(line.description, smallFont, line.isEnabled ? faint : ink,
                             {left, top + kDescriptionTop, room, kTextHeight});
}

}  // namespace outliner
