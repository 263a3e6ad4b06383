// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>

#include "support/RecordingHandler.h"
#include "vek/uisupport/UnifiedDispatch.h"

namespace vek::uisupport {
namespace {

using namespace test_support;

using lumcore::UTF16String;
using lumcore::utility::ToStdString;

constexpr int kCommand = 42;

// A chain leaf -> middle -> root, with the attachments 1, 2 and 3 that stand in the order of their
// addresses. Nothing is current at first.
class Chain : public testing::Test {
 protected:
  ~Chain() override { CommandHandlerBase::ResetCommandChain(); }
  void Attach(CommandHandler& ioHandler) {
    for (const int index : {2, 0, 1})  // not in the order of addresses
      ioHandler.AddAttachment(&attachments[static_cast<std::size_t>(index)]);
  }
  // The log, and the answer behind it.
  std::string Answer(bool inAnswer) {
    const std::string events = mLog.Take();
    return events + (events.empty() ? "" : " ") + (inAnswer ? "yes" : "no");
  }
  std::string Run() { return Answer(leaf->CallMyCommandChain(kCommand)); }
  std::string End() { return Answer(leaf->CallMyEndHoldCommand(kCommand)); }
  // With the state that came back: "+" for enabled, then the title.
  std::string Ask() {
    bool enabled = false;
    bool checked = false;
    UTF16String title;
    const std::string answer =
        Answer(leaf->CallMyEnablementChain(kCommand, enabled, checked, title));
    return answer + (enabled ? " +" : " -") + ToStdString(title);
  }

