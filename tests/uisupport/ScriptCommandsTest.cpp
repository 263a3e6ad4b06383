// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <stdexcept>

#include "support/RecordingHandler.h"
#include "support/RunningScripts.h"
#include "vek/uisupport/CommandRegistry.h"

namespace vek::uisupport {
namespace {

using namespace test_support;

using lumcore::utility::ToUTF16;

constexpr int kCut = 7;
constexpr int kCutAll = 9;

// A chain leaf -> root with an attachment on each, and a log of what all of them are asked and told
// in one order with the calls of the scripts.
class ScriptCommands : public RunningScripts {
 protected:
  ScriptCommands() {
    auto& registry = CommandRegistry::Get();
    registry.LoadFromBuffer({}, false);
    registry.RegisterCommand(kCutAll, ToUTF16("Edit.Cut.all"), ToUTF16("Takes all"), false);
    registry.RegisterCommand(kCut, ToUTF16("Edit.Cut"), ToUTF16("Cut"), ToUTF16("Takes it"), false);
    AddFunction("log", [this](const auto& inArguments) {
      mEvents.Add(AsText(inArguments.at(0)));
      return lumscripting::ScriptValue();
    });
    mLeaf.AddAttachment(&mOnLeaf);
    mRoot.AddAttachment(&mOnRoot);
    mLeaf.SetAsCurrentCommandHandler(true);
    for (RecordingHandler* handler : {&mLeaf, &mRoot}) {
      handler->EnableScriptEvents([this, handler] {
        mEvents.Add("fire:" + handler->mName);
        return mRunner->FindObject(ToUTF16("Command"));
      });
    }
    mEvents.Take();
  }
  ~ScriptCommands() override {
    CommandHandlerBase::ResetCommandChain();
    CommandRegistry::Get().LoadFromBuffer({}, false);
  }
  // What the script came to, behind all that happened for it.
  std::string Do(const std::string& inProgram) {
    Run(inProgram);
    const std::string result = mLog.back();
    Run("");  // behind the events
    const std::string events = mEvents.Take();
    return events + (events.empty() ? "" : " ") + result;
  }
  void Listen() {
    Run("Command.addEventListener(CommandEvent.EVENT_INVOKE_COMMAND,"
        " e => log('heard:' + [e.name, e.title, e.description].join('/')))");
  }

