// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <memory>
#include <type_traits>

#include "lumcore/proplist/Utils.h"
#include "lumui/controls/UI_Checkbox.h"
#include "lumui/controls/UI_MultiColumnTree.h"
#include "lumui/controls/UI_PictureButton.h"
#include "lumui/controls/UI_Popup_Combo.h"
#include "lumui/controls/UI_StaticImage.h"
#include "lumui/controls/UI_StaticText.h"
#include "lumui/controls/UI_TextEdit.h"
#include "lumui/ui/UI_NodeAdapter.h"
#include "ui/NodeAdapters.h"

namespace lumui::ui {

namespace {

using namespace lumui::controls;

class ButtonAdapter : public UI_NodeAdapterT<UI_Button> {
 public:
  ButtonAdapter()
      : UI_NodeAdapterT("lumui::controls::UI_Button",
                        "lumui::controls::UI_InteractiveControlView") {
    Option("changeFocusOnClick", &ButtonOptions::changeFocusOnClick);
    Option("contentOffsetX", &ButtonOptions::contentOffsetX);
    Option("contentOffsetY", &ButtonOptions::contentOffsetY);
    Option("cornerRadius", &ButtonOptions::cornerRadius);
    Option("defaultAppearance", &ButtonOptions::defaultAppearance);
    Option("downOffsetX", &ButtonOptions::downOffsetX);
    Option("downOffsetY", &ButtonOptions::downOffsetY);
    Option("notificationOnMouseDown", &ButtonOptions::notificationOnMouseDown);
    Option("springLoaded", &ButtonOptions::springLoaded);
    Option("strokeSize1", &ButtonOptions::strokeSize1);
    Option("strokeSize2", &ButtonOptions::strokeSize2);
  }

 private:
  template <class Value>
  void Option(const char* inKey, Value ButtonOptions::*inOption) {
    Add(
        inKey, [=](const UI_Button& inNode) { return inNode.GetOptions().*inOption; },
        [=](UI_Button& ioNode, Value inValue) {
          ButtonOptions options = ioNode.GetOptions();
          options.*inOption = inValue;
          ioNode.SetOptions(options);
        });
  }
};

// Of a class with a picture, which is loaded as soon as its name is known.
template <class Class>
class ImageAdapter : public UI_NodeAdapterT<Class> {
 public:
  ImageAdapter(const char* inClassName, const char* inBaseName)
      : UI_NodeAdapterT<Class>(inClassName, inBaseName) {
    this->Add("imageName", &Class::GetImageName, &Class::SetImageName);
  }

 private:
  void DoSetProperties(UI_Node& ioNode, const UI_NodeProperties& inProperties) const override {
    UI_NodeAdapterT<Class>::DoSetProperties(ioNode, inProperties);
    auto& node = dynamic_cast<Class&>(ioNode);
    node.SetImage(inProperties.GetSource().LoadImage(node.GetImageName()));
  }
};

template <class Class>
std::unique_ptr<UI_NodeAdapterT<Class>> Adapter(const char* inClassName, const char* inBaseName) {
  return std::make_unique<UI_NodeAdapterT<Class>>(inClassName, inBaseName);
}

std::unique_ptr<UI_NodeAdapterBase> StaticTextAdapter() {
  auto adapter =
      Adapter<UI_StaticText>("lumui::controls::UI_StaticText", "lumui::controls::UI_ControlView");
  adapter->Add("text", &UI_StaticText::GetText, &UI_StaticText::SetText)
      .Add("fontSize", &UI_StaticText::GetFontSize, &UI_StaticText::SetFontSize)
      .Add("alignment", &UI_StaticText::GetAlignment, &UI_StaticText::SetAlignment)
      .Add("multiLine", &UI_StaticText::IsMultiLine, &UI_StaticText::SetMultiLine)
      .Add("textTruncation", &UI_StaticText::GetTruncation, &UI_StaticText::SetTruncation);
  return adapter;
}

std::unique_ptr<UI_NodeAdapterBase> TextEditAdapter() {
  auto adapter = Adapter<UI_TextEdit>("lumui::controls::UI_TextEdit",
                                      "lumui::controls::UI_InteractiveControlView");
  adapter->Add("multiLine", &UI_TextEdit::IsMultiLine, &UI_TextEdit::SetMultiLine)
      .Add("text", &UI_TextEdit::GetText, &UI_TextEdit::SetText)
      .Add("fontSize", &UI_TextEdit::GetFontSize, &UI_TextEdit::SetFontSize)
      .Add("readOnly", &UI_TextEdit::IsReadOnly, &UI_TextEdit::SetReadOnly)
      .Add("placeholder", &UI_TextEdit::GetPlaceholder, &UI_TextEdit::SetPlaceholder);
  return adapter;
}

// The items are an array while nothing is chosen, and a choice otherwise. Archives have them in the
// section of the combo as well as in that of its base, which is where they are written.
template <class Class>
class PopupAdapter : public UI_NodeAdapterT<Class> {
 public:
  PopupAdapter(const char* inClassName, const char* inBaseName)
      : UI_NodeAdapterT<Class>(inClassName, inBaseName) {
    this->Add("alwaysNotify", &Class::GetAlwaysNotify, &Class::SetAlwaysNotify);
    this->Add("drawDivider", &Class::GetDrawDivider, &Class::SetDrawDivider);
    this->Add("fontSize", &Class::GetFontSize, &Class::SetFontSize);
    this->Add(kItems, &Class::GetItems, &Class::SetItems);
    this->Add("popupType", &Class::GetPopupType, &Class::SetPopupType);
  }

