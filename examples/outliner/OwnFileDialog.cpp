// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OwnFileDialog.h"

#include <boost/intrusive_ptr.hpp>
#include <optional>

#include "Texts.h"
#include "lumcore/filesupport/UserDirs.h"
#include "lumcore/proplist/PropList.h"
#include "lumcore/proplist/Utils.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/dialogs/MessageDialog.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "vek/app/App.h"
#include "vek/sharedui/CommonFileDialog.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::filesupport::Dir;
using lumcore::filesupport::File;
using lumcore::utility::ToUTF16;
using lumui::dialogs::FileDialogArgs;

namespace {

constexpr const char* kUsesKey = "usesOwnFileDialog";
constexpr const char* kBoundsKey = "fileDialogBounds";

lumcore::proplist::PropList* FindSettings() {
  auto* const app = vek::app::App::GetApp();
  return app ? &app->GetAppSettings() : nullptr;
}

bool IsFullPath(const UTF16String& inText) {
  return !inText.empty() && inText[0] == '/';
}

class OutlineFileDialog final : public vek::sharedui::CommonFileDialog {
 public:
  OutlineFileDialog(const FileDialogArgs& inArgs, const Dir& inFolder, const File& inFile)
      : CommonFileDialog(lumui::drawbot::GetDefaultSupplier(), inArgs.title,
                         Localized(inArgs.kind == FileDialogArgs::kOpen
                                       ? "$$$/outliner/OwnFileDialog/Open=Open"
                                       : "$$$/outliner/OwnFileDialog/Save=Save"),
                         &inFolder, &inFile, inArgs.owner),
        mArgs(inArgs) {
    // The list leaves out no file, and what is an outline shows when it is opened.
    const auto type = GetNodeForID("FileTypeCombo");
    if (auto* const combo = dynamic_cast<lumui::controls::UI_Popup_Combo*>(type.get())) {
      combo->SetItems({Localized("$$$/outliner/Files/All=All files")});
      combo->SetValue(0);
    }
    if (inArgs.kind == FileDialogArgs::kOpen) return;
    const auto name = GetNodeForID("FilenameCombo");
    if (auto* const combo = dynamic_cast<lumui::controls::UI_Popup_Combo*>(name.get()))
      combo->SetValueString(inFile.GetName(), false);
  }
  ~OutlineFileDialog() override = default;

  // What stands in the name field, in the folder that is shown unless it is a full path. Nothing
  // where it is empty.
  std::optional<File> GetFile() const {
    UTF16String path = GetFilename();
    if (path.empty()) return std::nullopt;
    if (!IsFullPath(path)) path = GetDirectory().FullPath() + ToUTF16("/") + path;
    const File file(path);
    if (file.Exists() || !file.GetExtension().empty() || mArgs.saveExtension.empty()) return file;
    return File(path + ToUTF16(".") + mArgs.saveExtension);
  }

 protected:
  bool DoMayEnd(int inResult) override {
    if (inResult != kOK) return true;
    const std::optional<File> file = GetFile();
    if (!file) {
      Ask("$$$/outliner/OwnFileDialog/NoName=Choose a file, or type a name.", {}, false);
      return false;
    }
    if (mArgs.kind == FileDialogArgs::kSave) {
      return !file->Exists() ||
             Ask("$$$/outliner/OwnFileDialog/Replace=There is a file \"@0\" already. Replace it?",
                 file->FullPath(), true);
    }
    if (file->Exists()) return true;
    Ask("$$$/outliner/OwnFileDialog/Missing=There is no file \"@0\".", file->FullPath(), false);
    return false;
  }

 private:
  // Whether the user agrees, where that is a question.
  bool Ask(const char* inKey, const UTF16String& inPath, bool inIsQuestion) {
    lumui::dialogs::MessageDialogArgs box;
    box.title = mArgs.title;
    box.text = lumcore::utility::ReplaceInString(Localized(inKey), {inPath});
    box.icon = inIsQuestion ? lumui::dialogs::MessageIcon::kQuestion
                            : lumui::dialogs::MessageIcon::kInformation;
    if (inIsQuestion) {
      box.buttons = {Localized("$$$/outliner/OwnFileDialog/ReplaceButton=Replace"),
                     Localized("$$$/outliner/OwnFileDialog/Cancel=Cancel")};
      box.cancelButton = 1;
    }
    box.owner = this;
    return lumui::dialogs::RunMessageDialog(box) == 0;
  }

  FileDialogArgs mArgs;
};

// A name alone has no folder: what is written lies in the user's documents then.
Dir FolderOf(const UTF16String& inPath) {
  if (IsFullPath(inPath)) {
    const Dir folder(inPath);
    return folder.Exists() ? folder : File(inPath).Parent();
  }
  const auto documents =
      lumcore::filesupport::FindUserDir(lumcore::filesupport::UserDir::kDocuments);
  return documents ? *documents : Dir::TempDir();
}

}  // namespace

bool UsesOwnFileDialog() {
  const auto* const settings = FindSettings();
  return settings && settings->Get(kUsesKey, false);
}

void SetUsesOwnFileDialog(bool inUses) {
  if (auto* const settings = FindSettings()) settings->Set(kUsesKey, inUses);
}

UTF16String RunOwnFileDialog(const FileDialogArgs& inArgs) {
  namespace utils = lumcore::proplist::utils;
  const boost::intrusive_ptr<OutlineFileDialog> dialog(
      new OutlineFileDialog(inArgs, FolderOf(inArgs.initialPath), File(inArgs.initialPath)));
  auto* const settings = FindSettings();
  lumcore::geom::RectT<float> bounds;
  if (settings && utils::ReadRect32(*settings, kBoundsKey, bounds) && bounds.width >= 1)
    dialog->SetBounds(bounds);
  const int result = dialog->RunModal();
  if (settings) utils::WriteRect32(*settings, kBoundsKey, dialog->GetBounds());
  const std::optional<File> file = dialog->GetFile();
  return result == lumui::ui::UI_Dialog::kOK && file ? file->FullPath() : UTF16String();
}

}  // namespace outliner