  EventLog mLog;
  RecordingHandler root{mLog, "root"};
  RecordingHandler middle{mLog, "middle", &root};
  std::unique_ptr<RecordingHandler> leaf =
      std::make_unique<RecordingHandler>(mLog, "leaf", &middle);
  std::array<RecordingAttachment, 3> attachments{{{mLog, "1"}, {mLog, "2"}, {mLog, "3"}}};
};

TEST_F(Chain, WalksGoUpwardsAndAskAttachmentsBeforeTheirHandler) {
  Attach(middle);
  EXPECT_EQ(Run(), "run:leaf run:1 run:2 run:3 run:middle run:root no");
  EXPECT_EQ(Ask(), "ask:leaf ask:1 ask:2 ask:3 ask:middle ask:root no +leaf123middleroot");
  EXPECT_EQ(End(), "end:leaf end:1 end:2 end:3 end:middle end:root no");
}

TEST_F(Chain, FirstThatAnswersEndsTheWalk) {
  Attach(middle);
  middle.mAnswer = true;
  EXPECT_EQ(Run(), "run:leaf run:1 run:2 run:3 run:middle yes");
  attachments[1].mAnswer = true;
  attachments[1].mEnabled = false;
  EXPECT_EQ(Run(), "run:leaf run:1 run:2 yes");
  EXPECT_EQ(Ask(), "ask:leaf ask:1 ask:2 yes -leaf12");
  EXPECT_EQ(End(), "end:leaf end:1 end:2 yes");
}

TEST_F(Chain, ExecutingCallsThoseThatStoodThereWhenTheTurnBegan) {
  middle.AddAttachment(&attachments[0]);
  middle.AddAttachment(&attachments[1]);
  attachments[0].mOnRun = [this] {
    middle.RemoveAttachment(&attachments[0]);
    middle.RemoveAttachment(&attachments[1]);
    middle.AddAttachment(&attachments[2]);
  };
  EXPECT_EQ(Run(), "run:leaf run:1 run:2 run:middle run:root no");
  EXPECT_EQ(Run(), "run:leaf run:3 run:middle run:root no");
}

TEST_F(Chain, AttachmentMayRemoveItselfWhileAskedForEnablement) {
  middle.AddAttachment(&attachments[0]);
  middle.AddAttachment(&attachments[1]);
  // The one that comes instead is likely to get the memory of the entry that goes.
  attachments[0].mOnAsk = [this] {
    middle.RemoveAttachment(&attachments[0]);
    middle.AddAttachment(&attachments[2]);
  };
  EXPECT_EQ(Ask(), "ask:leaf ask:1 ask:2 ask:3 ask:middle ask:root no +leaf123middleroot");
  EXPECT_EQ(Ask(), "ask:leaf ask:2 ask:3 ask:middle ask:root no +leaf23middleroot");
}

TEST_F(Chain, HandlerThatAnswersMayDeleteItself) {
  leaf->mAnswer = true;
  leaf->mOnRun = [this] { leaf.reset(); };
  EXPECT_EQ(Run(), "run:leaf yes");

  leaf = std::make_unique<RecordingHandler>(mLog, "leaf", &middle);
  leaf->AddAttachment(&attachments[0]);
  CommandHandlerBase::SetCurrentCommandHandler(leaf.get());
  CommandHandlerBase::SetDefaultCommandHandler(&root);
  attachments[0].mAnswer = true;
  attachments[0].mOnRun = [this] { leaf.reset(); };
  mLog.Take();
  EXPECT_EQ(Answer(CommandHandlerBase::CallCommandChain(kCommand)), "run:1 yes");
  EXPECT_EQ(CommandHandlerBase::GetCurrentCommandHandler(), nullptr);
}

TEST_F(Chain, HandlerThatTakesAnotherParentChangesTheRoadAhead) {
  leaf->mOnRun = [this] { leaf->SetParentHandler(&root); };
  EXPECT_EQ(Run(), "run:leaf middle=>root(middle) run:root no");
  leaf->SetParentHandler(&root);
  EXPECT_EQ(mLog.Take(), "root=>root(root)");
  EXPECT_EQ(leaf->GetParentHandler(), &root);
}

TEST_F(Chain, DefaultHandlerIsAskedAlsoWhereItStoodOnTheCurrentChain) {
  bool enabled = false;
  bool checked = true;
  UTF16String title;
  EXPECT_FALSE(CommandHandlerBase::CallCommandChain(kCommand));
  EXPECT_FALSE(CommandHandlerBase::CallEndHoldCommand(kCommand));
  EXPECT_FALSE(CommandHandlerBase::CallEnablementChain(kCommand, enabled, checked, title));
  EXPECT_TRUE(!enabled && checked && title.empty());

  root.AddAttachment(&attachments[0]);
  CommandHandlerBase::SetCurrentCommandHandler(&middle);
  CommandHandlerBase::SetDefaultCommandHandler(&root);
  mLog.Take();
  EXPECT_EQ(Answer(CommandHandlerBase::CallCommandChain(kCommand)),
            "run:middle run:1 run:root run:1 run:root no");
  EXPECT_EQ(Answer(CommandHandlerBase::CallEnablementChain(kCommand, enabled, checked, title)),
            "ask:middle ask:1 ask:root ask:1 ask:root no");
  middle.mAnswer = true;
  EXPECT_EQ(Answer(CommandHandlerBase::CallEndHoldCommand(kCommand)), "end:middle yes");
}

TEST_F(Chain, AttachmentsBelongToTheHandlerTheyWereLastAddedTo) {
  RecordingAttachment& one = attachments[0];
  leaf->AddAttachment(nullptr);
  leaf->RemoveAttachment(nullptr);
  leaf->AddAttachment(&one);
  leaf->AddAttachment(&one);
  EXPECT_EQ(Run(), "run:1 run:leaf run:middle run:root no");
  middle.RemoveAttachment(&one);  // stands in another handler's set
  EXPECT_EQ(one.GetContainingHandler(), leaf.get());
  middle.AddAttachment(&one);
  EXPECT_EQ(one.GetContainingHandler(), &middle);
  leaf->AddAttachment(&one);  // there already, and named again
  EXPECT_EQ(one.GetContainingHandler(), leaf.get());
  EXPECT_EQ(Run(), "run:1 run:leaf run:1 run:middle run:root no");
  leaf->RemoveAttachment(&one);
  EXPECT_EQ(one.GetContainingHandler(), nullptr);
  EXPECT_EQ(Run(), "run:leaf run:1 run:middle run:root no");
}

// Takes command 7 and counts it; asked, it answers with a check mark and a title.
template <class Base>
struct Seven : Base {
  bool DoUnifiedDispatch(int inCommand, CommandEnableQuery* ioQuery) override {
    if (inCommand != 7) return false;
    ++(ioQuery ? mAsked : mRun);
    if (!ioQuery) return true;
    *ioQuery->enabled = false;
    *ioQuery->checked = true;
    *ioQuery->title = lumcore::utility::ToUTF16("Seven");
    return true;
  }
  int mRun = 0;
  int mAsked = 0;
};

TEST(UnifiedDispatch, TellsExecutingFromAskingByTheQuery) {
  Seven<UnifiedDispatchCmdHandler> handler;
  Seven<UnifiedDispatchCmdAttachment> attachment;
  handler.AddAttachment(&attachment);
  bool enabled = true;
  bool checked = false;
  UTF16String title;
  EXPECT_FALSE(handler.CallMyCommandChain(8));
  EXPECT_TRUE(handler.CallMyCommandChain(7));
  EXPECT_TRUE(handler.CallMyEnablementChain(7, enabled, checked, title));
  EXPECT_TRUE(!enabled && checked && ToStdString(title) == "Seven");
  EXPECT_EQ(attachment.mRun * 10 + attachment.mAsked, 11);

  // A copy names a handler that does not know it.
  Seven<UnifiedDispatchCmdAttachment> copy(attachment);
  handler.RemoveAttachment(&attachment);
  handler.RemoveAttachment(&copy);
  EXPECT_EQ(copy.GetContainingHandler(), &handler);
}

}  // namespace
}  // namespace vek::uisupport