 private:
  static constexpr const char* kItems = "popupItems";

  void DoSetProperties(UI_Node& ioNode, const UI_NodeProperties& inProperties) const override {
    UI_NodeAdapterT<Class>::DoSetProperties(ioNode, inProperties);
    lumcore::proplist::utils::Choice choice;
    if (!lumcore::proplist::utils::ReadChoice(inProperties.GetSection(), kItems, choice)) return;
    dynamic_cast<UI_Popup&>(ioNode).SetValue(choice.selected);
  }
  void DoGetProperties(const UI_Node& inNode,
                       lumcore::proplist::PropList& outSection) const override {
    if (!std::is_same_v<Class, UI_Popup>) return;
    UI_NodeAdapterT<Class>::DoGetProperties(inNode, outSection);
    const auto& popup = dynamic_cast<const UI_Popup&>(inNode);
    if (popup.GetValue() < 0) return;
    lumcore::proplist::utils::WriteChoice(outSection, kItems, {popup.GetItems(), popup.GetValue()});
  }
};

}  // namespace

void RegisterControlAdapters(UI_NodeAdapterRegistry& ioRegistry) {
  auto view = Adapter<UI_ControlView>("lumui::controls::UI_ControlView", "lumui::ui::UI_SubView");
  view->Add("downState", &UI_ControlView::GetDownState, &UI_ControlView::SetDownState)
      .Add("enabled", &UI_ControlView::UI_IsEnabled, &UI_ControlView::UI_SetEnabled)
      .Add("wantsFocus", &UI_Node::UI_WantsKeyboardFocus, &UI_Node::UI_SetWantsKeyboardFocus)
      .Add("suppressFocusDrawing", &UI_ControlView::GetSuppressFocusDrawing,
           &UI_ControlView::SetSuppressFocusDrawing);
  ioRegistry.Register(std::move(view));
  ioRegistry.Register(Adapter<UI_InteractiveControlView>(
      "lumui::controls::UI_InteractiveControlView", "lumui::controls::UI_ControlView"));
  ioRegistry.Register(std::make_unique<ButtonAdapter>());
  auto button =
      Adapter<UI_TextButton>("lumui::controls::UI_TextButton", "lumui::controls::UI_Button");
  button->Add("text", &UI_TextButton::GetText, &UI_TextButton::SetText)
      .Add("textAlignment", &UI_TextButton::GetTextAlignment, &UI_TextButton::SetTextAlignment)
      .Add("textIndent", &UI_TextButton::GetTextIndent, &UI_TextButton::SetTextIndent);
  ioRegistry.Register(std::move(button));
  ioRegistry.Register(
      Adapter<UI_Checkbox>("lumui::controls::UI_Checkbox", "lumui::controls::UI_TextButton"));
  ioRegistry.Register(std::make_unique<ImageAdapter<UI_PictureButton>>(
      "lumui::controls::UI_PictureButton", "lumui::controls::UI_Button"));
  ioRegistry.Register(StaticTextAdapter());
  ioRegistry.Register(std::make_unique<ImageAdapter<UI_StaticImage>>(
      "lumui::controls::UI_StaticImage", "lumui::controls::UI_ControlView"));
  ioRegistry.Register(TextEditAdapter());
  ioRegistry.Register(Adapter<UI_MultiColumnTree>("lumui::controls::UI_MultiColumnTree",
                                                  "lumui::controls::UI_InteractiveControlView"));
  ioRegistry.Register(std::make_unique<PopupAdapter<UI_Popup>>(
      "lumui::controls::UI_Popup", "lumui::controls::UI_InteractiveControlView"));
  ioRegistry.Register(std::make_unique<PopupAdapter<UI_Popup_Combo>>(
      "lumui::controls::UI_Popup_Combo", "lumui::controls::UI_Popup"));
}

}  // namespace lumui::ui
