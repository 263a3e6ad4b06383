// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string>
#include <utility>

#include "lumcore/utility/StringUtils.h"
#include "support/EventLog.h"
#include "vek/uisupport/CommandAttachment.h"
#include "vek/uisupport/CommandHandler.h"

namespace test_support {

// What a handler or an attachment does when it is asked. It logs "run:a", "ask:a" and "end:a", then
// runs what the test has put there, then answers. Asked for enablement it first sets enabled and
// adds its name to the title, so that what a walk leaves behind can be seen.
struct RecordedAnswers {
  bool Record(const char* inWhat, const std::function<void()>& inAction) {
    mLog.Add(inWhat + mName);
    const bool answer = mAnswer;
    const std::function<void()> action = inAction;  // a copy, since it may delete this
    if (action) action();
    return answer;
  }
  bool RecordAsking(bool& outEnabled, lumcore::UTF16String& ioTitle) {
    outEnabled = mEnabled;
    ioTitle += lumcore::utility::ToUTF16(mName);
    return Record("ask:", mOnAsk);
  }

  EventLog& mLog;
  const std::string mName;
  bool mAnswer = false;
  bool mEnabled = true;
  std::function<void()> mOnRun{};
  std::function<void()> mOnAsk{};
  std::function<void()> mOnEnd{};
};

class RecordingHandler : public vek::uisupport::CommandHandler, public RecordedAnswers {
 public:
  RecordingHandler(EventLog& ioLog, const std::string& inName, CommandHandler* inParent = nullptr)
      : CommandHandler(inParent), RecordedAnswers{ioLog, inName} {}

  std::function<void()> mOnGained;
  std::function<void()> mOnLost;

 protected:
  bool DoHandleCommand(int) override { return Record("run:", mOnRun); }
  bool DoCommandEnabled(int, bool& outEnabled, bool&, lumcore::UTF16String& ioTitle) override {
    return RecordAsking(outEnabled, ioTitle);
  }
  bool DoEndHoldCommand(int) override { return Record("end:", mOnEnd); }
  void OnParentHandlerSet(CommandHandler* inOld, CommandHandler* inNew) override {
    mLog.Add(Name(inOld) + "=>" + Name(inNew) + "(" + Name(GetParentHandler()) + ")");
  }
  void DoGainedCommandFocus() override { Record("gained:", mOnGained); }
  void DoLostCommandFocus() override { Record("lost:", mOnLost); }

 private:
  static std::string Name(CommandHandler* inHandler) {
    return inHandler ? static_cast<RecordingHandler*>(inHandler)->mName : "none";
  }
};

class RecordingAttachment : public vek::uisupport::CommandAttachment, public RecordedAnswers {
 public:
  RecordingAttachment(EventLog& ioLog, const std::string& inName)
      : RecordedAnswers{ioLog, inName} {}

 protected:
  bool DoHandleCommand(int) override { return Record("run:", mOnRun); }
  bool DoCommandEnabled(int, bool& outEnabled, bool&, lumcore::UTF16String& ioTitle) override {
    return RecordAsking(outEnabled, ioTitle);
  }
  bool DoEndHoldCommand(int) override { return Record("end:", mOnEnd); }
};

}  // namespace test_support
