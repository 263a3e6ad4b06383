// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/workspace/ViewDebuggerTab.h"

#include <algorithm>
#include <set>
#include <string>

#include "lumcore/config/Localizer.h"
#include "lumcore/utility/ScopedValue.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/controls/UI_MultiColumnTree.h"
#include "lumui/controls/UI_TextButton.h"
#include "lumui/datatransfer/Clipboard.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/skins/core/SkinManager.h"
#include "lumui/skins/core/Utilities.h"
#include "lumui/ui/Executor.h"
#include "lumui/ui/InputCapture.h"
#include "lumui/ui/KeyboardEvent.h"
#include "lumui/ui/OS_Window.h"
#include "lumui/ui/PointerEvent.h"
#include "lumui/ui/Theme.h"
#include "lumui/ui/UI_NodeManager.h"
#include "vek/workspace/ViewDebuggerTabCreator.h"
#include "vek/workspace/src/NodeOutline.h"

namespace vek::workspace {

using lumcore::UTF16String;
using lumcore::geom::PointT;
using lumcore::geom::RectT;
using lumui::controls::UI_MultiColumnTree;
using lumui::controls::UI_TextButton;
using lumui::ui::PointerEvent;
using lumui::ui::UI_Node;
using lumui::ui::UI_NodeManager;

namespace {

UTF16String Localized(const char* inKey) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
}

// In units.
constexpr float kMargin = 6;
constexpr float kButtonHeight = 24;
constexpr float kButtonWidth = 110;
constexpr int kGoodWidth = 440;
constexpr int kLeastWidth = 2 * static_cast<int>(kButtonWidth) + 3 * static_cast<int>(kMargin);
constexpr int kLeastHeight = 120;
constexpr float kColumnWidths[NodeListing::kColumns] = {220, 120, 150, 60, 60, 50, 90};

// The names of classes without their namespaces, of which a panel at the side would show little
// else. The list that is copied has them.
std::vector<UTF16String> ShownTexts(const NodeListing::Entry& inEntry) {
  std::vector<UTF16String> texts = inEntry.texts;
  std::string name = lumcore::utility::ToStdString(texts[NodeListing::kClass]);
  for (std::size_t at; (at = name.find("::")) != std::string::npos;) {
    const std::size_t before = name.find_last_of("<,", at);
    const std::size_t start = before == std::string::npos ? 0 : before + 1;
    name.erase(start, at + 2 - start);
  }
  texts[NodeListing::kClass] = lumcore::utility::ToUTF16(name);
  return texts;
}

}  // namespace

// Follows the pointer over all windows. The click that chooses is nobody else's.
class ViewDebuggerTab::PickCapture : public lumui::ui::InputCapture {
 public:
  explicit PickCapture(ViewDebuggerTab& inTab) : InputCapture(&inTab), mTab(inTab) {}

  void DoBegin() override { UI_NodeManager::Get(true)->SetCursor(lumui::ui::CursorShape::kCross); }
  bool DoMouseEvent(const lumui::ui::MouseEvent& inEvent) override {
    UI_NodeManager::Get(true)->SetCursor(lumui::ui::CursorShape::kCross);
    PointT<int> point(static_cast<int>(inEvent.GetPosition().x),
                      static_cast<int>(inEvent.GetPosition().y));
    mTab.UI_LocalToGlobal(point);
    const bool left = inEvent.IsButton(PointerEvent::kLeftButton);
    if (inEvent.GetAction() == PointerEvent::kActionPress && !left) {
      UI_NodeManager::Get(true)->EndInputCapture(true);
      return true;
    }
    mTab.UI_GetWindowNode()->UI_WindowToScreen(point);
    mTab.PickedAt(point);
    // At the release, which would else reach a node that has seen no press.
    mPressed = mPressed || inEvent.GetAction() == PointerEvent::kActionPress;
    const bool done = mPressed && inEvent.GetAction() == PointerEvent::kActionRelease;
    if (done) UI_NodeManager::Get(true)->EndInputCapture(false);
    return true;
  }

 private:
  ViewDebuggerTab& mTab;  // kept alive as the node of the capture
  bool mPressed = false;
};