  EventLog mEvents;
  RecordingHandler mRoot{mEvents, "root"};
  RecordingHandler mLeaf{mEvents, "leaf", &mRoot};
  RecordingAttachment mOnLeaf{mEvents, "on-leaf"};
  RecordingAttachment mOnRoot{mEvents, "on-root"};
};

TEST_F(ScriptCommands, EachLevelTellsScriptsBeforeItsAttachmentsAreAsked) {
  const std::string asked = "ask:on-leaf ask:leaf ask:on-root ask:root ";
  mRoot.mAnswer = true;
  // Without a listener no target is asked for.
  EXPECT_EQ(Do("Command.invokeCommand(Command.COMMAND_EDIT_CUT)"),
            asked + asked + "run:on-leaf run:leaf run:on-root run:root true");
  Listen();
  EXPECT_EQ(Do("Command.invokeCommand('Edit.Cut')"),
            asked + asked +
                "fire:leaf run:on-leaf run:leaf fire:root run:on-root run:root "
                "heard:Edit.Cut/Cut/Takes it heard:Edit.Cut/Cut/Takes it true");
  mOnLeaf.mAnswer = true;
  EXPECT_EQ(Do("Command.isCommandIDEnabled(7)"), "ask:on-leaf true");
  EXPECT_EQ(Do("Command.invokeCommandByID(9)"),
            "ask:on-leaf ask:on-leaf fire:leaf run:on-leaf heard:Edit.Cut.all//Takes all true");
  mLeaf.DisableScriptEvents();
  mOnLeaf.mAnswer = mRoot.mAnswer = false;
  CommandHandlerBase::SetDefaultCommandHandler(&mRoot);
  // A handler that is asked twice tells twice. An id that nobody has registered has no texts.
  CommandHandlerBase::CallCommandChain(8);
  EXPECT_EQ(Do(""),
            "run:on-leaf run:leaf fire:root run:on-root run:root fire:root run:on-root run:root "
            "heard:// heard:// undefined");
}

TEST_F(ScriptCommands, EventThatCannotBeAimedDoesNotTouchTheCommand) {
  Listen();
  mLeaf.EnableScriptEvents([]() -> boost::intrusive_ptr<lumcore::utility::RefCountedObject> {
    throw std::runtime_error("no target");
  });
  struct NoScriptObject : lumcore::utility::RefCountedObject {};
  mRoot.EnableScriptEvents([] { return boost::intrusive_ptr(new NoScriptObject); });
  mRoot.mAnswer = true;
  EXPECT_TRUE(CommandHandlerBase::CallCommandChain(kCut));
  EXPECT_EQ(Do(""), "run:on-leaf run:leaf run:on-root run:root undefined");
  mLog.resize(mLog.size() - 2);
  EXPECT_EQ(mLog.back(), "failed: no target");
}

TEST_F(ScriptCommands, AnswerWhetherTheCommandWasEnabled) {
  // Who invokes hears whether the command was enabled, whether or not the chain knew it.
  const struct {
    bool enabled, answers;
    const char* asked;
    const char* invoked;
  } rows[] = {
      {true, true, "ask:on-leaf ask:leaf true",
       "ask:on-leaf ask:leaf ask:on-leaf ask:leaf run:on-leaf run:leaf true"},
      {false, true, "ask:on-leaf ask:leaf false", "ask:on-leaf ask:leaf false"},
      {true, false, "ask:on-leaf ask:leaf true", "ask:on-leaf ask:leaf ask:on-leaf ask:leaf true"},
  };
  mLeaf.SetParentHandler(nullptr);
  mEvents.Take();
  for (const auto& row : rows) {
    mOnLeaf.mEnabled = false;
    mLeaf.mEnabled = row.enabled;
    mLeaf.mAnswer = row.answers;
    EXPECT_EQ(Do("Command.isCommandEnabled('Edit.Cut')"), row.asked);
    EXPECT_EQ(Do("Command.invokeCommandByID(7)"), row.invoked);
    EXPECT_EQ(Do("Command.invokeCommand('no such name')"), row.invoked) << "as id 0";
  }
  // Enabled, and then nobody takes it.
  mLeaf.mAnswer = true;
  mOnLeaf.mOnRun = [this] { mLeaf.mAnswer = false; };
  EXPECT_EQ(Do("Command.invokeCommandByID(7)"),
            "ask:on-leaf ask:leaf ask:on-leaf ask:leaf run:on-leaf run:leaf true");
  mLeaf.mAnswer = true;
  mOnLeaf.mOnRun = [] { throw std::runtime_error("no scissors"); };
  EXPECT_EQ(Do("1;\nCommand.invokeCommandByID(7)"),
            "ask:on-leaf ask:leaf ask:on-leaf ask:leaf run:on-leaf "
            "failed: test.js:2: Error: no scissors");
  EXPECT_EQ(Do("Command.invokeCommand(7)"),
            "failed: test.js:1: TypeError: Command.invokeCommand: command must be a string");
  EXPECT_EQ(Do("Command.isCommandIDEnabled('7')"),
            "failed: test.js:1: TypeError: Command.isCommandIDEnabled: commandID must be an "
            "integer");
}

TEST_F(ScriptCommands, ConstantsAreThoseOfTheCommandsThatWereThereBeforeTheFirstScript) {
  auto& registry = CommandRegistry::Get();
  registry.RegisterCommand(12,
                           ToUTF16("file.stra\xC3\x9F"
                                   "e"),
                           ToUTF16("of 12"), false);
  registry.RegisterCommand(3, ToUTF16("file_STRASSE"), ToUTF16("of 3"), false);
  Run("");
  registry.RegisterCommand(13, ToUTF16("too.late"), {}, false);
  EXPECT_EQ(Do("Object.keys(Command).filter(k => k.startsWith('COMMAND_'))"
               ".map(k => k + '=' + Command[k]).join(' ')"),
            "COMMAND_FILE_STRASSE=file.stra\xC3\x9F"
            "e COMMAND_EDIT_CUT=Edit.Cut COMMAND_EDIT_CUT_ALL=Edit.Cut.all");
  EXPECT_NE(Do("help('Command')").find("\n  COMMAND_EDIT_CUT = \"Edit.Cut\"\n    Takes it\n"),
            std::string::npos);
}

}  // namespace
}  // namespace vek::uisupport
