// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "support/DragPartner.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>

#include "lumui/ui/Executor.h"
#include "lumui/ui/UI_NodeManager.h"
#include "support/RealInput.h"

namespace test_support {

DragPartner::DragPartner(const std::string& inTakes) {
  int ends[2];
  if (pipe(ends) != 0) return;
  mProcess = fork();
  if (mProcess == 0) {
    dup2(ends[1], STDOUT_FILENO);
    execl(LUMUI_DRAG_PARTNER, LUMUI_DRAG_PARTNER, inTakes.c_str(), static_cast<char*>(nullptr));
    _exit(1);
  }
  close(ends[1]);
  mReader = std::thread([this, input = ends[0]] { ReadLines(input); });
  EXPECT_EQ(WaitForLine(), "ready");
}

DragPartner::~DragPartner() {
  Kill();
}

void DragPartner::Kill() {
  if (!mReader.joinable()) return;
  kill(mProcess, SIGKILL);
  waitpid(mProcess, nullptr, 0);
  mReader.join();
}

void DragPartner::ReadLines(int inInput) {
  std::FILE* const file = fdopen(inInput, "r");
  char line[200];
  while (std::fgets(line, sizeof line, file)) {
    const std::lock_guard<std::mutex> lock(mMutex);
    mLines.emplace_back(line);
    mLines.back().pop_back();
    lumui::ui::UI_NodeManager::Get(true)->GetExecutor()->Post([] {});
  }
  std::fclose(file);
}

// Empty if it has said nothing more.
std::string DragPartner::TakeLine() {
  const std::lock_guard<std::mutex> lock(mMutex);
  if (mLines.empty()) return "";
  std::string line = std::move(mLines.front());
  mLines.pop_front();
  return line;
}

std::string DragPartner::WaitForLine() {
  std::string line;
  RealInput::RunUntil([&] {
    do
      line = TakeLine();
    while (line == "pointer" || line == "over");
    return !line.empty();
  });
  return line;
}

int DragPartner::CountSaid(const std::string& inLine) {
  int count = 0;
  for (std::string line = TakeLine(); !line.empty(); line = TakeLine())
    if (line == inLine) ++count;
  return count;
}

void DragPartner::DragTo(const std::string& inPlaces, const std::function<bool()>& inCondition) {
  RealInput::SendUntil("mousemove 61 60 mousemove 60 60",
                       [&] { return CountSaid("pointer") != 0; });
  RealInput::RunTool("mousedown 1");
  EXPECT_EQ(WaitForLine(), "pressed");
  RealInput::SendUntil(inPlaces, inCondition);
}

std::string DragPartner::TakeFrom(const std::string& inStart,
                                  const std::function<bool()>& inCondition) {
  std::thread tool([&] {
    RealInput::RunTool(inStart + " mousedown 1");
    for (int overs = 0; overs <= kAnswered; overs += CountSaid("over"))
      RealInput::RunTool("mousemove 60 60 mousemove 61 60");
    RealInput::RunTool("mouseup 1");
  });
  RealInput::RunUntil(inCondition);
  tool.join();
  return WaitForLine();
}

}  // namespace test_support
