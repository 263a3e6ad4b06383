// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/CommonFileDialog.h"

#include <iterator>
#include <limits>

#include "lumcore/config/ThrowError.h"
#include "lumcore/filesupport/FileError.h"
#include "lumcore/utility/ScopedValue.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/controls/UI_ScrollView.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/Cursors.h"
#include "lumui/ui/KeyboardEvent.h"
#include "lumui/ui/UI_NodeAdapter.h"
#include "lumui/utility/ResourceManager.h"
#include "vek/selection/ActiveManager.h"
#include "vek/selection/Manager.h"
#include "vek/sharedui/UIMultiTreeList.h"
#include "vek/sharedui/UIMultiTreeListView.h"
#include "vek/sharedui/UIShellEntries.h"
#include "vek/sharedui/UIShellIcons.h"
#include "vek/sharedui/UIShellTrackView.h"
#include "vek/sharedui/UIShellTrackViewAdapter.h"
#include "vek/trackview/PlatformScrollView.h"
#include "vek/utility/VekResources.h"

namespace vek::sharedui {

using lumcore::UTF16String;
using lumcore::filesupport::Dir;
using lumcore::filesupport::File;
using lumui::controls::UI_InteractiveControlChangedMessage;
using lumui::ui::UI_NodeAdapterRegistry;

namespace {

enum Column : unsigned int { kName, kSize, kType, kDateModified };

// The row that says why there are no files.
constexpr unsigned int kNoteID = std::numeric_limits<unsigned int>::max();

[[noreturn]] void ThrowWrongType() {
  lumcore::config::ThrowError(
      "$$$/lumcore/utility/Error/InvalidTypeConversion=Invalid type conversion.");
}

// Null stays null; what is of another class is a failure.
template <class Kind>
Kind* As(lumui::ui::UI_Node* inNode) {
  auto* const node = dynamic_cast<Kind*>(inNode);
  if (inNode && !node) ThrowWrongType();
  return node;
}

// In units; the names get what the others leave.
float GetFirstWidth(unsigned short inColumn) {
  constexpr float kWidths[] = {200, 48, 52, 108};
  return inColumn < std::size(kWidths) ? kWidths[inColumn] : 100;
}

// A host may have registered them for archives of its own.
lumui::utility::ResourceManager const& GetResources() {
  UI_NodeAdapterRegistry& adapters = UI_NodeAdapterRegistry::Get();
  if (!adapters.Find("vek::UIShellTrackView"))
    adapters.Register(std::make_unique<UIShellTrackViewAdapter>());
  if (!adapters.Find("vek::UIMultiTreeList")) adapters.Register(NewUIMultiTreeListAdapter());
  return *utility::GetResourceManager();
}

}  // namespace

CommonFileDialog::CommonFileDialog(lumui::drawbot::SupplierInterface const* inSupplier,
                                   UTF16String const& inTitle, UTF16String const& inOKText,
                                   Dir const* inInitialDir, File const* inInitialFile,
                                   lumui::ui::UI_Node* inParent)
    : UI_ArchivedDialog(inSupplier, GetResources(), lumcore::utility::ToUTF16("CommonFile"),
                        inTitle, inParent),
      mOKButton(As<lumui::controls::UI_TextButton>(GetNodeForID("OKButton").get())),
      mCancelButton(As<lumui::controls::UI_TextButton>(GetNodeForID("CancelButton").get())),
      mFilesList(As<UIMultiTreeList>(GetNodeForID("FilesList").get())),
      mFilenameCombo(As<lumui::controls::UI_Popup_Combo>(GetNodeForID("FilenameCombo").get())) {
  SetButtons(mOKButton, mCancelButton);
  if (mOKButton) mOKButton->SetText(inOKText);
  if (mFilesList) {
    UIMultiTreeListView& list = *mFilesList->GetTreeControl();
    list.SetController(this);
    list.SetIsFlatList(true);
    for (unsigned short column = 0; column < list.GetNumberOfColumns(); ++column)
      list.SetColumnWidth(column, GetFirstWidth(column));
    list.BuildHierarchy();
    OnSizeChanged(list);
  }
  SetUpFolders(inInitialDir);
  SetUpFilename();
  if (mFilesList && inInitialFile && inInitialFile->Exists()) SelectInitialFile(*inInitialFile);
}

// Somebody may hold the nodes for longer.
CommonFileDialog::~CommonFileDialog() {
  if (mFilesList) mFilesList->GetTreeControl()->SetController(nullptr);
  if (mOnTyped) mOnTyped->clear();
}

void CommonFileDialog::SetUpFolders(Dir const* inInitialDir) {
  auto* const scroll = As<lumui::controls::UI_ScrollView>(GetNodeForID("FolderTree").get());
  if (!scroll) return;
  auto* const view = As<trackview::LUMPlatformView>(scroll->GetContentNode());
  if (!view || !view->GetTrackView() || view->GetTrackView()->GetOverlays().empty()) return;
  mFolderTree = dynamic_cast<UIShellTrackView*>(view->GetTrackView()->GetOverlays().front());
  if (!mFolderTree) ThrowWrongType();
  if (selection::Manager* const manager = mFolderTree->GetSelectionManager())
    manager->GetSelectionChangeNotifier()->AddListener(this);
  if (inInitialDir) mFolderTree->ExpandAndSelectNode(*inInitialDir);
}

void CommonFileDialog::SetUpFilename() {
  if (!mFilenameCombo) return;
  mFilenameCombo->SetPopupType(lumui::controls::UI_Popup::kBelowItem);
  mFilenameCombo->SetEditable(true);
  mOnChanged.reset(new ChangedFunction([](UI_InteractiveControlChangedMessage*) {}));
  mFilenameCombo->NotifyWhenChanged(mOnChanged);
  mOnTyped.reset(new ChangedFunction([this](UI_InteractiveControlChangedMessage* inMessage) {
    if (inMessage->GetChange() == UI_InteractiveControlChangedMessage::kChanged) NameTyped();
  }));
  mFilenameCombo->NotifyWhenChangedInteractively(mOnTyped);
}

void CommonFileDialog::SelectInitialFile(File const& inFile) {
  UIMultiTreeListView& list = *mFilesList->GetTreeControl();
  const UTF16String name = inFile.GetName();
  for (auto const& entry : list.GetRootEntry()->GetChildren()) {
    auto* const row = dynamic_cast<UIMultiTreeListNode*>(entry.get());
    if (!row || row->GetID() >= mFiles.size() || mFiles[row->GetID()].GetName() != name) continue;
    SelectRow(*row);
    return;
  }
}

void CommonFileDialog::SelectRow(UIMultiTreeListNode& inRow) {
  UIMultiTreeListView& list = *mFilesList->GetTreeControl();
  const std::list<selection::Node*> nodes(1, &inRow);
  list.GetSelectionManager()->Select(nodes, selection::eDeselectOthers, selection::eSendMessages);
  list.RevealItemIfNotInView(&inRow);
}

Dir CommonFileDialog::GetDirectory() const {
  return mCurrentFolder ? *mCurrentFolder : Dir();
}

unsigned int CommonFileDialog::GetSelectedFileCount() const {
  return static_cast<unsigned int>(mSelectedRows.size());
}

bool CommonFileDialog::GetSelectedFile(unsigned int inIndex, File& outFile) const {
  if (inIndex >= mSelectedRows.size()) return false;
  outFile = mFiles[mSelectedRows[inIndex]];
  return true;
}

bool CommonFileDialog::UserTypedFilename() const {
  return mUserTyped;
}

UTF16String CommonFileDialog::GetFilename() const {
  return mFilenameCombo ? mFilenameCombo->GetValueString() : UTF16String();
}

// The lists in here make themselves the active selection when they get the keyboard.
int CommonFileDialog::RunModal() {
  const boost::intrusive_ptr<selection::Manager> active(selection::GetActiveManager());
  struct StPutBack {
    selection::Manager* manager;
    ~StPutBack() { selection::SetActiveManager(manager); }
  } const putBack{active.get()};
  return UI_ArchivedDialog::RunModal();
}

bool CommonFileDialog::IsOwnList(UIMultiTreeListView const& inView) const {
  return mFilesList && mFilesList->GetTreeControl() == &inView;
}

void CommonFileDialog::GetTextForNode(UIMultiTreeListView& inView,
                                      UIMultiTreeListNode const& inNode, unsigned int inColumn,
                                      UTF16String& outText) {
  if (!IsOwnList(inView) || !mCurrentFolder) return;
  if (inNode.GetID() == kNoteID && inColumn == kName) outText = mReadError;
  if (inNode.GetID() >= mFiles.size()) return;
  switch (inColumn) {
    case kName:
      outText = mFiles[inNode.GetID()].GetName();
      return;
    case kSize:
    case kType:
    case kDateModified:
      return;  // blank so far
    default:
      outText = lumcore::utility::ToUTF16("Error!");
  }
}

boost::intrusive_ptr<lumui::drawbot::ImageInterface> CommonFileDialog::GetIconForNode(
    UIMultiTreeListView& inView, UIMultiTreeListNode const& inNode) {
  if (!IsOwnList(inView) || inNode.GetID() >= mFiles.size()) return nullptr;
  return ImageFileIcon(mFiles[inNode.GetID()], *UI_GetDrawSupplier());
}

bool CommonFileDialog::IsSelectable(UIMultiTreeListView&, UIMultiTreeListNode const& inNode) {
  return inNode.GetID() != kNoteID;
}

bool CommonFileDialog::OnDoubleClick(UIMultiTreeListView& inView, UIMultiTreeListNode& inNode) {
  if (!IsOwnList(inView) || inNode.GetID() >= mFiles.size() || !mOKButton) return false;
  if (mOKButton->UI_IsEnabled()) mOKButton->Press();
  return true;
}

// Lists leave it alone where nothing is selected, and who has no pointer would be stuck there.
bool CommonFileDialog::OnKeyEvent(UIMultiTreeListView& inView,
                                  lumui::ui::KeyboardEvent const& inEvent) {
  const bool isDown = inEvent.IsActionKeyDown() && inEvent.GetCode().GetControlCode(false) ==
                                                       lumui::ui::KeyboardCode::kDownArrow;
  if (!isDown || !IsOwnList(inView) || mFiles.empty() || inView.NumSelectedEntries() > 0)
    return false;
  SelectRow(*static_cast<UIMultiTreeListNode*>(inView.GetRootEntry()->GetChildren().front().get()));
  return true;
}

void CommonFileDialog::OnSelectionChanged(UIMultiTreeListView& inView,
                                          std::list<UIMultiTreeListNode*> const& inSelected) {
  if (!IsOwnList(inView) || mIsEmptying) return;
  mUserTyped = false;
  mSelectedRows.clear();
  for (UIMultiTreeListNode const* const row : inSelected) {
    if (row->GetID() >= mFiles.size()) continue;  // one that a host has put in
    mSelectedRows.push_back(row->GetID());
    if (mCurrentFolder && mFilenameCombo)
      mFilenameCombo->SetValueString(mFiles[row->GetID()].GetName(), true);
  }
}

// The names grow and shrink with the list. Where somebody has made the columns wider than the list,
// they stay.
void CommonFileDialog::OnSizeChanged(UIMultiTreeListView& inView) {
  if (!IsOwnList(inView) || inView.GetNumberOfColumns() == 0) return;
  // Beside a bar, whether there is need of one or not.
  auto const& scroll = *mFilesList->GetListScrollView();
  const float width =
      scroll.UI_GetLocalRectF().width -
      (scroll.GetScrollBarY() ? scroll.GetScrollBarY()->UI_GetLocalRectF().width : 0);
  float all = 0;
  for (unsigned short column = 0; column < inView.GetNumberOfColumns(); ++column)
    all += inView.GetColumnWidth(column);
  const bool fits = all <= mListWidth || mListWidth == 0;
  mListWidth = width;
  const float names = inView.GetColumnWidth(kName) + width - all;
  if (fits && names >= GetFirstWidth(kName)) inView.SetColumnWidth(kName, names);
}

void CommonFileDialog::ListenToMessage(const selection::SelectionChangeMessage& inMessage) {
  selection::Manager const& manager = *mFolderTree->GetSelectionManager();
  if (inMessage.GetAffectedNodes().empty() || manager.SelectedSelectables().empty()) {
    if (mOKButton) mOKButton->UI_SetDisabled(true);
    return;
  }
  EmptyList();
  for (selection::Node* const node : inMessage.GetAffectedNodes()) {
    if (!manager.Selected(node)) continue;
    auto const* const entry = dynamic_cast<UIShellHierarchyEntryBase*>(node);
    if (!entry) break;
    Dir const* const dir = entry->GetDir();
    mCurrentFolder.reset(dir ? new Dir(*dir) : nullptr);
    if (mCurrentFolder && mCurrentFolder->Exists()) ListFiles();
    break;
  }
  if (mOKButton) mOKButton->UI_SetEnabled(mCurrentFolder != nullptr);
}

// What was typed was typed, though the rows that were selected go.
void CommonFileDialog::EmptyList() {
  const lumcore::utility::StScopedValue<bool> emptying(mIsEmptying, true);
  if (mFilesList) mFilesList->GetTreeControl()->RemoveItems();
  mSelectedRows.clear();
  mFiles.clear();
  mReadError.clear();
}

void CommonFileDialog::ListFiles() {
  const lumui::ui::StBusyCursor busy;
  std::vector<UIMultiTreeListView::NodeP> rows;
  try {
    for (auto file = mCurrentFolder->BeginFiles(false); file != mCurrentFolder->EndFiles();
         ++file) {
      rows.emplace_back(new UIMultiTreeListNode(static_cast<unsigned int>(mFiles.size())));
      mFiles.push_back(*file);
    }
  } catch (const lumcore::filesupport::FileError& error) {
    // For the user, who sees it in the list.
    mReadError = DescribeUnreadable(error);
    rows.emplace_back(new UIMultiTreeListNode(kNoteID));
  }
  if (mFilesList) mFilesList->GetTreeControl()->InsertItems(rows);
}

// A text that is an item but for its case takes that item, where it is as long.
void CommonFileDialog::NameTyped() {
  if (!mFilenameCombo) return;
  const UTF16String text = mFilenameCombo->GetValueString();
  mUserTyped = true;
  int item = mFilenameCombo->FindStringCaseInsensitive(text);
  if (item == -1 || mFilenameCombo->GetItemString(item).size() != text.size())
    item = mFilenameCombo->AddItem(text);
  mFilenameCombo->SetValue(item);
}

}  // namespace vek::sharedui
