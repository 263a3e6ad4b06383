// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <iostream>
#include <list>
#include <string>

#include "lumcore/utility/StringUtils.h"
#include "vek/uisupport/CommandHandler.h"
#include "vek/undo/Deed.h"
#include "vek/undo/MultiUndoer.h"

using lumcore::UTF16String;
using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;
using Lines = std::list<std::string>;

enum Command { kAddLine = 1, kUndo, kRedo, kPrint };

// One edit: it knows how to do and undo itself, and what to call itself in a menu.
class AddLineDeed : public vek::undo::Deed {
 public:
  AddLineDeed(Lines& ioLines, const std::string& inLine)
      : Deed(true, false, ToUTF16("Add " + inLine)), mLines(ioLines), mLine(inLine) {}

 private:
  void RedoSelf() override { mLines.push_back(mLine); }
  void UndoSelf() override { mLines.pop_back(); }

  Lines& mLines;
  std::string mLine;
};

// A page of lines that takes commands.
class Page : public vek::uisupport::CommandHandler {
 public:
  bool DoHandleCommand(int inCommand) override {
    switch (inCommand) {
      case kAddLine: {
        const std::string line = "line " + std::to_string(mLines.size() + 1);
        mUndoer->PostDeed(std::auto_ptr<vek::undo::Deed>(new AddLineDeed(mLines, line)));
        return true;
      }
      case kUndo:
        mUndoer->Undo();
        return true;
      case kRedo:
        mUndoer->Redo();
        return true;
      default:
        return false;  // a parent or the default handler may know it
    }
  }

  bool DoCommandEnabled(int inCommand, bool& ioEnabled, bool&, UTF16String& ioTitle) override {
    if (inCommand != kUndo) return false;
    vek::undo::Deed* const deed = mUndoer->CouldUndoDeed();
    ioEnabled = deed && deed->CanUndo();
    if (ioEnabled) ioTitle = deed->GetUndoDescription();
    return true;
  }

  Lines mLines;
  boost::intrusive_ptr<vek::undo::MultiUndoer> mUndoer{new vek::undo::MultiUndoer(100)};
};

int main() {
  Page page;
  page.SetAsCurrentCommandHandler(true);
  for (int command : {kAddLine, kAddLine, kUndo, kRedo, kUndo, kUndo, kPrint}) {
    const bool taken = Page::CallCommandChain(command);
    bool enabled = false, checked = false;
    UTF16String title;
    Page::CallEnablementChain(kUndo, enabled, checked, title);
    std::cout << (taken ? "done" : "nobody knows it") << "; lines:";
    for (const std::string& line : page.mLines)
      std::cout << " [" << line << "]";
    std::cout << "; menu: " << (enabled ? ToStdString(title) : "nothing to undo") << "\n";
  }
}