ViewDebuggerTab::ViewDebuggerTab(lumworkspace::workspace::Workspace* inWorkspace,
                                 lumworkspace::workspace::WorkspaceFrameBase* inFrame,
                                 const UTF16String& inTitle, const lumcore::UTF8String& inTabType)
    : TabPanel(inWorkspace, inFrame, inTitle, inTabType, nullptr, true),
      mTree(new UI_MultiColumnTree),
      mOutline(new NodeOutline),
      mNodeChanged(new boost::function<void(UI_Node&)>(
          [this](const UI_Node& inNode) { NodeChanged(inNode); })),
      mRefresh(new boost::function<void()>([this] {
        mPosted = false;
        if (UI_IsShown()) Refresh();
      })) {
  SetLayoutChildren(false);
  AddButton("Pick", "$$$/vek/ViewDebugger/Pick=&Pick Node", [this] { BeginPicking(); });
  AddButton("Copy", "$$$/vek/ViewDebugger/Copy=&Copy List",
            [this] { lumui::datatransfer::NewClipboardSendData(GetText()); });
  std::vector<UI_MultiColumnTree::Column> columns;
  for (const UTF16String& title : NodeListing::GetColumnTitles())
    columns.push_back({title, kColumnWidths[columns.size()]});
  mTree->UI_SetNodeID("Nodes");
  mTree->SetColumns(columns);
  mFunctions.emplace_back(new ChangedFunction([this](auto*) { RowChosen(); }));
  mTree->NotifyWhenChanged(mFunctions.back());
  UI_AddChild(mTree);
  UI_NodeManager::Get(true)->InstallNodeChangedFunction(mNodeChanged);
}

ViewDebuggerTab::~ViewDebuggerTab() {
  mNodeChanged->clear();
  mRefresh->clear();
  for (const auto& function : mFunctions)
    function->clear();
}

void ViewDebuggerTab::AddButton(const char* inID, const char* inTextKey,
                                const boost::function<void()>& inPressed) {
  const boost::intrusive_ptr<UI_TextButton> button(new UI_TextButton);
  button->UI_SetNodeID(inID);
  button->SetText(Localized(inTextKey));
  mFunctions.emplace_back(new ChangedFunction([inPressed](auto*) { inPressed(); }));
  button->NotifyWhenChanged(mFunctions.back());
  mButtons.push_back(button);
  UI_AddChild(button);
}

void ViewDebuggerTab::NodeChanged(const UI_Node& inNode) {
  if (mOutline->IsChanging() || &inNode == this || UI_IsAncestorOf(inNode)) return;
  mIsStale = true;
  if (UI_IsShown()) PostRefresh();
}

void ViewDebuggerTab::PostRefresh() const {
  if (mPosted) return;
  mPosted = true;
  UI_NodeManager::Get(true)->GetExecutor()->Post([refresh = mRefresh] {
    const boost::function<void()> function = *refresh;
    if (function) function();
  });
}

void ViewDebuggerTab::Refresh() {
  mIsStale = false;
  ShowRows(NodeListing::OfAllWindows(&NodeOutline::IsPart));
  ShowOutline();
}

UTF16String ViewDebuggerTab::GetText() const {
  return NodeListing::AsText(NodeListing::OfAllWindows(&NodeOutline::IsPart));
}

// Mostly the nodes are the same, and only what they tell is different.
void ViewDebuggerTab::ShowRows(const std::vector<NodeListing::Entry>& inEntries) {
  const lumcore::utility::StScopedValue<bool> showing(mShowingRows, true);
  const UI_MultiColumnTree::StUpdate update(*mTree);
  const bool same = std::equal(inEntries.begin(), inEntries.end(), mEntries.begin(), mEntries.end(),
                               [](const auto& inA, const auto& inB) {
                                 return inA.node == inB.node && inA.depth == inB.depth;
                               });
  if (same) {
    for (std::size_t i = 0; i < inEntries.size(); ++i) {
      for (int column = 0; column < NodeListing::kColumns; ++column) {
        const auto at = static_cast<std::size_t>(column);
        if (inEntries[i].texts[at] == mEntries[i].texts[at]) continue;
        mTree->SetText(mRows[i], column, ShownTexts(inEntries[i])[at]);
      }
    }
    mEntries = inEntries;
    return;
  }
  std::set<const UI_Node*> closed;
  for (std::size_t i = 0; i < mRows.size(); ++i) {
    if (!mTree->IsRowOpen(mRows[i])) closed.insert(mEntries[i].node);
  }
  mEntries = inEntries;
  mRows.clear();
  mTree->RemoveAllRows();
  std::vector<RowID> above;
  for (const NodeListing::Entry& entry : mEntries) {
    above.resize(static_cast<std::size_t>(entry.depth));
    const RowID parent = above.empty() ? UI_MultiColumnTree::kNoRow : above.back();
    mRows.push_back(mTree->AddRow(parent, ShownTexts(entry)));
    above.push_back(mRows.back());
    mTree->SetRowOpen(mRows.back(), closed.count(entry.node) == 0);
    if (entry.node == mChosen) mTree->SetSelectedRow(mRows.back());
  }
}

UI_Node* ViewDebuggerTab::GetChosenNode() const {
  return NodeListing::IsLive(mChosen) ? const_cast<UI_Node*>(mChosen) : nullptr;
}

