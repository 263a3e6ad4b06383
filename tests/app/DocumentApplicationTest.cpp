// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <map>
#include <memory>

#include "lumcore/debug/Contract.h"
#include "support/RecordingApp.h"
#include "support/TemporaryFolder.h"
#include "vek/document/FileBasedDocument.h"
#include "vek/messaging/Listener.h"
#include "vek/uisupport/CommandAttachment.h"

namespace {

using test_support::EventLog;
using vek::app::DocStatusMessage;
using vek::document::DocumentInterface;

class Page : public vek::document::FileBasedDocument, public vek::uisupport::CommandAttachment {
 public:
  Page(char inName, EventLog& outLog) : mName(inName), mLog(outLog) {}
  ~Page() override { mLog.Add(std::string("~") + mName); }

  bool HasAttachment() const override { return true; }
  vek::uisupport::CommandAttachment* GetCommandAttachment() const override {
    return const_cast<Page*>(this);
  }
  void Close() override {
    if (mOnClose) mOnClose();
  }
  void LoadFromFile(const lumcore::filesupport::File&) override {}
  void SaveToFile(const lumcore::filesupport::File&) override {}

  std::function<void()> mOnClose;
  const char mName;

 private:
  bool DoHandleCommand(int) override {
    mLog.Add(std::string("command:") + mName);
    return true;
  }
  bool DoCommandEnabled(int, bool&, bool&, lumcore::UTF16String&) override { return false; }

  EventLog& mLog;
};

// Pages a, b and c are open in this order.
class Documents : public ::testing::Test, public vek::messaging::Listener<const DocStatusMessage> {
 protected:
  Documents() : mApp(mFolder.GetPath("prefs")) {
    mApp.mHasManager = false;
    mApp.Start();
    mApp.GetDocStatusNotifier().AddListener(this);
    for (const char name : {'a', 'b', 'c'}) {
      mPages[name] = new Page(name, mLog);
      mApp.DocumentPushBack(mPages[name]);
    }
  }
  ~Documents() override {
    mWhenTold = nullptr;
    mApp.CloseAnyOpenDocuments();
    mApp.Terminate();
  }

  void ListenToMessage(const DocStatusMessage inMessage) override {
    const char name = static_cast<Page*>(inMessage.GetDocument())->mName;
    mLog.Add(std::string(inMessage.IsClosing()       ? "closing:"
                         : inMessage.BecomesActive() ? "on:"
                                                     : "off:") +
             name);
    const auto whenTold = mWhenTold;  // it may put another in its place
    if (whenTold) whenTold(inMessage);
  }

