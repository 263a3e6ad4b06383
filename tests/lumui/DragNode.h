// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <map>

#include "UITest.h"
#include "lumui/datatransfer/OS_ReceiveData.h"

namespace lumui::test {

using datatransfer::OS_ReceiveData;
using datatransfer::ReadResult;
using ui::kDropCopy;
using ui::kDropLink;
using ui::kDropMove;

inline constexpr int kNotServed = -1;

// Tells its steps as "name:step@x,y", does what the test has put down for the step, and answers
// mEffect.
class DragNode : public RecordingNode {
 public:
  DragNode(std::string inName, LogFunction inLog)
      : RecordingNode(inName, inLog), mName(std::move(inName)), mLog(std::move(inLog)) {}

  bool UI_WantsDragDropEvents() const override { return mWants; }
  bool UI_HandleDragEnter(Position inAt, OS_ReceiveData& inData, int& ioEffect) override {
    return Step("enter", inAt, inData, ioEffect);
  }
  bool UI_HandleDragOver(Position inAt, OS_ReceiveData& inData, int& ioEffect) override {
    return Step("over", inAt, inData, ioEffect);
  }
  void UI_HandleDragLeave(OS_ReceiveData& inData) override {
    lumcore::UTF16String text;
    EXPECT_EQ(inData.ReadText(text), ReadResult::kNotOffered);
    mLog(mName + ":leave");
    Do("leave", inData);
  }
  bool UI_HandleDrop(Position inAt, OS_ReceiveData& inData, int& ioEffect) override {
    return Step("drop", inAt, inData, ioEffect);
  }

  bool mWants = true;
  int mEffect = kDropCopy;
  std::map<std::string, std::function<void(OS_ReceiveData&)>> mOn;

 private:
  bool Step(const std::string& inStep, Position inAt, OS_ReceiveData& inData, int& ioEffect) {
    mLog(mName + ":" + inStep + "@" + std::to_string(int(inAt.x)) + "," +
         std::to_string(int(inAt.y)));
    Do(inStep, inData);
    ioEffect = mEffect;
    return mEffect != kNotServed;
  }
  void Do(const std::string& inStep, OS_ReceiveData& inData) {
    const auto found = mOn.find(inStep);
    if (found != mOn.end()) found->second(inData);
  }

  const std::string mName;
  const LogFunction mLog;
};

}  // namespace lumui::test
