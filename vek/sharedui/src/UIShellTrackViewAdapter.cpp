// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/UIShellTrackViewAdapter.h"

#include "lumui/controls/UI_ScrollView.h"
#include "vek/sharedui/UIShellTrackView.h"
#include "vek/trackview/PlatformScrollView.h"

namespace vek::sharedui {

namespace {

constexpr const char* kFileTypesKey = "filetypes";
constexpr const char* kFilesAtLeafNodesKey = "filesAtLeafNodes";

}  // namespace

UIShellTrackViewAdapter::UIShellTrackViewAdapter()
    : UI_NodeAdapterBase("vek::UIShellTrackView", "lumui::ui::UI_SubView") {}

UIShellTrackViewAdapter::~UIShellTrackViewAdapter() = default;

UIShellTrackView* UIShellTrackViewAdapter::FindTree(const lumui::ui::UI_Node& inNode) {
  auto const* const scroll = dynamic_cast<const lumui::controls::UI_ScrollView*>(&inNode);
  auto* const view =
      scroll ? dynamic_cast<trackview::LUMPlatformView*>(scroll->GetContentNode()) : nullptr;
  if (!view || !view->GetTrackView()) return nullptr;
  const std::list<trackview::Overlay*> overlays = view->GetTrackView()->GetOverlays();
  return overlays.empty() ? nullptr : dynamic_cast<UIShellTrackView*>(overlays.front());
}

boost::intrusive_ptr<lumui::ui::UI_Node> UIShellTrackViewAdapter::DoCreateNode(
    const lumui::ui::NodeSource&) const {
  const auto scroll = trackview::PlatformScrollView::Create();
  trackview::TrackView& trackView = *scroll->GetPlatformView().GetTrackView();
  std::auto_ptr<trackview::Overlay> tree(new UIShellTrackView(&trackView, nullptr, true));
  trackView.InstallOverlay(tree, false);
  return scroll;
}

bool UIShellTrackViewAdapter::DoFits(const lumui::ui::UI_Node& inNode) const {
  return FindTree(inNode) != nullptr;
}

void UIShellTrackViewAdapter::DoSetProperties(
    lumui::ui::UI_Node& ioNode, const lumui::ui::UI_NodeProperties& inProperties) const {
  UIShellTrackView* const tree = FindTree(ioNode);
  if (!tree) return;
  std::vector<lumcore::UTF16String> types;
  if (inProperties.Read(kFileTypesKey, types)) {
    tree->ClearFileTypes();
    for (lumcore::UTF16String const& type : types)
      tree->AddFileType(type, false);
  }
  bool filesAtLeafNodes = tree->CanAddFilesAsLeafNodes();
  inProperties.Read(kFilesAtLeafNodesKey, filesAtLeafNodes);
  tree->SetAddFilesAsLeafNodes(filesAtLeafNodes);
  tree->Reset();
}

void UIShellTrackViewAdapter::DoGetProperties(const lumui::ui::UI_Node& inNode,
                                              lumcore::proplist::PropList& outSection) const {
  UIShellTrackView const* const tree = FindTree(inNode);
  if (!tree) return;
  std::list<lumcore::UTF16String> const& types = tree->GetFileTypes();
  lumui::ui::WriteProperty(outSection, kFileTypesKey,
                           std::vector<lumcore::UTF16String>(types.begin(), types.end()));
  lumui::ui::WriteProperty(outSection, kFilesAtLeafNodesKey, tree->CanAddFilesAsLeafNodes());
}

bool UIShellTrackViewAdapter::DoMakesItsChildren() const {
  return true;
}

}  // namespace vek::sharedui
