// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/UI_NodeAdapter.h"

#include "lumcore/debug/Contract.h"
#include "lumcore/proplist/PropList.h"
#include "lumui/ui/UI_SubView.h"
#include "lumui/ui/UI_TransformSubView.h"
#include "ui/NodeAdapters.h"

namespace lumui::ui {

namespace {

using lumcore::proplist::PropList;

// The constraints are one property that has several parts; both spellings of its name stand in
// archives.
class SubViewAdapter : public UI_NodeAdapterT<UI_SubView> {
 public:
  SubViewAdapter() : UI_NodeAdapterT("lumui::ui::UI_SubView", "lumui::ui::UI_Node") {
    Part("BindLeftEdgeToParentRight", &LayoutBindings::leftToParentRight);
    Part("BindRightEdgeToParentRight", &LayoutBindings::rightToParentRight);
    Part("BindTopEdgeToParentBottom", &LayoutBindings::topToParentBottom);
    Part("BindBottomEdgeToParentBottom", &LayoutBindings::bottomToParentBottom);
    Part("CenterHorizontal", &LayoutBindings::centerHorizontal);
    Part("CenterVertical", &LayoutBindings::centerVertical);
    Add("LayoutChildren", &UI_SubView::GetLayoutChildren, &UI_SubView::SetLayoutChildren);
    Part("AutoLayout", &AutoLayout::enabled);
    Part("AutoLayout_Horizontal", &AutoLayout::horizontal);
    Part("AutoLayout_MaintainMargins", &AutoLayout::maintainMargins);
    Part("AutoLayout_ScaleChildren", &AutoLayout::scaleChildren);
  }

 private:
  struct Limit {
    const char* key;
    float LayoutConstraints::*part;
  };
  static constexpr Limit kLimits[] = {{"minWidth", &LayoutConstraints::minWidth},
                                      {"minHeight", &LayoutConstraints::minHeight},
                                      {"maxWidth", &LayoutConstraints::maxWidth},
                                      {"maxHeight", &LayoutConstraints::maxHeight}};

  void Part(const char* inKey, bool LayoutBindings::*inPart) {
    Add(
        inKey, [=](const UI_SubView& inNode) { return inNode.GetBindings().*inPart; },
        [=](UI_SubView& ioNode, bool inValue) {
          LayoutBindings bindings = ioNode.GetBindings();
          bindings.*inPart = inValue;
          ioNode.SetBindings(bindings);
        });
  }
  void Part(const char* inKey, bool AutoLayout::*inPart) {
    Add(
        inKey, [=](const UI_SubView& inNode) { return inNode.GetAutoLayout().*inPart; },
        [=](UI_SubView& ioNode, bool inValue) {
          AutoLayout layout = ioNode.GetAutoLayout();
          layout.*inPart = inValue;
          ioNode.SetAutoLayout(layout);
        });
  }

  void DoSetProperties(UI_Node& ioNode, const UI_NodeProperties& inProperties) const override {
    UI_NodeAdapterT::DoSetProperties(ioNode, inProperties);
    for (const char* const key : {"constraints", "Constraints"}) {
      const PropList* const list = inProperties.ReadList(key);
      if (!list) continue;
      const UI_NodeProperties parts(*list, inProperties.GetSource());
      LayoutConstraints constraints;
      for (const Limit& limit : kLimits)
        parts.Read(limit.key, constraints.*limit.part);
      dynamic_cast<UI_SubView&>(ioNode).SetConstraints(constraints);
    }
  }
  void DoGetProperties(const UI_Node& inNode, PropList& outSection) const override {
    UI_NodeAdapterT::DoGetProperties(inNode, outSection);
    const LayoutConstraints& constraints = dynamic_cast<const UI_SubView&>(inNode).GetConstraints();
    PropList& list = outSection.CreateSubList("Constraints");
    for (const Limit& limit : kLimits)
      WriteProperty(list, limit.key, constraints.*limit.part);
  }
};

}  // namespace

UI_NodeAdapterBase::~UI_NodeAdapterBase() = default;

void RegisterNodeAdapters(UI_NodeAdapterRegistry& ioRegistry) {
  auto node = std::make_unique<UI_NodeAdapterT<UI_Node>>("lumui::ui::UI_Node", "");
  node->Add("bounds", &UI_Node::UI_GetLocalRectF, &UI_Node::UI_SetLocalRectF);
  node->Add("id", &UI_Node::UI_GetNodeID,
            [](UI_Node& ioNode, const lumcore::UTF8String& inID) { ioNode.UI_SetNodeID(inID); });
  node->Add("tooltip", &UI_Node::UI_GetToolTip, &UI_Node::UI_SetToolTip);
  node->Add("visible", &UI_Node::UI_IsVisible, &UI_Node::UI_Show);
  node->Add("wantsFocus", &UI_Node::UI_WantsKeyboardFocus, &UI_Node::UI_SetWantsKeyboardFocus);
  ioRegistry.Register(std::move(node));
  ioRegistry.Register(std::make_unique<SubViewAdapter>());
  ioRegistry.Register(std::make_unique<UI_NodeAdapterT<UI_TransformSubView>>(
      "lumui::ui::UI_TransformSubView", "lumui::ui::UI_SubView"));
}

UI_NodeAdapterRegistry::UI_NodeAdapterRegistry() {
  RegisterNodeAdapters(*this);
  RegisterControlAdapters(*this);
}

UI_NodeAdapterRegistry& UI_NodeAdapterRegistry::Get() {
  static UI_NodeAdapterRegistry sRegistry;
  return sRegistry;
}

void UI_NodeAdapterRegistry::Reset() {
  UI_NodeAdapterRegistry fresh;
  Get().mAdapters.swap(fresh.mAdapters);
}

void UI_NodeAdapterRegistry::Register(std::unique_ptr<UI_NodeAdapterBase> inAdapter) {
  LUM_INPUT_CONTRACT(inAdapter && !Find(inAdapter->GetNodeClass()));
  LUM_INPUT_CONTRACT(mAdapters.empty() || Find(inAdapter->GetBaseName()));
  mAdapters.push_back(std::move(inAdapter));
}

void UI_NodeAdapterRegistry::RegisterIfNew(std::unique_ptr<UI_NodeAdapterBase> inAdapter) {
  LUM_INPUT_CONTRACT(inAdapter.get() != nullptr);
  if (!Find(inAdapter->GetNodeClass())) Register(std::move(inAdapter));
}

const UI_NodeAdapterBase* UI_NodeAdapterRegistry::Find(const std::string& inClassName) const {
  for (const auto& adapter : mAdapters) {
    if (adapter->GetNodeClass() == inClassName) return adapter.get();
  }
  return nullptr;
}

const UI_NodeAdapterBase& UI_NodeAdapterRegistry::FindFor(const UI_Node& inNode) const {
  const auto countBases = [&](const UI_NodeAdapterBase* inAdapter) {
    int count = 0;
    for (; inAdapter; inAdapter = Find(inAdapter->GetBaseName()))
      ++count;
    return count;
  };
  const UI_NodeAdapterBase* best = mAdapters.front().get();
  int bases = 0;
  for (const auto& adapter : mAdapters) {
    const int count = adapter->Fits(inNode) ? countBases(adapter.get()) : 0;
    if (count <= bases) continue;
    best = adapter.get();
    bases = count;
  }
  return *best;
}

}  // namespace lumui::ui
