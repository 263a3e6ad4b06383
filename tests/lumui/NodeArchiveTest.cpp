// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <memory>

#include "ArchiveFixture.h"
#include "UITest.h"
#include "lumui/controls/UI_Popup.h"
#include "lumui/controls/UI_TextButton.h"
#include "lumui/controls/UI_TextEdit.h"
#include "lumui/ui/UI_NodeAdapter.h"

namespace lumui::test {

namespace {

using controls::UI_TextButton;
using lumcore::utility::ToUTF8;
using Nodes = ui::UI_NodeBuilder::NodeMap;
using Node = boost::intrusive_ptr<ui::UI_Node>;

class NodeArchives : public UITest {
 protected:
  ~NodeArchives() override { ui::UI_NodeAdapterRegistry::Reset(); }

  Node Build(const std::string& inArchive,
             const ui::UI_NodeBuilder::CustomNodeFunction& inCustom = {}) {
    ui::UI_NodeBuilder builder(ToUTF8(std::string_view(inArchive)), U16("some.xml"));
    const utility::ResourceManager resources = TestResources();
    builder.SetResources(&resources);
    mRoot = builder.Build(nullptr, mNodes, inCustom);
    return mRoot;
  }
  std::string Write(const ui::UI_Node& inRoot) { return Text(ui::UI_NodeBuilder::Write(inRoot)); }
  template <class Class>
  Class& At(const char* inID) {
    return dynamic_cast<Class&>(*mNodes.at(ToUTF8(std::string_view(inID))));
  }

  Nodes mNodes;
  Node mRoot;  // the nodes of the map belong to it
};

std::string Replaced(std::string inText, const std::string& inOld, const std::string& inNew) {
  const auto at = inText.find(inOld);
  EXPECT_NE(at, std::string::npos) << inOld;
  return inText.replace(at, inOld.size(), inNew);
}

class Lamp : public UI_TextButton {
 public:
  enum Colour { kRed, kGreen };
  Colour GetColour() const { return mColour; }
  void SetColour(Colour inColour) {
    mColour = inColour;
    // The section of the base class has been read by now.
    mTextAtColour = GetText();
  }
  lumcore::UTF16String mTextAtColour;

