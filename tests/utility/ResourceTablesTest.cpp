// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

// The resources of vek by the tables that hosts rely on.

#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>
#include <string>
#include <vector>

#include "lumcore/proplist/PropList.h"
#include "lumcore/proplist/Utils.h"
#include "lumui/controls/UI_Checkbox.h"
#include "lumui/controls/UI_PictureButton.h"
#include "lumui/controls/UI_Popup_Combo.h"
#include "lumui/controls/UI_StaticImage.h"
#include "lumui/controls/UI_StaticText.h"
#include "lumui/ui/OS_Window.h"
#include "lumui/ui/UI_NodeBuilder.h"
#include "lumui/ui/UI_TransformSubView.h"
#include "support/ThemeDocuments.h"

namespace {

using lumcore::proplist::PropList;
using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;
using lumcore::utility::ToUTF8;
using lumui::ui::UI_Node;
using Node = boost::intrusive_ptr<UI_Node>;

std::vector<unsigned char> Bytes(const std::string& inName, const char* inType) {
  return vek::utility::GetResourceManager()->GetRequiredBinary(ToUTF16(inName), inType);
}
bool Has(const std::string& inName, const char* inType) {
  return vek::utility::GetResourceManager()->HasBinary(ToUTF16(inName), inType);
}
// In pixels; 0 for what is no picture.
int HeightOf(const std::string& inName) {
  const auto bytes = Bytes(inName, "PNG");
  return QImage::fromData(bytes.data(), static_cast<int>(bytes.size())).height();
}

TEST(ResourceTables, IconsAreThereInEachSizeStateVariantAndScale) {
  const struct {
    const char* name;
    int height;
  } kSizes[] = {{"_XS", 10}, {"_SM", 12}, {"_MD", 16}};
  for (const std::string icon :
       {"SP_DELETE", "SP_DISCLOSURETRIANGLE", "SP_DISCLOSURETRIANGLEDOWN", "SP_GENERICFILE",
        "SP_LIVELINK", "SP_SAVEAS", "SP_SCENE", "SP_SEQUENCE", "SP_SORTDOWN", "SP_SORTUP"}) {
    for (const auto& size : kSizes) {
      for (const char* const state : {"_N", "_S", "_N_D", "_S_D"}) {
        const std::string name = icon + size.name + state;
        EXPECT_EQ(HeightOf(name), size.height) << name;
        EXPECT_EQ(HeightOf(name + "_AT_3TO2X"), size.height * 3 / 2) << name;
        EXPECT_EQ(HeightOf(name + "_AT_2X"), size.height * 2) << name;
      }
    }
  }
  for (const std::string icon :
       {"UISHELL_VLXPROJ", "UISHELL_MRXPROJ", "UISHELL_COLLAPSE", "UISHELL_COLLAPSEMAC",
        "UISHELL_DESKTOP", "UISHELL_DRIVE", "UISHELL_EXPAND", "UISHELL_EXPANDMAC", "UISHELL_FOLDER",
        "UISHELL_MYCOMPUTER", "UISHELL_MYDOCUMENTS"}) {
    EXPECT_GT(HeightOf(icon), 0) << icon;
    EXPECT_FALSE(Has(icon + "_AT_2X", "PNG")) << icon << " has one scale";
  }
  for (const std::string icon : {"S_DELETE_MD_N_D_AT_2X", "S_SAVE_MD_N_D_AT_2X"}) {
    const auto bytes = Bytes(icon, "SVG");
    EXPECT_NE(std::string(bytes.begin(), bytes.end()).find("<svg"), std::string::npos) << icon;
  }
}

TEST(ResourceTables, ThemesUseTheNumbersAndPositionsThatAreKnown) {
  const struct {
    const char* document;
    std::vector<std::pair<const char*, const char*>> entities;
  } kRows[] = {
      {"LUMColorThemesV1",
       {{"kColor_AppBackground", "0"}, {"kColor_TabBackground", "1"}, {"kColor_TabContent", "2"}}},
      {"LUMColorThemesV2",
       {{"kColor_RadioButtonBevelCircleFill", "0"}, {"kColor_RadioButtonOuterCircleFill", "1"}}},
      {"LUMColorThemesV3",
       {{"kColor_DividerLineStroke", "3000000"}, {"kColor_ListBoxContentNormal", "3000002"}}},
      {"LUMColorThemesV4",
       {{"kColor_ApplicationBackground", "4000000"},
        {"kColor_ContentBackground", "4000001"},
        {"kColor_Focus", "4000002"}}},
      {"LUMColorThemesV5",
       {{"kColor_Unused", "5000000"},
        {"kColor_Gray_01", "5000001"},
        {"kColor_FieldBackgroundHover", "5000025"},
        {"kColor_BrushShapePreviewOutline", "5000085"},
        {"kColor_ToolTipText", "5000089"},
        {"kColor_Gray_Darkest_01", "0.0863"},
        {"kColor_Gray_Lightest_10", "0.1725"},
        {"General", "0.0000"},
        {"Darkest", "0.0000"},
        {"Dark", "0.5000"},
        {"Light", "0.5001"},
        {"Lightest", "1.0000"},
        {"kText_Main_Large", "0"},
        {"kText_Main_Small", "1"},
        {"kText_Title", "2"},
        {"kFontSizeScheme_Small", "0"},
        {"kFontSizeScheme_Regular", "1"},
        {"kFontSizeScheme_Large", "2"}}},
  };
  for (const auto& row : kRows) {
    const QString document = QString::fromStdString(vek::test::ThemeDocument(row.document));
    for (const auto& [name, value] : row.entities) {
      const QString entity =
          document.section(QString("<!ENTITY %1 ").arg(name), 1).section('>', 0, 0).trimmed();
      EXPECT_EQ(entity.toStdString(), std::string("\"") + value + "\"") << row.document << name;
    }
  }
  EXPECT_EQ(QString::fromStdString(vek::test::ThemeDocument("HighContrastColorThemeV5"))
                .count("<Theme t=\"&General;\">"),
            2);
}

TEST(ResourceTables, EachPropertyOfAControlIsWrittenInItsSection) {
  using namespace lumui::controls;
  const struct {
    Node node;
    const char* section;
    std::vector<const char*> keys;
  } kRows[] = {
      {new lumui::ui::UI_TransformSubView,
       "lumui::ui::UI_Node",
       {"bounds", "id", "tooltip", "visible", "wantsFocus", "children"}},
      {new lumui::ui::UI_TransformSubView,
       "lumui::ui::UI_SubView",
       {"BindBottomEdgeToParentBottom", "BindLeftEdgeToParentRight", "BindRightEdgeToParentRight",
        "BindTopEdgeToParentBottom", "CenterHorizontal", "CenterVertical", "LayoutChildren",
        "AutoLayout", "AutoLayout_Horizontal", "AutoLayout_MaintainMargins",
        "AutoLayout_ScaleChildren", "Constraints"}},
      {new UI_StaticText,
       "lumui::controls::UI_ControlView",
       {"downState", "enabled", "wantsFocus", "suppressFocusDrawing"}},
      {new UI_TextButton,
       "lumui::controls::UI_Button",
       {"changeFocusOnClick", "contentOffsetX", "contentOffsetY", "cornerRadius",
        "defaultAppearance", "downOffsetX", "downOffsetY", "notificationOnMouseDown",
        "springLoaded", "strokeSize1", "strokeSize2"}},
      {new UI_TextButton,
       "lumui::controls::UI_TextButton",
       {"text", "textAlignment", "textIndent"}},
      {new UI_StaticText,
       "lumui::controls::UI_StaticText",
       {"fontSize", "text", "alignment", "multiLine", "textTruncation"}},
      {new UI_Popup_Combo,
       "lumui::controls::UI_Popup",
       {"alwaysNotify", "drawDivider", "fontSize", "popupItems", "popupType"}},
      {new UI_PictureButton, "lumui::controls::UI_PictureButton", {"imageName"}},
      {new UI_StaticImage, "lumui::controls::UI_StaticImage", {"imageName"}},
  };
  for (const auto& row : kRows) {
    const auto written = lumui::ui::UI_NodeBuilder::Write(*row.node);
    PropList archive;
    lumcore::proplist::utils::LoadPropListFromBuffer(written, ToUTF16("written"), archive, false);
    const PropList& sections = *archive.GetSubList("root")->GetSubList("sections");
    const PropList* found = nullptr;
    for (const PropList::Entry& entry : sections) {
      const auto* const section = std::get_if<PropList>(&entry.value);
      if (section && section->Get("sectionName", ToUTF16("")) == ToUTF16(row.section))
        found = section;
    }
    ASSERT_NE(found, nullptr) << row.section;
    for (const char* const key : row.keys)
      EXPECT_TRUE(found->Has(key)) << row.section << " " << key;
  }
}

// "x,y,width,height" of the node.
std::string PlaceOf(const UI_Node& inNode) {
  const auto& rect = inNode.UI_GetLocalRectF();
  std::string text;
  for (const float value : {rect.x, rect.y, rect.width, rect.height})
    text += (text.empty() ? "" : ",") + std::to_string(std::lround(value));
  return text;
}

TEST(ResourceTables, FileDialogIsBuiltAtItsPlacesInBothFamiliesOfBrightness) {
  const auto bytes = Bytes("CommonFile", "xml");
  const std::string text(bytes.begin(), bytes.end());
  EXPECT_EQ(text.rfind("<?xml version='1.0'?>\r\n<prop.map version='4'>\r\n", 0), 0u);
  EXPECT_TRUE(std::all_of(bytes.begin(), bytes.end(), [](auto inByte) { return inByte < 128; }));
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), std::count(text.begin(), text.end(), '\r'));

  using lumui::ui::Theme;
  for (const float brightness : {0.2f, 0.9f}) {
    Theme::Initialize(new lumui::ui::KeyframeThemeEditor(385, 3, 1));
    vek::test::LoadTheme("LUMColorThemesV5");
    Theme::SetBrightness(brightness);
    Theme::NotifyThemeChanged();
    lumui::ui::UI_NodeBuilder::NodeMap nodes;
    const Node root = lumui::ui::UI_NodeBuilder(ToUTF8(text), ToUTF16("CommonFile"))
                          .Build(nullptr, nodes, [](const lumcore::UTF16String&) -> Node {
                            return new lumui::ui::UI_SubView;
                          });
    EXPECT_EQ(PlaceOf(*root), "0,0,500,381");
    const auto place = [&](const char* inID) {
      const auto found = nodes.find(ToUTF8(std::string(inID)));
      return found == nodes.end() ? "" : PlaceOf(*found->second);
    };
    EXPECT_EQ(place("FolderTree"), "7,28,484,136");
    EXPECT_EQ(place("FilesList"), "7,176,484,108");
    EXPECT_EQ(place("FilenameCombo"), "99,296,392,19");
    EXPECT_EQ(place("FileTypeCombo"), "99,325,392,19");
    EXPECT_EQ(place("OKButton"), "319,354,80,19");
    EXPECT_EQ(place("CancelButton"), "411,354,80,19");
    std::string labels;
    for (std::size_t i = 0; i < root->UI_GetChildCount(); ++i) {
      const UI_Node* const child = root->UI_GetChild(i);
      if (const auto* const label = dynamic_cast<const lumui::controls::UI_StaticText*>(child))
        labels += ToStdString(label->GetText()) + PlaceOf(*child) + " ";
    }
    EXPECT_EQ(labels, "Look in:7,9,151,19 File name:7,296,80,19 Files of type:7,325,80,19 ");
    const auto& types = dynamic_cast<lumui::controls::UI_Popup_Combo&>(
        *nodes.at(ToUTF8(std::string("FileTypeCombo"))));
    EXPECT_EQ(types.GetItems(),
              (std::vector<lumcore::UTF16String>{ToUTF16("Item 1"), ToUTF16("Item 2")}));
    const boost::intrusive_ptr<lumui::ui::OS_Window> window(new lumui::ui::OS_Window);
    window->UI_AddChild(root);
    window->UI_Show(true);
    Theme::Terminate();
  }
}

TEST(ResourceTables, CombosReadTheirItemsFromEitherSection) {
  const lumui::controls::UI_Popup_Combo combo;
  std::string text = ToStdString(ToUTF16(lumui::ui::UI_NodeBuilder::Write(combo)));
  const std::string end = "</prop.pair>";
  const auto at = text.find(end, text.rfind("lumui::controls::UI_Popup_Combo")) + end.size();
  text.insert(at,
              "<prop.pair><key>popupItems</key><array><array.type><ustring/></array.type>"
              "<ustring>one</ustring></array></prop.pair>");
  lumui::ui::UI_NodeBuilder::NodeMap nodes;
  const Node built = lumui::ui::UI_NodeBuilder(ToUTF8(text)).Build(nullptr, nodes);
  EXPECT_EQ(dynamic_cast<lumui::controls::UI_Popup_Combo&>(*built).GetItems().size(), 1u);
}

}  // namespace
