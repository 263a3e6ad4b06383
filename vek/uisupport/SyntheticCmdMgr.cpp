// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/SyntheticCmdMgr.h"

#include <memory>
#include <stdexcept>

namespace vek::uisupport {

namespace {

struct Range {
  static Range& Get() {
    // Never destroyed: who asks may have any static lifetime.
    static Range* const sRange = new Range;
    return *sRange;
  }
  std::unique_ptr<SyntheticCmdMgr> mInstance;
  int mFirst = 0;
  int mNext = 0;
};

}  // namespace

SyntheticCmdMgr::SyntheticCmdMgr() = default;
SyntheticCmdMgr::~SyntheticCmdMgr() = default;

void SyntheticCmdMgr::InitSyntheticCmdMgr(int inFirstId) {
  Range& range = Range::Get();
  if (range.mInstance) throw std::logic_error("SyntheticCmdMgr already initialized");
  range.mInstance.reset(new SyntheticCmdMgr);
  range.mFirst = inFirstId;
  range.mNext = inFirstId;
}

SyntheticCmdMgr& SyntheticCmdMgr::Get() {
  const Range& range = Range::Get();
  if (!range.mInstance) throw std::logic_error("SyntheticCmdMgr not initialized");
  return *range.mInstance;
}

void SyntheticCmdMgr::ResetSyntheticCmdMgr() {
  Range::Get().mInstance.reset();
}

bool SyntheticCmdMgr::IsSyntheticCmdID(int inCommand) const {
  const Range& range = Range::Get();
  return inCommand >= range.mFirst && inCommand < range.mNext;
}

int SyntheticCmdMgr::ReserveCmd() {
  return Range::Get().mNext++;
}

int SyntheticCmdMgr::ReserveCmdRange(int inCount) {
  const int first = Range::Get().mNext;
  Range::Get().mNext += inCount;
  return first;
}

}  // namespace vek::uisupport