void ViewDebuggerTab::ChooseNode(const UI_Node* inNode) {
  mChosen = NodeListing::IsLive(inNode) ? inNode : nullptr;
  Refresh();
  const auto found = std::find_if(mEntries.begin(), mEntries.end(),
                                  [&](const auto& inEntry) { return inEntry.node == mChosen; });
  const lumcore::utility::StScopedValue<bool> showing(mShowingRows, true);
  if (found == mEntries.end()) return mTree->SetSelectedRow(UI_MultiColumnTree::kNoRow);
  const RowID row = mRows[static_cast<std::size_t>(found - mEntries.begin())];
  mTree->ScrollIntoView(row);
  mTree->SetSelectedRow(row);
}

void ViewDebuggerTab::RowChosen() {
  if (mShowingRows) return;
  const auto row = std::find(mRows.begin(), mRows.end(), mTree->GetSelectedRow());
  mChosen =
      row == mRows.end() ? nullptr : mEntries[static_cast<std::size_t>(row - mRows.begin())].node;
  ShowOutline();
}

void ViewDebuggerTab::ShowOutline() {
  const UI_Node* const chosen = GetChosenNode();
  if (!chosen) mChosen = nullptr;
  mOutline->Show(chosen);
}

void ViewDebuggerTab::BeginPicking() {
  UI_NodeManager::Get(true)->BeginInputCapture(new PickCapture(*this));
}

void ViewDebuggerTab::PickedAt(const PointT<int>& inOnScreen) {
  const UI_Node* const node = NodeListing::FindAt(inOnScreen, &NodeOutline::IsPart);
  if (node != mChosen) ChooseNode(node);
}

bool ViewDebuggerTab::UI_DoKeyboardEvent(UI_Node* inNode, const lumui::ui::KeyboardEvent& inEvent) {
  UI_NodeManager& manager = *UI_NodeManager::Get(true);
  const bool escape =
      inEvent.IsActionKeyDown() &&
      inEvent.GetCode() == lumui::ui::KeyboardCode(lumui::ui::KeyboardCode::kEscape);
  if (escape && dynamic_cast<PickCapture*>(manager.GetInputCapture())) {
    manager.EndInputCapture(true);
    return true;
  }
  return TabPanel::UI_DoKeyboardEvent(inNode, inEvent);
}

// Drawing is what tells that a panel has come to the front of its tabs.
void ViewDebuggerTab::UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const {
  namespace skins = lumui::skins::core;
  const int ground =
      skins::utilities::GetContentBackgroundColorID(skins::SkinManager::GetDefaultSet());
  const auto theme = lumui::ui::Theme::Get();
  if (theme && theme->HasColor(ground)) {
    UI_DispatchDrawFromRoot(theme->GetColor(ground), inDrawbot, true);
  }
  if (mIsStale) PostRefresh();
}

void ViewDebuggerTab::UI_SizeChanged(const RectT<float>& inRect) {
  TabPanel::UI_SizeChanged(inRect);
  float x = kMargin;
  for (const auto& button : mButtons) {
    button->UI_SetLocalRectF(RectT<float>(x, kMargin, kButtonWidth, kButtonHeight));
    x += kButtonWidth + kMargin;
  }
  const float top = kButtonHeight + 2 * kMargin;
  mTree->UI_SetLocalRectF(RectT<float>(0, top, inRect.width, std::max(0.0f, inRect.height - top)));
}

ViewDebuggerTabCreator::ViewDebuggerTabCreator()
    : TabCreator(lumcore::utility::ToUTF8(std::string_view(kTabType))) {}

ViewDebuggerTabCreator::~ViewDebuggerTabCreator() = default;

boost::intrusive_ptr<lumworkspace::workspace::TabPanel> ViewDebuggerTabCreator::CreateTabPanel(
    lumworkspace::workspace::Workspace* inWorkspace,
    lumworkspace::workspace::WorkspaceFrameBase* inFrame) {
  return new ViewDebuggerTab(inWorkspace, inFrame,
                             Localized("$$$/vek/ViewDebugger/Title=View Debugger"), GetTabType());
}

lumworkspace::workspace::TabPlace ViewDebuggerTabCreator::GetDefaultPlace(
    const lumworkspace::workspace::Workspace& inWorkspace) const {
  lumworkspace::workspace::TabPlace place = TabCreator::GetDefaultPlace(inWorkspace);
  place.size = kGoodWidth;
  return place;
}

lumcore::geom::PointT<int> ViewDebuggerTabCreator::GetLeastSize() const {
  return {kLeastWidth, kLeastHeight};
}

}  // namespace vek::workspace
