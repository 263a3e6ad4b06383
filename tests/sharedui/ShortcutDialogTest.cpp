// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/ShortcutDialog.h"

#include <functional>

#include "lumcore/config/ThrowError.h"
#include "lumui/datatransfer/Clipboard.h"
#include "lumui/dialogs/DialogDriver.h"
#include "lumui/dialogs/MessageDialog.h"
#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/UI_NodeManager.h"
#include "sharedui/ShortcutFixture.h"
#include "vek/sharedui/ShortcutField.h"
#include "vek/sharedui/ShortcutFieldAdapter.h"

namespace vek::test {

namespace {

namespace input = lumui::testing;
namespace controls = lumui::controls;
using lumui::ui::KeyboardCode;
using lumui::ui::ModifierKeys;
using lumui::ui::UI_Dialog;
using lumui::ui::UI_Node;
using sharedui::CommandsTree;
using sharedui::ShortcutDialog;
using sharedui::TextBubble;

KeyboardCode Key(unsigned short inCode) {
  return KeyboardCode::CreateFromControlCode(inCode, false);
}
KeyboardCode Letter(char inLetter) {
  return KeyboardCode::CreateFromKeyboardChar(static_cast<unsigned char>(inLetter), false);
}

class ShortcutDialogs : public ShortcutFixture {
 protected:
  ~ShortcutDialogs() override {
    lumui::dialogs::SetDialogDriver(nullptr);
    lumui::dialogs::SetDialogAnswerer(nullptr);
  }

  int Run(const char* inSet, const std::function<void()>& inWork) {
    const boost::intrusive_ptr<ShortcutDialog> dialog(
        new ShortcutDialog(U16(inSet), Bytes(kDefaultMap), false));
    mDialog = dialog.get();
    lumui::dialogs::SetDialogDriver([&](UI_Dialog&) { inWork(); });
    const int result = dialog->RunModal();
    mSetName = U8(dialog->GetCurrentShortcutSetName());
    return result;
  }
  template <class Control>
  Control& The(const char* inID) const {
    return dynamic_cast<Control&>(*mDialog->GetNodeForID(inID));
  }
  CommandsTree& Tree() const { return The<CommandsTree>("TreeListID"); }
  // In the middle of the node, through the window.
  void Click(UI_Node& inNode) const {
    const auto& rect = inNode.UI_GetLocalRectF();
    lumcore::geom::PointT<int> at(static_cast<int>(rect.width / 2),
                                  static_cast<int>(rect.height / 2));
    inNode.UI_LocalToGlobal(at);
    input::ClickMouse(*mDialog,
                      input::Position(static_cast<float>(at.x), static_cast<float>(at.y)));
  }
  void Click(const char* inID) const { Click(*mDialog->GetNodeForID(inID)); }
  void Tap(KeyboardCode inKey, unsigned char inModifiers = 0) const {
    input::TapKey(*mDialog, inKey, ModifierKeys(inModifiers));
  }
  bool IsEnabled(const char* inID) const { return The<controls::UI_Button>(inID).UI_IsEnabled(); }
  std::string Popup() const {
    return U8(The<controls::UI_Popup>("KeysetPopupID").GetValueString());
  }

  const std::vector<boost::intrusive_ptr<TextBubble>>& Bubbles() const {
    auto* const field = dynamic_cast<sharedui::BubbleField*>(
        Tree().GetCellNode(Tree().GetSelectedRow(), CommandsTree::kShortcut));
    static const std::vector<boost::intrusive_ptr<TextBubble>> sNone;
    return field ? field->GetBubbles() : sNone;
  }
  // The bubbles as they are seen: "[Ctrl+X] [...]*", the one that is edited with a star.
  std::string Field() const {
    std::string text;
    for (const auto& bubble : Bubbles()) {
      text += (text.empty() ? "[" : " [") + (bubble->IsNew() ? "..." : U8(bubble->GetText())) + "]";
      text += bubble->IsEditing() ? "*" : "";
    }
    return text;
  }
  // The rows that are not hidden: "Edit (Copy Cut)", in brackets what stands below an open one.
  std::string Rows() const {
    std::string text;
    for (const auto category : Tree().GetChildRows(CommandsTree::kNoRow)) {
      if (Tree().IsRowHidden(category)) continue;
      text += (text.empty() ? "" : " ") + U8(Tree().GetText(category, 0));
      if (!Tree().IsRowOpen(category)) continue;
      std::string below;
      for (const auto row : Tree().GetChildRows(category)) {
        if (!Tree().IsRowHidden(row))
          below += (below.empty() ? "" : " ") + U8(Tree().GetText(row, 0));
      }
      text += "(" + below + ")";
    }
    return text;
  }

