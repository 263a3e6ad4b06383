// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/workspace/NodeListing.h"

#include <boost/core/demangle.hpp>
#include <cmath>
#include <string>
#include <typeinfo>

#include "lumcore/config/Localizer.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/OS_Window.h"
#include "lumui/ui/UI_NodeManager.h"

namespace vek::workspace {

namespace {

using lumcore::UTF16String;
using lumcore::geom::PointT;
using lumcore::geom::RectT;
using lumcore::utility::ToUTF16;
using lumui::ui::OS_Window;
using lumui::ui::UI_Node;
using LeaveOut = bool (*)(const UI_Node&);

UTF16String Localized(const char* inKey) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
}

// As it stands in the sources; some compilers put the word before it.
UTF16String ClassOf(const UI_Node& inNode) {
  std::string name = boost::core::demangle(typeid(inNode).name());
  const std::string word = "class ";
  if (name.compare(0, word.size(), word) == 0) name.erase(0, word.size());
  return ToUTF16(name);
}

UTF16String TextOf(const RectT<float>& inRect) {
  std::string text;
  for (const float number : {inRect.x, inRect.y, inRect.width, inRect.height}) {
    // A tenth is what the eye can tell apart.
    const long tenths = std::lround(number * 10);
    text += (text.empty() ? "" : ", ") + std::string(tenths < 0 ? "-" : "") +
            std::to_string(std::abs(tenths) / 10);
    if (tenths % 10 != 0) text += "." + std::to_string(std::abs(tenths % 10));
  }
  return ToUTF16(text);
}

UTF16String YesOrNo(bool inYes) {
  return inYes ? Localized("$$$/vek/ViewDebugger/Yes=yes")
               : Localized("$$$/vek/ViewDebugger/No=no");
}

UTF16String WantsOf(const UI_Node& inNode) {
  UTF16String text;
  if (inNode.UI_WantsKeyboardFocus()) text = Localized("$$$/vek/ViewDebugger/WantsFocus=focus");
  if (inNode.UI_WantsPrePointerEvents()) {
    if (!text.empty()) text += ToUTF16(", ");
    text += Localized("$$$/vek/ViewDebugger/WantsPresses=presses");
  }
  return text;
}

NodeListing::Entry EntryOf(const UI_Node& inNode, int inDepth) {
  NodeListing::Entry entry;
  entry.node = &inNode;
  entry.depth = inDepth;
  entry.texts = {ClassOf(inNode),
                 ToUTF16(inNode.UI_GetNodeID()),
                 TextOf(inNode.UI_GetLocalRectF()),
                 YesOrNo(inNode.UI_IsVisible()),
                 YesOrNo(!inNode.UI_IsDisabled()),
                 inNode.UI_HasKeyboardFocus() ? YesOrNo(true) : UTF16String(),
                 WantsOf(inNode)};
  return entry;
}

void Collect(const UI_Node& inNode, int inDepth, LeaveOut inLeaveOut,
             std::vector<NodeListing::Entry>& ioEntries) {
  if (inLeaveOut && inLeaveOut(inNode)) return;
  ioEntries.push_back(EntryOf(inNode, inDepth));
  for (std::size_t i = 0; i < inNode.UI_GetChildCount(); ++i)
    Collect(*inNode.UI_GetChild(i), inDepth + 1, inLeaveOut, ioEntries);
}

bool Holds(const UI_Node& inTop, const UI_Node* inNode) {
  if (&inTop == inNode) return true;
  for (std::size_t i = 0; i < inTop.UI_GetChildCount(); ++i) {
    if (Holds(*inTop.UI_GetChild(i), inNode)) return true;
  }
  return false;
}

UI_Node* Innermost(UI_Node& inNode, const PointT<int>& inInWindow, LeaveOut inLeaveOut) {
  if (inLeaveOut && inLeaveOut(inNode)) return nullptr;
  if (!inNode.UI_IsShown()) return nullptr;
  if (!NodeListing::RectInWindow(inNode).Contains(inInWindow)) return nullptr;
  for (std::size_t i = inNode.UI_GetChildCount(); i > 0; --i) {
    UI_Node* const found = Innermost(*inNode.UI_GetChild(i - 1), inInWindow, inLeaveOut);
    if (found) return found;
  }
  return &inNode;
}

std::vector<OS_Window*> AllWindows() {
  const auto* const manager = lumui::ui::UI_NodeManager::Get(false);
  return manager ? manager->GetWindows() : std::vector<OS_Window*>();
}

}  // namespace

std::vector<UTF16String> NodeListing::GetColumnTitles() {
  return {Localized("$$$/vek/ViewDebugger/Class=Class"),
          Localized("$$$/vek/ViewDebugger/ID=Id"),
          Localized("$$$/vek/ViewDebugger/Rectangle=Rectangle"),
          Localized("$$$/vek/ViewDebugger/Visible=Visible"),
          Localized("$$$/vek/ViewDebugger/Enabled=Enabled"),
          Localized("$$$/vek/ViewDebugger/Focus=Focus"),
          Localized("$$$/vek/ViewDebugger/Wants=Wants")};
}

std::vector<NodeListing::Entry> NodeListing::OfAllWindows(LeaveOut inLeaveOut) {
  std::vector<Entry> entries;
  for (const OS_Window* window : AllWindows())
    Collect(*window, 0, inLeaveOut, entries);
  return entries;
}

UTF16String NodeListing::AsText(const std::vector<Entry>& inEntries) {
  const auto line = [](const std::vector<UTF16String>& inTexts) {
    UTF16String text;
    for (std::size_t i = 0; i < inTexts.size(); ++i) {
      if (i > 0) text += UTF16String(1, '\t');
      text += inTexts[i];
    }
    return text + UTF16String(1, '\n');
  };
  UTF16String all = line(GetColumnTitles());
  for (const Entry& entry : inEntries)
    all += UTF16String(2 * static_cast<std::size_t>(entry.depth), ' ') + line(entry.texts);
  return all;
}

bool NodeListing::IsLive(const UI_Node* inNode) {
  if (!inNode) return false;
  for (const OS_Window* window : AllWindows()) {
    if (Holds(*window, inNode)) return true;
  }
  return false;
}

RectT<int> NodeListing::RectInWindow(const UI_Node& inNode) {
  PointT<int> origin;
  inNode.UI_LocalToGlobal(origin);
  const auto& rect = inNode.UI_GetLocalRectF();
  return RectT<int>(origin.x, origin.y, static_cast<int>(std::lround(rect.width)),
                    static_cast<int>(std::lround(rect.height)));
}

// Windows made later lie in front, as far as anybody knows, and the active one before all.
UI_Node* NodeListing::FindAt(const PointT<int>& inOnScreen, LeaveOut inLeaveOut) {
  const std::vector<OS_Window*> windows = AllWindows();
  UI_Node* found = nullptr;
  for (OS_Window* window : windows) {
    PointT<int> point = inOnScreen;
    window->UI_ScreenToWindow(point);
    UI_Node* const here = Innermost(*window, point, inLeaveOut);
    if (here) found = here;
    if (here && window->UI_IsActive()) break;
  }
  return found;
}

}  // namespace vek::workspace
