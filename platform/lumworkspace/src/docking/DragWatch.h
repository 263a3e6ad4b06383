// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <functional>

namespace lumworkspace::docking {

// Waits for the end of a drag that Qt's docks carry on by themselves: calls the function once,
// behind the event in which the last button was released.
class DragWatch : public QObject {
 public:
  ~DragWatch() override;
  void WaitForRelease(std::function<void()> inFunction);

 protected:
  bool eventFilter(QObject* inObject, QEvent* inEvent) override;

 private:
  void CallLater();

  std::function<void()> mFunction;
};

}  // namespace lumworkspace::docking