  TemporaryFolder mFolder;
  test_support::RecordingApp mApp;
  EventLog mLog;
  std::map<char, Page*> mPages;
  std::function<void(const DocStatusMessage&)> mWhenTold;
};

TEST_F(Documents, TheCurrentOneIsToldAndAnswersCommands) {
  EXPECT_FALSE(mApp.HasOpenDocument()) << "opening makes none current";
  mApp.SetDocument(mPages['a']);
  mApp.SetDocument(mPages['a']);
  mApp.SetDocument(mPages['c']);
  vek::uisupport::CommandHandlerBase::CallCommandChain(7);
  mApp.SetDocument(nullptr);
  vek::uisupport::CommandHandlerBase::CallCommandChain(7);
  EXPECT_EQ(mLog.Take(), "on:a off:a on:c command:c off:c");
}

TEST_F(Documents, ACloseMovesToTheNeighbourAlsoFromAfar) {
  mApp.SetDocument(mPages['c']);
  mLog.Take();
  mApp.CloseDocument(mPages['a']);
  EXPECT_EQ(mLog.Take(), "closing:a ~a off:c on:b");
  mApp.CloseDocument(mPages['c']);
  EXPECT_EQ(mLog.Take(), "closing:c ~c") << "behind the last comes the first, which is current";
  mApp.CloseDocument(mPages['b']);
  EXPECT_EQ(mLog.Take(), "off:b closing:b ~b");
  EXPECT_EQ(mApp.GetDocument(), nullptr);
}

TEST_F(Documents, ANeighbourThatGoesInTheCloseIsNotMadeCurrent) {
  mApp.SetDocument(mPages['a']);
  mPages['a']->mOnClose = [this] { mApp.CloseDocument(mPages['b']); };
  mLog.Take();
  mApp.CloseDocument(mPages['a']);
  EXPECT_EQ(mLog.Take(), "off:a closing:a closing:b ~b on:c ~a");
}

TEST_F(Documents, WhoMakesTheClosedOneCurrentAgainLeavesNothingOfItBehind) {
  mApp.SetDocument(mPages['a']);
  mWhenTold = [this](const DocStatusMessage& inMessage) {
    if (inMessage.IsClosing()) mApp.SetDocument(inMessage.GetDocument());
  };
  mApp.CloseDocument(mPages['a']);
  mWhenTold = [this](const DocStatusMessage& inMessage) {
    if (inMessage.BecomesActive()) return;
    mWhenTold = nullptr;
    mApp.SetDocument(mPages['c']);
  };
  mApp.SetDocument(nullptr);
  EXPECT_EQ(mApp.GetDocument(), nullptr);
  mApp.CloseDocument(mPages['c']);
  mLog.Take();
  vek::uisupport::CommandHandlerBase::CallCommandChain(7);
  EXPECT_EQ(mLog.Take(), "command:b");
}

TEST_F(Documents, StrangersAndDoublesFailTheirContracts) {
  std::string failed;
  const auto old = lumcore::debug::SetContractDialog([&](const auto& inFailure) {
    failed += inFailure.function + std::string(":") + std::to_string(inFailure.line) + " ";
    return false;
  });
  EventLog log;
  Page stranger('s', log);
  EXPECT_ANY_THROW(mApp.CloseDocument(&stranger));
  EXPECT_ANY_THROW(mApp.CloseDocument(nullptr));
  EXPECT_ANY_THROW(mApp.DocumentPushBack(mPages['b']));
  lumcore::debug::SetContractDialog(old);
  EXPECT_EQ(failed,
            "vek::app::MultiDocApplication::CloseDocument:68 "
            "vek::app::MultiDocApplication::CloseDocument:68 "
            "vek::app::MultiDocApplication::DocumentPushBack:132 ");
}

std::string Joined(const std::vector<lumcore::UTF16String>& inPaths) {
  std::string text;
  for (const auto& path : inPaths)
    text += lumcore::utility::ToStdString(path) + " ";
  return text;
}

std::string RecentFiles(test_support::RecordingApp& inApp) {
  return Joined({inApp.RecentFilesBegin(), inApp.RecentFilesEnd()});
}

TEST(RecentFiles, GrowInASessionAndKeepTheNewestForTheNext) {
  constexpr const char* kKey = "App.RecentFiles";
  using Paths = std::vector<lumcore::UTF16String>;
  TemporaryFolder folder;
  {
    test_support::RecordingApp app(folder.GetPath("prefs"));
    ASSERT_TRUE(app.Start());
    for (const char* path : {"/1", "/2", "/3", "/4", "/5", "/2", "/A", "/a"}) {
      app.AddRecentFile(lumcore::filesupport::File(path));
    }
    EXPECT_EQ(RecentFiles(app), "/a /A /2 /5 /4 /3 /1 ");
    app.Terminate();
    EXPECT_EQ(Joined(app.GetVekPrivateSettings().Get(kKey, Paths())), "/a /A /2 /5 ");
  }
  {
    test_support::RecordingApp app(folder.GetPath("prefs"));
    ASSERT_TRUE(app.Start());
    EXPECT_EQ(RecentFiles(app), "") << "the list is written behind the settings";
    const auto x = test_support::Text("/x");
    app.GetVekPrivateSettings().Set(kKey, Paths{x, test_support::Text("/y"), x});
    app.SetMaximumRecentFiles(-1);
    app.Terminate();
  }
  test_support::RecordingApp app(folder.GetPath("prefs"));
  ASSERT_TRUE(app.Start());
  EXPECT_EQ(RecentFiles(app), "/x /y ");
  app.Terminate();
}

}  // namespace
