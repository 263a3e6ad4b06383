// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/datatransfer/OS_DropTarget.h"

#include <QDir>
#include <QDropEvent>
#include <QMimeData>
#include <QObject>
#include <QPointer>
#include <QUrl>
#include <QWidget>

#include "drawbot/QtConvert.h"
#include "lumcore/debug/Contract.h"
#include "lumui/ui/OS_Window.h"
#include "lumui/ui/UI_DragDropHandler.h"
#include "ui/EventGate.h"
#include "ui/NodePeer.h"
#include "ui/QtEvents.h"

namespace lumui::ui {

UI_DragDropHandler::~UI_DragDropHandler() = default;

}  // namespace lumui::ui

namespace lumui::datatransfer {

using ui::DropEffect;
using ui::DropEvent;
using ui::UI_DragDropHandler;
using ui::UI_Node;

namespace {

DropEffect EffectOf(Qt::DropAction inAction) {
  switch (inAction) {
    case Qt::CopyAction:
      return DropEffect::kCopy;
    case Qt::MoveAction:
      return DropEffect::kMove;
    case Qt::LinkAction:
      return DropEffect::kLink;
    default:
      return DropEffect::kNone;
  }
}

Qt::DropAction ActionOf(DropEffect inEffect) {
  switch (inEffect) {
    case DropEffect::kCopy:
      return Qt::CopyAction;
    case DropEffect::kMove:
      return Qt::MoveAction;
    case DropEffect::kLink:
      return Qt::LinkAction;
    case DropEffect::kNone:
      break;
  }
  return Qt::IgnoreAction;
}

DropEvent EventOf(const QDropEvent& inEvent) {
  DropEvent event;
  for (const QUrl& url : inEvent.mimeData()->urls()) {
    if (url.isLocalFile()) {
      event.files.push_back(drawbot::FromQt(QDir::toNativeSeparators(url.toLocalFile())));
    }
  }
  event.text = drawbot::FromQt(inEvent.mimeData()->text());
  const QPoint position = inEvent.position().toPoint();
  event.position = lumcore::geom::PointT<int>(position.x(), position.y());
  event.modifiers = ui::ModifiersFromQt(inEvent.modifiers());
  event.proposed = EffectOf(inEvent.proposedAction());
  return event;
}

}  // namespace

class OS_DropTarget::Impl : public QObject {
 public:
  void Attach(QWidget* inWidget) {
    Detach();
    mWidget = inWidget;
    mWidget->setAcceptDrops(true);
    mWidget->installEventFilter(this);
  }
  void Detach() {
    Leave();
    if (!mWidget) return;
    mWidget->removeEventFilter(this);
    mWidget->setAcceptDrops(false);
    mWidget = nullptr;
  }
  bool IsAttached() const { return mWidget; }

  boost::shared_ptr<UI_DragDropHandler> mFallback;

 protected:
  bool eventFilter(QObject*, QEvent* inEvent) override {
    switch (inEvent->type()) {
      case QEvent::DragEnter:
      case QEvent::DragMove:
      case QEvent::Drop:
        Handle(static_cast<QDropEvent&>(*inEvent));
        return true;
      case QEvent::DragLeave:
        Leave();
        return true;
      default:
        return false;
    }
  }

 private:
  // Whoever has the drag now: a node, which is held meanwhile, or the fallback.
  struct Target {
    boost::intrusive_ptr<UI_Node> node;
    boost::shared_ptr<UI_DragDropHandler> fallback;

    UI_DragDropHandler* Get() const {
      return node ? dynamic_cast<UI_DragDropHandler*>(node.get()) : fallback.get();
    }
  };

  Target FindTarget(const QPoint& inPosition) const {
    const QWidget* const child = mWidget->childAt(inPosition);
    for (UI_Node* node = ui::NodePeer::NodeOf(child ? child : mWidget.data()); node;
         node = node->UI_GetParentNode()) {
      if (dynamic_cast<UI_DragDropHandler*>(node) && !node->UI_IsDisabled())
        return Target{node, {}};
    }
    return Target{{}, mFallback};
  }

  static void MoveInto(const Target& inTarget, DropEvent& ioEvent) {
    if (inTarget.node) inTarget.node->UI_GlobalToLocal(ioEvent.position);
  }

  void Handle(QDropEvent& ioEvent) {
    DropEffect effect = DropEffect::kNone;
    DropEvent event = EventOf(ioEvent);
    // Also an exception means a refusal.
    ui::EventGate::Get()->RunGuarded([&] {
      const Target target = FindTarget(ioEvent.position().toPoint());
      MoveInto(target, event);
      if (target.Get() != mTarget.Get()) {
        Leave();
        mTarget = target;
        if (target.Get()) effect = target.Get()->DragEnter(event);
      } else if (target.Get() && ioEvent.type() != QEvent::Drop) {
        effect = target.Get()->DragOver(event);
      }
      if (ioEvent.type() != QEvent::Drop || !target.Get()) return;
      mTarget = Target();
      effect = DropEffect::kNone;
      effect = target.Get()->Drop(event);
    });
    ioEvent.setDropAction(ActionOf(effect));
    ioEvent.setAccepted(effect != DropEffect::kNone);
    // The window wants to hear of moves also where nothing takes the drop.
    if (ioEvent.type() == QEvent::DragEnter) ioEvent.accept();
  }

  void Leave() {
    const Target target = std::exchange(mTarget, Target());
    ui::EventGate* const gate = ui::EventGate::Get();
    if (target.Get() && gate) gate->RunGuarded([&] { target.Get()->DragLeave(); });
  }

  QPointer<QWidget> mWidget;
  Target mTarget;
};

OS_DropTarget::OS_DropTarget() : mImpl(std::make_unique<Impl>()) {}

OS_DropTarget::~OS_DropTarget() {
  mImpl->Detach();
}

void OS_DropTarget::Attach(ui::OS_Window& inWindow) {
  LUM_INPUT_CONTRACT(inWindow.UI_GetHandle() != nullptr);
  mImpl->Attach(inWindow.GetPeer()->GetWidget());
}

void OS_DropTarget::Detach() {
  mImpl->Detach();
}

bool OS_DropTarget::IsAttached() const {
  return mImpl->IsAttached();
}

void OS_DropTarget::SetFallbackHandler(const boost::shared_ptr<UI_DragDropHandler>& inHandler) {
  mImpl->mFallback = inHandler;
}

}  // namespace lumui::datatransfer
