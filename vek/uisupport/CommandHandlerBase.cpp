// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/CommandHandlerBase.h"

#include <memory>
#include <utility>

#include "lumcore/utility/CallbackList.h"

namespace vek::uisupport {

namespace {

using HandlerChangeCallbacks = lumcore::utility::CallbackList<CommandHandlerBase*>;

// Plain pointers, so that handlers of any static lifetime may still look here when they die.
struct ChainEnds {
  static ChainEnds& Get() {
    static ChainEnds sEnds;
    return sEnds;
  }
  CommandHandlerBase* mCurrent = nullptr;
  CommandHandlerBase* mDefault = nullptr;
};

// Destroyed at the end of the process, which clears the functions that are still held.
std::unique_ptr<HandlerChangeCallbacks>& GetCallbacks() {
  static auto sCallbacks = std::make_unique<HandlerChangeCallbacks>();
  return sCallbacks;
}

// The shape of the three walks: the current handler, and where it answers false the default one.
template <class Ask>
bool AskChainEnds(Ask inAsk) {
  const ChainEnds& ends = ChainEnds::Get();
  if (ends.mCurrent && inAsk(*ends.mCurrent)) return true;
  return ends.mDefault && inAsk(*ends.mDefault);
}

}  // namespace

CommandHandlerBase::CommandHandlerBase() = default;

CommandHandlerBase::~CommandHandlerBase() {
  ChainEnds& ends = ChainEnds::Get();
  if (ends.mCurrent == this) ends.mCurrent = nullptr;
  if (ends.mDefault == this) ends.mDefault = nullptr;
}

bool CommandHandlerBase::CallCommandChain(int inCommand) {
  return AskChainEnds(
      [=](CommandHandlerBase& ioHandler) { return ioHandler.DoCallMyCommandChain(inCommand); });
}

bool CommandHandlerBase::CallEnablementChain(int inCommand, bool& ioEnabled, bool& ioChecked,
                                             lumcore::UTF16String& ioTitle) {
  return AskChainEnds([&](CommandHandlerBase& ioHandler) {
    return ioHandler.DoCallMyEnablementChain(inCommand, ioEnabled, ioChecked, ioTitle);
  });
}

bool CommandHandlerBase::CallEndHoldCommand(int inCommand) {
  return AskChainEnds(
      [=](CommandHandlerBase& ioHandler) { return ioHandler.DoCallEndHoldCommand(inCommand); });
}

bool CommandHandlerBase::CallMyCommandChain(int inCommand) {
  return DoCallMyCommandChain(inCommand);
}

bool CommandHandlerBase::CallMyEnablementChain(int inCommand, bool& ioEnabled, bool& ioChecked,
                                               lumcore::UTF16String& ioTitle) {
  return DoCallMyEnablementChain(inCommand, ioEnabled, ioChecked, ioTitle);
}

bool CommandHandlerBase::CallMyEndHoldCommand(int inCommand) {
  return DoCallEndHoldCommand(inCommand);
}

CommandHandlerBase* CommandHandlerBase::GetCurrentCommandHandler() {
  return ChainEnds::Get().mCurrent;
}

void CommandHandlerBase::SetCurrentCommandHandler(CommandHandlerBase* inHandler) {
  ChainEnds& ends = ChainEnds::Get();
  CommandHandlerBase* const old = ends.mCurrent;
  if (old) old->DoLostCommandFocus();
  ends.mCurrent = inHandler;
  if (inHandler) inHandler->DoGainedCommandFocus();
  // Read again: who gains focus may have passed it on.
  if (ends.mCurrent != old) NotifyCurrHandlerChanged();
}

CommandHandlerBase* CommandHandlerBase::GetDefaultCommandHandler() {
  return ChainEnds::Get().mDefault;
}

void CommandHandlerBase::SetDefaultCommandHandler(CommandHandlerBase* inHandler) {
  ChainEnds::Get().mDefault = inHandler;
}

bool CommandHandlerBase::IsCurrentCommandHandler() const {
  return ChainEnds::Get().mCurrent == this;
}

void CommandHandlerBase::NotifyWhenCurrHandlerChanges(
    boost::shared_ptr<HandlerChangeFunction> inCallback) {
  GetCallbacks()->Add(std::move(inCallback));
}

// Each callback hears of the handler that is current when its turn comes.
void CommandHandlerBase::NotifyCurrHandlerChanged() {
  GetCallbacks()->CallEach([] { return ChainEnds::Get().mCurrent; });
}

void CommandHandlerBase::ResetCommandChain() {
  ChainEnds::Get() = ChainEnds();
  GetCallbacks() = std::make_unique<HandlerChangeCallbacks>();
}

void CommandHandlerBase::DoSetAsCurrentCommandHandler() {
  SetCurrentCommandHandler(this);
}

const lumcore::UTF8String& CommandHandlerBase::DoGetCommandContext() {
  static const lumcore::UTF8String* const sEmpty = new lumcore::UTF8String;
  return *sEmpty;
}

void CommandHandlerBase::DoLostCommandFocus() {}

void CommandHandlerBase::DoGainedCommandFocus() {}

}  // namespace vek::uisupport
