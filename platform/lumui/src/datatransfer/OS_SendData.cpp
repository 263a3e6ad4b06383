// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/datatransfer/OS_SendData.h"

#include <QDir>
#include <QDrag>
#include <QImage>
#include <QMimeData>
#include <QPixmap>
#include <QPointer>
#include <QUrl>
#include <QWidget>
#include <algorithm>
#include <utility>

#include "datatransfer/HeadlessDrag.h"
#include "datatransfer/ReceivedMimeData.h"
#include "drawbot/QtConvert.h"
#include "drawbot/QtImage.h"
#include "lumcore/debug/Contract.h"
#include "lumcore/utility/ScopedValue.h"
#include "lumui/ui/Application.h"
#include "lumui/ui/OS_Window.h"
#include "lumui/ui/UI_DragDropHandler.h"
#include "ui/EventGate.h"
#include "ui/NodeManagerImpl.h"
#include "ui/NodePeer.h"

namespace lumui::datatransfer {

namespace {

using Make = boost::function<std::string()>;

// Some of the forms are made when they are read. Qt keeps it beyond the drag.
class SentMimeData : public QMimeData {
 public:
  std::vector<std::pair<QString, Make>> mOnDemand;

  QStringList formats() const override {
    QStringList formats = QMimeData::formats();
    for (const auto& entry : mOnDemand)
      formats << entry.first;
    return formats;
  }
  bool hasFormat(const QString& inFormat) const override { return formats().contains(inFormat); }

 protected:
  QVariant retrieveData(const QString& inFormat, QMetaType inType) const override {
    for (const auto& [format, make] : mOnDemand) {
      if (format != inFormat) continue;
      std::string bytes;
      const Make running = make;
      ui::EventGate::Get()->RunGuarded([&] { bytes = running(); });
      return QByteArray(bytes.data(), static_cast<int>(bytes.size()));
    }
    return QMimeData::retrieveData(inFormat, inType);
  }
};

QPixmap PictureOf(const drawbot::ImageInterface& inImage, double inScale) {
  const QSize pixels(qRound(inImage.GetWidth() * inScale), qRound(inImage.GetHeight() * inScale));
  const QImage& raster = drawbot::AsQtImage(inImage).GetRaster(static_cast<float>(inScale), pixels);
  QImage picture = raster.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  picture.setDevicePixelRatio(inScale);
  return QPixmap::fromImage(picture);
}

}  // namespace

class OS_SendData::Content {
 public:
  QString NewFormat(const char* inFormat) {
    const QString format = QString::fromUtf8(inFormat);
    LUM_INPUT_CONTRACT(format.contains(QLatin1Char('/')));
    Forget(format);
    return format;
  }
  void Forget(const QString& inFormat) {
    data.removeFormat(inFormat);
    auto& made = data.mOnDemand;
    made.erase(std::remove_if(made.begin(), made.end(),
                              [&](const auto& inEntry) { return inEntry.first == inFormat; }),
               made.end());
  }

  SentMimeData data;
  boost::intrusive_ptr<drawbot::ImageInterface> image;
  QPointF hotSpot;
};

OS_SendDataBase::~OS_SendDataBase() = default;

OS_SendData::OS_SendData(const ui::OS_Event* inEvent)
    : mEvent(inEvent ? *inEvent : ui::OS_Event()), mContent(std::make_unique<Content>()) {}

OS_SendData::~OS_SendData() = default;

void OS_SendData::AddText(const lumcore::UTF16String& inText) {
  mContent->Forget(QStringLiteral("text/plain"));
  mContent->data.setText(drawbot::ToQt(inText));
}

void OS_SendData::AddFiles(const std::vector<lumcore::UTF16String>& inPaths) {
  QList<QUrl> urls;
  for (const lumcore::UTF16String& path : inPaths) {
    LUM_INPUT_CONTRACT(QDir::isAbsolutePath(drawbot::ToQt(path)));
    urls << QUrl::fromLocalFile(drawbot::ToQt(path));
  }
  mContent->Forget(QStringLiteral("text/uri-list"));
  mContent->data.setUrls(urls);
}

void OS_SendData::AddBytes(const char* inFormat, const std::string& inBytes) {
  const QString format = mContent->NewFormat(inFormat);
  mContent->data.setData(format, QByteArray(inBytes.data(), static_cast<int>(inBytes.size())));
}

void OS_SendData::AddBytesOnDemand(const char* inFormat, const Make& inMake) {
  LUM_INPUT_CONTRACT(!inMake.empty());
  mContent->data.mOnDemand.emplace_back(mContent->NewFormat(inFormat), inMake);
}

void OS_SendData::SetDragImage(const boost::intrusive_ptr<drawbot::ImageInterface>& inImage,
                               const lumcore::geom::PointT<float>& inHotSpot) {
  mContent->image = inImage;
  mContent->hotSpot = drawbot::ToQt(inHotSpot);
}

int OS_SendData::SendByDrag(int inAllowedEffects, int inPreferredEffect) {
  ui::EventGate* const gate = ui::EventGate::Get();
  LUM_INPUT_CONTRACT(gate != nullptr && inAllowedEffects != ui::kDropNone);
  if (gate->IsDragging() || QGuiApplication::mouseButtons() == Qt::NoButton) return ui::kDropNone;
  ui::NodeManagerImpl().capture.End(true);
  const ui::OS_Window* const window = ui::OS_Window::UI_GetWindow(mEvent.window);
  const double scale =
      window ? window->GetPeer()->GetWidget()->devicePixelRatio() : gate->devicePixelRatio();
  auto* const data = new SentMimeData;
  for (const QString& format : mContent->data.QMimeData::formats())
    data->setData(format, mContent->data.data(format));
  data->mOnDemand = mContent->data.mOnDemand;
  const QPointer<SentMimeData> sent(data);
  // Of the application, so that it lives on where the window in which it began dies.
  const QPointer<QDrag> drag(new QDrag(gate));
  drag->setMimeData(data);
  if (mContent->image) {
    drag->setPixmap(PictureOf(*mContent->image, scale));
    drag->setHotSpot(mContent->hotSpot.toPoint());
  }
  const Qt::DropActions actions = ActionsOf(inAllowedEffects);
  const int preferred = PickEffect(inAllowedEffects, inPreferredEffect);
  const int effect = gate->RunDrag([&] {
    if (ui::Application::Get()->IsHeadless()) return EffectsOf(HeadlessDrag(*data, actions).Run());
    return EffectsOf(
        drag->exec(actions, static_cast<Qt::DropAction>(ActionsOf(preferred).toInt())));
  });
  if (ui::Application::Get()->IsHeadless()) delete drag.data();
  if (sent) sent->mOnDemand.clear();
  // Where another program has done what it may not, that counts as the least of what it may.
  return effect == ui::kDropNone ? effect : PickEffect(inAllowedEffects, effect);
}

}  // namespace lumui::datatransfer
