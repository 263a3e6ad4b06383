// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <sstream>
#include <string>

#include "support/EventLog.h"
#include "vek/trackview/PlatformView.h"

namespace test_support {

namespace tv = vek::trackview;

// Numbers as they are written, with commas between them.
template <class... Numbers>
std::string Joined(const Numbers&... inNumbers) {
  std::ostringstream text;
  const char* separator = "";
  ((text << separator << inNumbers, separator = ","), ...);
  return text.str();
}
inline std::string AsText(const tv::Point& inPoint) {
  return Joined(inPoint.x, inPoint.y);
}
inline std::string AsText(const tv::Rect& inRect) {
  return Joined(inRect.x, inRect.y, inRect.width, inRect.height);
}

// A view of mSize local units without a window, that goes where it is told and logs what it is
// asked. A flag that is set shows as "!"; timers are counted from the first.
class RecordingPlatformView : public tv::PlatformView {
 public:
  RecordingPlatformView(EventLog& inLog, const tv::Point& inSize) : mSize(inSize), mLog(inLog) {}

  tv::TrackView& Show(bool inCentering, float inMin, float inMax) {
    std::auto_ptr<tv::TrackView> view(new tv::TrackView(*this, inCentering, inMin, inMax));
    SetTrackView(view);
    return *GetTrackView();
  }

  using PlatformView::DataPos;
  using PlatformView::SetEmptiesPositionListeners;
  void GlobalToLocal(tv::Point& ioPoint) const override {
    ioPoint = ioPoint - tv::Point(1000, 2000);
  }
  void LocalToGlobal(tv::Point& ioPoint) const override {
    ioPoint = ioPoint + tv::Point(1000, 2000);
  }
  void InvalidateDataRect(const tv::Rect& inRect) override { mLog.Add("draw:" + AsText(inRect)); }
  void ValidateDataRect(const tv::Rect&) override {}
  tv::Point DataSize() const override {
    const tv::Point factor = GetTrackView()->GetCoordFactor();
    const float scale = GetTrackView()->GetCoordScale();
    return tv::Point(mSize.x / (factor.x * scale), mSize.y / (factor.y * scale));
  }
  tv::Point DataPos() const override { return mPosition; }
  unsigned char GetClickCount() override { return 1; }
  const lumui::drawbot::SupplierInterface* GetDrawSupplier() const override { return mSupplier; }
  void DisplayResized(bool inRedraw) override { mLog.Add(inRedraw ? "resized!" : "resized"); }
  void StartTimer(unsigned int inID, float inInterval) override {
    if (mFirstTimer == 0) mFirstTimer = inID;
    mLog.Add("start" + Joined(inID - mFirstTimer) + ":" + Joined(inInterval));
    if (inInterval <= 0) throw std::runtime_error("interval");
  }
  void StopTimer(unsigned int inID) override { mLog.Add("stop" + Joined(inID - mFirstTimer)); }
  std::auto_ptr<lumui::datatransfer::OS_SendDataBase> GetSendData() override {
    return std::auto_ptr<lumui::datatransfer::OS_SendDataBase>();
  }
  bool IsTracking() const override { return false; }

  tv::Point mSize;
  tv::Point mPosition;
  const lumui::drawbot::SupplierInterface* mSupplier = nullptr;

 private:
  void DoDataPos(const tv::Point& inPoint, bool inFlag) override {
    mPosition = inPoint;
    mLog.Add("pos:" + AsText(inPoint) + (inFlag ? "!" : ""));
  }

  EventLog& mLog;
  unsigned int mFirstTimer = 0;
};

}  // namespace test_support
