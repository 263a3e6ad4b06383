// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/selection/Messages.h"

namespace vek::selection {

SelectionChangeMessage::SelectionChangeMessage(const std::list<Node*>& inAffected)
    : mAffected(&inAffected) {}

SelectionChangeMessage::~SelectionChangeMessage() = default;

ManagerChangeMessage::ManagerChangeMessage(const Manager* inPrevious, const Manager* inCurrent)
    : mPrevious(inPrevious), mCurrent(inCurrent) {}

ManagerChangeMessage::~ManagerChangeMessage() = default;

JunctionChangeMessage::JunctionChangeMessage(const Junction* inPrevious, const Junction* inCurrent)
    : mPrevious(inPrevious), mCurrent(inCurrent) {}

JunctionChangeMessage::~JunctionChangeMessage() = default;

}  // namespace vek::selection
