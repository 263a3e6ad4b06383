// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/UI_NodeManager.h"

#include <QApplication>
#include <QCursor>
#include <QWidget>
#include <algorithm>

#include "lumcore/debug/Contract.h"
#include "lumui/ui/Application.h"
#include "lumui/ui/InputCapture.h"
#include "lumui/ui/UI_Node.h"
#include "ui/ApplicationImpl.h"
#include "ui/EventGate.h"
#include "ui/NodeManagerImpl.h"
#include "ui/NodePeer.h"
#include "ui/QtEvents.h"
#include "ui/WindowRegistry.h"

namespace lumui::ui {

namespace {

Qt::CursorShape QtFromShape(CursorShape inShape) {
  switch (inShape) {
    case CursorShape::kArrow:
      return Qt::ArrowCursor;
    case CursorShape::kIBeam:
      return Qt::IBeamCursor;
    case CursorShape::kCross:
      return Qt::CrossCursor;
    case CursorShape::kHand:
      return Qt::PointingHandCursor;
    case CursorShape::kOpenHand:
      return Qt::OpenHandCursor;
    case CursorShape::kClosedHand:
      return Qt::ClosedHandCursor;
    case CursorShape::kMove:
      return Qt::SizeAllCursor;
    case CursorShape::kResizeHorizontal:
      return Qt::SizeHorCursor;
    case CursorShape::kResizeVertical:
      return Qt::SizeVerCursor;
    case CursorShape::kResizeFalling:
      return Qt::SizeFDiagCursor;
    case CursorShape::kResizeRising:
      return Qt::SizeBDiagCursor;
    case CursorShape::kForbidden:
      return Qt::ForbiddenCursor;
    case CursorShape::kWait:
      return Qt::WaitCursor;
    case CursorShape::kHidden:
      return Qt::BlankCursor;
  }
  return Qt::ArrowCursor;
}

// Functions that were taken back go at the next chance.
template <class Function>
void Install(std::vector<boost::shared_ptr<Function>>& ioFunctions,
             const boost::shared_ptr<Function>& inFunction) {
  LUM_INPUT_CONTRACT(inFunction != nullptr);
  const auto cleared = [](const auto& inEntry) { return inEntry->empty(); };
  ioFunctions.erase(std::remove_if(ioFunctions.begin(), ioFunctions.end(), cleared),
                    ioFunctions.end());
  ioFunctions.push_back(inFunction);
}

}  // namespace

UI_NodeManager::Impl& NodeManagerImpl() {
  return *UI_NodeManager::Get(true)->GetImpl();
}

UI_NodeManager::Impl* NodeManagerImplIfAny() {
  UI_NodeManager* const manager = UI_NodeManager::Get(false);
  return manager ? manager->GetImpl() : nullptr;
}

void UI_NodeManager::Impl::TellActivation(bool inActive) {
  if (inActive == active) return;
  active = inActive;
  // From a copy, since a function may install another; one that was cleared meanwhile is passed
  // over.
  const auto functions = activationFunctions;
  for (const auto& function : functions) {
    if (*function) EventGate::Get()->RunGuarded([&] { (*function)(inActive); });
  }
}

void UI_NodeManager::Impl::TellNodeChanged(UI_Node& inNode) {
  if (nodeChangedFunctions.empty()) return;
  const auto functions = nodeChangedFunctions;
  for (const auto& function : functions) {
    if (*function) EventGate::Get()->RunGuarded([&] { (*function)(inNode); });
  }
}

void UI_NodeManager::Impl::ApplyCursor() {
  if (cursor == appliedCursor) return;
  appliedCursor = cursor;
  ForEachWindow([&](OS_Window& inWindow) {
    if (QWidget* const widget = inWindow.GetPeer()->GetWidget()) {
      widget->setCursor(QtFromShape(cursor));
    }
  });
}

UI_NodeManager::UI_NodeManager() : mImpl(std::make_unique<Impl>()) {}

UI_NodeManager::~UI_NodeManager() = default;

UI_NodeManager* UI_NodeManager::Get(bool inMustExist) {
  Application* const application = Application::Get();
  UI_NodeManager* const manager = application ? application->GetImpl()->manager : nullptr;
  LUM_INPUT_CONTRACT(manager || !inMustExist);
  return manager;
}

void UI_NodeManager::BeginInputCapture(const boost::intrusive_ptr<InputCapture>& inCapture) {
  mImpl->capture.Begin(inCapture);
}

void UI_NodeManager::EndInputCapture(bool inCancelled) {
  mImpl->capture.End(inCancelled);
}

InputCapture* UI_NodeManager::GetInputCapture() const {
  return mImpl->capture.Get();
}

unsigned UI_NodeManager::GetHeldButtons() const {
  return ButtonsFromQt(QGuiApplication::mouseButtons());
}

UI_Node* UI_NodeManager::GetFocusNode() const {
  return NodePeer::NodeOf(QApplication::focusWidget());
}

void UI_NodeManager::SetCursor(CursorShape inShape) {
  mImpl->cursor = inShape;
  if (!EventGate::Get()->IsInPointerEvent()) mImpl->ApplyCursor();
}

CursorShape UI_NodeManager::GetCursor() const {
  return mImpl->cursor;
}

void UI_NodeManager::InstallApplicationActivationChangedFunction(
    const boost::shared_ptr<boost::function<void(bool)>>& inFunction) {
  Install(mImpl->activationFunctions, inFunction);
}

void UI_NodeManager::InstallNodeChangedFunction(
    const boost::shared_ptr<boost::function<void(UI_Node&)>>& inFunction) {
  Install(mImpl->nodeChangedFunctions, inFunction);
}

std::vector<OS_Window*> UI_NodeManager::GetWindows() const {
  std::vector<OS_Window*> windows;
  ForEachWindow([&](OS_Window& inWindow) { windows.push_back(&inWindow); });
  return windows;
}

void UI_NodeManager::EnableMnemonics() {
  mImpl->mnemonics = true;
}

bool UI_NodeManager::AreMnemonicsEnabled() const {
  return mImpl->mnemonics;
}

Executor* UI_NodeManager::GetExecutor() const {
  return &mImpl->executor;
}

}  // namespace lumui::ui