 private:
  Colour mColour = kRed;
};

}  // namespace

TEST_F(NodeArchives, BuildWhatTheySayAndComeBackFromWriting) {
  const Node root = Build(ArchiveText());
  const auto& popup = At<controls::UI_Popup>("FormatPopup");
  EXPECT_EQ(popup.GetItems(),
            (std::vector<lumcore::UTF16String>{U16("OPML"), U16("Plain text"), U16("Web page")}));
  EXPECT_EQ(popup.GetValueString(), U16("Plain text"));
  EXPECT_EQ(At<UI_TextButton>("OpenCheckbox").GetText(), U16("&Open the file afterwards"));
  EXPECT_TRUE(At<UI_TextButton>("ZipCheckbox").UI_IsDisabled());
  EXPECT_TRUE(At<controls::UI_TextEdit>("NotesField").IsMultiLine());
  EXPECT_EQ(At<ui::UI_SubView>("OKButton").GetBindings().topToParentBottom, true);
  EXPECT_EQ(At<ui::UI_SubView>("UI_TransformSubView").GetConstraints().minHeight, 300);
  // Of several with one id, the first is known.
  EXPECT_EQ(mNodes.at(ToUTF8(std::string_view("UI_StaticText"))), root->UI_GetChild(1));
  EXPECT_EQ(mNodes.size(), 14u);
  const std::string written = Write(*root);
  const Node again = Build(written);
  EXPECT_EQ(Write(*again), written);
  At<controls::UI_Popup>("FormatPopup").SetValue(2);
  const Node third = Build(Write(*again));
  EXPECT_EQ(At<controls::UI_Popup>("FormatPopup").GetValueString(), U16("Web page"));
}

TEST_F(NodeArchives, KeepWhatTheyDoNotKnowAndTheKeysOfTheirTexts) {
  std::string archive =
      Replaced(ArchiveText(), "<key>enabled</key><false/>",
               "<key>smell</key><ustring>of roses</ustring></prop.pair><prop.pair>"
               "<key>enabled</key><false/>");
  archive = Replaced(archive, "<key>adapter</key><ustring>lumui::controls::UI_TextButton",
                     "<key>adapter</key><ustring>HostLamp");
  Build(archive, [](const lumcore::UTF16String&) -> Node { return new Lamp; });
  std::string written = Write(*mRoot);
  for (const char* const kept : {"($$$/test/Export/Text=Plain text)",
                                 "($$$/test/Export/Open=&amp;Open the", "of roses", "HostLamp"})
    EXPECT_NE(written.find(kept), std::string::npos) << kept;
  At<UI_TextButton>("OpenCheckbox").SetText(U16("Shut"));
  written = Write(*mRoot);
  EXPECT_EQ(written.find("$$$/test/Export/Open"), std::string::npos)
      << "it says something else now";
  EXPECT_NE(written.find("Shut"), std::string::npos);
}

TEST_F(NodeArchives, DamageIsToldWithItsPlace) {
  struct Case {
    const char* old;
    const char* now;
    std::vector<const char*> says;
  };
  const std::vector<Case> cases = {
      {"<key>root</key>", "<key>roof</key>", {"some.xml", "no archive"}},
      {"'32'>1</int>", "'32'>2</int>", {"some.xml", "version 1"}},
      {"</prop.map>", "", {"some.xml:", "no element found"}},
      {"<key>adapter</key><ustring>lumui::controls::UI_TextEdit",
       "<key>adaptor</key><ustring>x",
       {"some.xml", "root/child-3 \"NameField\"", "\"adapter\""}},
      {"controls::UI_PictureButton",
       "controls::UI_Picture",
       {"root/child-4 \"ClearButton\"", "UI_Picture\""}},
      {"controls::UI_PictureButton",
       "controls::UI_ControlView",
       {"\"ClearButton\"", "UI_ControlView"}},
      {"SP_DELETE_MD_N", "SP_DELETE_XL_N", {"some.xml", "\"ClearButton\"", "SP_DELETE_XL_N"}},
      {"<key>enabled</key><false/>",
       "<key>enabled</key><ustring>no</ustring>",
       {"\"ZipCheckbox\"", "\"enabled\"", "truth"}},
      {"<key>minWidth</key><float>360</float>",
       "<key>minWidth</key><true/>",
       {"minWidth", "a number"}},
      {"'32'>16</int>", "'32'>4294967295</int>", {"\"UI_TransformSubView\"", "\"child-16\""}},
      {"<key>sectionName</key><ustring>lumui::ui::UI_SubView",
       "<key>s</key><ustring>x",
       {"\"sectionName\""}},
  };
  for (const Case& row : cases) {
    Build(ArchiveText());
    const std::string error = ErrorOf([&] { Build(Replaced(ArchiveText(), row.old, row.now)); });
    for (const char* says : row.says)
      EXPECT_NE(error.find(says), std::string::npos) << row.old << ": " << error;
    EXPECT_TRUE(mNodes.empty());
  }
  EXPECT_EQ(Build(""), nullptr);
}

TEST_F(NodeArchives, AskForNodesThatNobodyIsRegisteredFor) {
  const std::string strange =
      Replaced(ArchiveText(), "<key>adapter</key><ustring>lumui::controls::UI_TextButton",
               "<key>adapter</key><ustring>HostLamp");
  const auto custom = [this](const lumcore::UTF16String& inName) -> Node {
    Log(lumcore::utility::ToStdString(inName));
    return new Lamp;
  };
  Build(strange, custom);
  EXPECT_EQ(TakeLog(), "HostLamp");
  // The sections of its bases are read all the same.
  EXPECT_EQ(At<Lamp>("OKButton").UI_GetLocalRectF().x, 204);
  const auto none = [](const lumcore::UTF16String&) -> Node { return nullptr; };
  EXPECT_NE(ErrorOf([&] { Build(strange, none); }).find("\"OKButton\": nobody"), std::string::npos);
}

TEST_F(NodeArchives, TakeAdaptersOfHosts) {
  auto adapter =
      std::make_unique<ui::UI_NodeAdapterT<Lamp>>("host::Lamp", "lumui::controls::UI_TextButton");
  adapter->Add("colour", &Lamp::GetColour, &Lamp::SetColour);
  ui::UI_NodeAdapterRegistry::Get().Register(std::move(adapter));
  const boost::intrusive_ptr<Lamp> lamp(new Lamp);
  lamp->UI_SetNodeID("lamp");
  lamp->SetText(U16("glow"));
  lamp->SetColour(Lamp::kGreen);
  const std::string written = Write(*lamp);
  EXPECT_LT(written.find("host::Lamp"), written.find("controls::UI_TextButton"));
  const std::string more =
      Replaced(written, "<key>colour</key>",
               "<key>smell</key><true/></prop.pair><prop.pair><key>colour</key>");
  const Node root = Build(more);
  EXPECT_EQ(At<Lamp>("lamp").GetColour(), Lamp::kGreen);
  EXPECT_EQ(At<Lamp>("lamp").mTextAtColour, U16("glow"));
  // What nobody knows any more is passed over, and its bases are read.
  ui::UI_NodeAdapterRegistry::Reset();
  Build(more, [](const lumcore::UTF16String&) -> Node { return new Lamp; });
  EXPECT_EQ(At<Lamp>("lamp").GetText(), U16("glow"));
  EXPECT_EQ(At<Lamp>("lamp").GetColour(), Lamp::kRed);
}

}  // namespace lumui::test