  ShortcutDialog* mDialog = nullptr;
  std::string mSetName;
};

}  // namespace

TEST_F(ShortcutDialogs, AWholeRunFromASearchToTheFile) {
  const int result = Run("", [&] {
    EXPECT_TRUE(The<controls::UI_TextEdit>("SearchBoxID").UI_HasKeyboardFocus());
    EXPECT_EQ(Rows(), "Edit View ");
    Tree().SetRowOpen(Tree().GetChildRows(CommandsTree::kNoRow)[0], true);
    input::TypeText(*mDialog, U16("zoom"));
    EXPECT_EQ(Rows(), "View(Zoom.In)");
    Click("MatchCaseCBID");
    EXPECT_EQ(Rows(), "");
    Click("MatchCaseCBID");
    EXPECT_FALSE(IsEnabled("AddShortcutButtonID") || IsEnabled("RemoveAllShortcutsButtonID") ||
                 IsEnabled("UndoButtonID") || IsEnabled("DeleteKeysetButtonID"));
    Tree().UI_SetKeyboardFocus(lumui::ui::kFocusTab);
    Tap(Key(KeyboardCode::kDownArrow));
    Tap(Key(KeyboardCode::kDownArrow));
    EXPECT_EQ(Field(), "[I] [J]");
    Click("AddShortcutButtonID");
    EXPECT_EQ(Field(), "[I] [J] [...]*");
    EXPECT_FALSE(IsEnabled("AddShortcutButtonID"));
    Tap(Letter('X'), lumui::ui::kModCommand);
    EXPECT_EQ(Field(), "[I] [J] [Ctrl+X]");
    EXPECT_EQ(Popup(), "(Custom)");
    EXPECT_TRUE(mDialog->GetNodeForID("WarningIconID")->UI_IsVisible());
    Click("GotoButtonID");
    EXPECT_EQ(Rows(), "Edit(Copy Cut) View ");
    EXPECT_EQ(U8(Tree().GetText(Tree().GetSelectedRow(), 0)) + Field(), "Cut");
    EXPECT_EQ(U8(Tree().GetText(Tree().FindRow(3), CommandsTree::kShortcut)), "I, J, Ctrl+X");
    Click("UndoButtonID");
    EXPECT_EQ(Field(), "[Ctrl+X]");
    EXPECT_FALSE(mDialog->GetNodeForID("WarningIconID")->UI_IsVisible() ||
                 mDialog->GetNodeForID("GotoButtonID")->UI_IsVisible());
    Click(*Bubbles()[0]);
    EXPECT_EQ(Field(), "[Ctrl+X]*");
    Tap(Key(KeyboardCode::kReturn), lumui::ui::kModAlt);
    EXPECT_EQ(Field(), "[Alt+Return]");
    Click("CopyToClipboardButtonID");
    Click("OkButtonID");
  });
  EXPECT_EQ(result, UI_Dialog::kOK);
  EXPECT_EQ(U8(lumui::datatransfer::GetClipboardText()),
            "Edit\n  Copy\tCtrl+C\n  Cut\tAlt+Return\nView\n  Zoom.In\tI, J\n\n  Play\tF1\n");
  const std::string keys = "2:Ctrl+C 2:Ctrl+C~ 3:I 3:J 4:F1! 1:Alt+Return";
  EXPECT_EQ(mSetName + " " + Files(), "(Custom) (Custom)=" + keys);
  // The next dialog begins with it, and Cancel leaves it alone.
  Run("(Custom)", [&] {
    EXPECT_EQ(Popup() + " " + Keys(), "(Custom) " + keys);
    Tree().GoToCommand(3);
    Click("RemoveAllShortcutsButtonID");
    EXPECT_EQ(Field() + " " + Keys(), " 2:Ctrl+C 2:Ctrl+C~ 4:F1! 1:Alt+Return");
    input::RequestClose(*mDialog);
  });
  EXPECT_EQ(Keys() + " " + Files(), keys + " (Custom)=" + keys);
}

TEST_F(ShortcutDialogs, BubblesTakeKeysByTheirRules) {
  Run("", [&] {
    Tree().GoToCommand(2);
    const auto edit = [&] {
      Bubbles().front()->UI_SetKeyboardFocus(lumui::ui::kFocusTab);
      Tap(Key(KeyboardCode::kSpace));
    };
    edit();
    // Keys that are none to store, then one that ends the editing.
    for (const unsigned short key : {KeyboardCode::kShiftKey, KeyboardCode::kControlKey,
                                     KeyboardCode::kAltKey, KeyboardCode::kSpace}) {
      Tap(Key(key));
      EXPECT_EQ(Field(), "[Ctrl+C]*") << key;
    }
    Tap(Key(KeyboardCode::kEscape));
    EXPECT_EQ(Field(), "[Ctrl+C]");
    struct Case {
      KeyboardCode key;
      unsigned char modifiers;
      const char* shown;
    };
    // What the dialog, its mnemonics or the field's neighbours would take otherwise.
    lumui::ui::UI_NodeManager::Get(true)->EnableMnemonics();
    The<controls::UI_TextButton>("OkButtonID").SetText(U16("&OK"));
    for (const Case& row :
         {Case{Key(KeyboardCode::kReturn), 0, "[Return]"},
          Case{Key(KeyboardCode::kTab), 4, "[Ctrl+Tab]"},
          Case{Key(KeyboardCode::kDownArrow), 0, "[Down Arrow]"}, Case{Letter('O'), 16, "[Alt+O]"},
          Case{Key(KeyboardCode::kDelete), 0, "[Del]"}}) {
      edit();
      input::PressKey(*mDialog, row.key, ModifierKeys(row.modifiers));
      // Held for too long, it does not go on to remove what it has been assigned to.
      input::PressKey(*mDialog, row.key, ModifierKeys(row.modifiers), true);
      input::ReleaseKey(*mDialog, row.key, ModifierKeys(row.modifiers));
      EXPECT_EQ(Field(), row.shown);
    }
    EXPECT_EQ(Keys(), "1:Ctrl+X 3:I 3:J 4:F1! 2:Del 2:Del~");
    // A key that is protected is told of in a box, and the bubble waits on.
    std::string box;
    lumui::dialogs::SetDialogAnswerer([&](const lumui::dialogs::MessageDialogArgs& inArgs) {
      box = U8(inArgs.text);
      return 0;
    });
    edit();
    Tap(Key(KeyboardCode::kF1));
    EXPECT_EQ(box + Field(), "The selected shortcut is reserved and cannot be used.[Del]*");
    // Without a window manager nobody brings the dialog back to the front.
    input::ActivateWindow(mDialog);
    Tap(Key(KeyboardCode::kTab));
    EXPECT_EQ(Field(), "[Del]");
    Bubbles().front()->UI_SetKeyboardFocus(lumui::ui::kFocusTab);
    Tap(Key(KeyboardCode::kBackspace));
    EXPECT_EQ(Field() + " " + Keys(), " 1:Ctrl+X 3:I 3:J 4:F1! 2:Del~");
    Tree().GoToCommand(3);
    Click(*Bubbles()[0]->UI_GetChild(0));
    EXPECT_EQ(Field(), "[J]");
    // A new one that is given up leaves no trace.
    const std::string keys = Keys();
    Click("AddShortcutButtonID");
    Tap(Key(KeyboardCode::kEscape));
    Tap(Key(KeyboardCode::kBackspace));
    EXPECT_EQ(Field() + " " + Keys(), "[J] " + keys);
    mDialog->EndDialog(UI_Dialog::kCancel);
  });
}

TEST_F(ShortcutDialogs, StandInTheirLeastSizeAndLarger) {
  WriteSet("Mine", Mapping("Cut", "M"));
  Run("Mine", [&] {
    for (const float width : {425.0f, 900.0f}) {
      mDialog->SetBounds({40, 40, width, width == 425 ? 100 : 700.0f});
      const auto& bounds = mDialog->GetBounds();
      EXPECT_EQ(bounds.height, width == 425 ? 339 : 700);
      float right = 0;
      for (std::size_t i = 0; i < mDialog->GetRoot()->UI_GetChildCount(); ++i) {
        const auto& rect = mDialog->GetRoot()->UI_GetChild(i)->UI_GetLocalRectF();
        EXPECT_TRUE(rect.x >= 0 && rect.width > 0 && rect.height > 0 &&
                    rect.y + rect.height <= bounds.height);
        right = std::max(right, rect.x + rect.width);
      }
      EXPECT_EQ(right, width - 12);
      EXPECT_GE(Tree().UI_GetLocalRectF().height, width == 425 ? 120 : 480);
    }
    float command = 0;
    float shortcut = 0;
    float description = 0;
    mDialog->SetColumnWidths(111, 222, 333);
    mDialog->GetColumnWidths(command, shortcut, description);
    EXPECT_EQ(command + shortcut, 333);
    EXPECT_GT(description, 500);
    // Many keys take several lines, and the one that is edited is in view.
    Tree().GoToCommand(1);
    for (const char letter : {'A', 'B', 'C', 'D', 'E', 'F', 'G', 'H'}) {
      Click("AddShortcutButtonID");
      Tap(Letter(letter), lumui::ui::kModCommand | lumui::ui::kModShift | lumui::ui::kModAlt);
    }
    EXPECT_GE(Bubbles().back()->UI_GetLocalRectF().y, 5 * TextBubble::kHeight);
    lumcore::geom::PointT<int> top;
    Bubbles().back()->UI_LocalToGlobal(top);
    EXPECT_LE(static_cast<float>(top.y) + TextBubble::kHeight,
              Tree().UI_GetLocalRectF().y + Tree().UI_GetLocalRectF().height);
    EXPECT_EQ(Popup(), "Mine *");
    EXPECT_TRUE(IsEnabled("DeleteKeysetButtonID"));
    // The user goes to another set, and thinks again.
    int asked = 0;
    lumui::dialogs::SetDialogAnswerer([&](const lumui::dialogs::MessageDialogArgs& inArgs) {
      ++asked;
      return static_cast<int>(inArgs.buttons.size()) - 1;
    });
    mDialog->GetNodeForID("KeysetPopupID")->UI_SetKeyboardFocus(lumui::ui::kFocusTab);
    Tap(Key(KeyboardCode::kUpArrow));
    EXPECT_EQ(Popup() + std::to_string(asked), "Mine *1");
    EXPECT_EQ(Bubbles().size(), 9u);
    mDialog->EndDialog(UI_Dialog::kOK);
  });
  EXPECT_EQ(mSetName, "Mine");
}

TEST_F(ShortcutDialogs, FieldsCaptureOneKey) {
  const boost::intrusive_ptr<lumui::ui::OS_Window> window(new lumui::ui::OS_Window(nullptr));
  const boost::intrusive_ptr<sharedui::ShortcutField> field(new sharedui::ShortcutField);
  field->UI_SetLocalRectF({10, 10, 100, 24});
  window->UI_SetLocalRectF({40, 30, 200, 100});
  window->UI_AddChild(field);
  window->UI_Show(true);
  input::ActivateWindow(window.get());
  KeyboardCode code;
  ModifierKeys modifiers;
  EXPECT_FALSE(field->GetKeyboardCode(code, modifiers));
  field->UI_SetEnabled(false);
  input::ClickMouse(*window, input::Position(20, 20));
  EXPECT_FALSE(field->UI_HasKeyboardFocus());
  field->UI_SetEnabled(true);
  input::ClickMouse(*window, input::Position(20, 20));
  EXPECT_TRUE(field->UI_HasKeyboardFocus());
  input::TapKey(*window, Letter('K'), ModifierKeys(6));
  for (const unsigned short key :
       {KeyboardCode::kSpace, KeyboardCode::kShiftKey, KeyboardCode::kTab}) {
    input::TapKey(*window, Key(key));
    EXPECT_TRUE(field->GetKeyboardCode(code, modifiers) && code == Letter('K') &&
                modifiers.GetBits() == 6);
  }
  EXPECT_EQ(U8(field->GetText()), "Ctrl+Shift+K");
  // Through an archive and back.
  auto& registry = lumui::ui::UI_NodeAdapterRegistry::Get();
  registry.Register(std::make_unique<sharedui::ShortcutFieldAdapter>());
  lumui::ui::UI_NodeBuilder::NodeMap nodes;
  const auto copy =
      lumui::ui::UI_NodeBuilder(lumui::ui::UI_NodeBuilder::Write(*field)).Build(nullptr, nodes);
  EXPECT_EQ(U8(dynamic_cast<sharedui::ShortcutField&>(*copy).GetText()), "Ctrl+Shift+K");
  lumui::ui::UI_NodeAdapterRegistry::Reset();
  window->UI_DestroyWindow();
}

}  // namespace vek::test
