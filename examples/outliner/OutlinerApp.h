// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <functional>
#include <memory>

#include "OutlineWindow.h"
#include "vek/uisupport/CommandHandler.h"

namespace outliner {

// The host's part of the application: the end of every command chain and the owner of the window.
// It reports what handlers let out, and claims the keys of the key map from the menus' mnemonics.
// One at a time, made behind the application object of the window system and gone before it.
class OutlinerApp final : public vek::uisupport::CommandHandler {
 public:
  // inQuit is called when the last window has closed.
  explicit OutlinerApp(std::function<void()> inQuit);
  ~OutlinerApp() override;

  // Shows the document in a window, in place of one that has closed.
  OutlineWindow& Show(std::unique_ptr<OutlineDocument> inDocument);
  OutlineWindow* GetWindow() { return mWindow.get(); }  // null before Show

 protected:
  bool DoHandleCommand(int inCommand) override;
  bool DoCommandEnabled(int inCommand, bool& ioEnabled, bool& ioChecked,
                        lumcore::UTF16String& ioTitle) override;

 private:
  OutlineWindow* FindOpenWindow() const;  // null when there is none, or it has closed

  std::function<void()> mQuit;
  boost::intrusive_ptr<OutlineWindow> mWindow;
};

}  // namespace outliner
