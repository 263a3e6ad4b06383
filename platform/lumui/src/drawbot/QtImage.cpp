// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "drawbot/QtImage.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>
#include <QXmlStreamReader>
#include <algorithm>
#include <deque>
#include <memory>

#include "drawbot/ImageError.h"
#include "drawbot/QtConvert.h"
#include "lumcore/debug/Contract.h"
#include "lumui/drawbot/SupplierInterface.h"

namespace lumui::drawbot {

namespace {

constexpr int kMaxPixels = SupplierInterface::kMaxSurfacePixels;
// A vector picture keeps its last rasters: an icon stands in a window at one size or two, and
// windows on screens of different scale double that.
constexpr std::size_t kKeptRasters = 4;
constexpr std::string_view kPNGSignature("\x89PNG\r\n\x1a\n", 8);

void CheckSize(std::string_view inName, double inWidth, double inHeight) {
  const bool fits =
      inWidth >= 1 && inHeight >= 1 && inWidth <= kMaxPixels && inHeight <= kMaxPixels;
  if (!fits) ThrowBadSize(inName, inWidth, inHeight);
}

// One picture at one or more scales, the least first.
class RasterImage : public QtImage {
 public:
  struct Raster {
    float scale;
    QImage pixels;
  };

  RasterImage(float inWidth, float inHeight, std::vector<Raster> inRasters)
      : QtImage(inWidth, inHeight), mRasters(std::move(inRasters)) {
    std::stable_sort(mRasters.begin(), mRasters.end(),
                     [](const Raster& inA, const Raster& inB) { return inA.scale < inB.scale; });
  }

  float PickScale(float inSurfaceScale) const override { return Pick(inSurfaceScale).scale; }
  const QImage& GetRaster(float inSurfaceScale, const QSize&) const override {
    return Pick(inSurfaceScale).pixels;
  }
  const std::vector<Raster>& GetRasters() const { return mRasters; }

 private:
  const Raster& Pick(float inSurfaceScale) const {
    for (const Raster& raster : mRasters) {
      if (raster.scale >= inSurfaceScale) return raster;
    }
    return mRasters.back();
  }

  std::vector<Raster> mRasters;
};

class VectorImage : public QtImage {
 public:
  explicit VectorImage(std::unique_ptr<QSvgRenderer> inRenderer)
      : QtImage(static_cast<float>(inRenderer->defaultSize().width()),
                static_cast<float>(inRenderer->defaultSize().height())),
        mRenderer(std::move(inRenderer)) {}

  float PickScale(float inSurfaceScale) const override { return inSurfaceScale; }

  const QImage& GetRaster(float, const QSize& inPixels) const override {
    const QSize size = inPixels.boundedTo(QSize(kMaxPixels, kMaxPixels));
    for (const QImage& raster : mRasters) {
      if (raster.size() == size) return raster;
    }
    if (mRasters.size() == kKeptRasters) mRasters.pop_front();
    QImage raster(size, QImage::Format_ARGB32_Premultiplied);
    raster.fill(Qt::transparent);
    QPainter painter(&raster);
    mRenderer->render(&painter);
    painter.end();
    mRasters.push_back(raster);
    return mRasters.back();
  }

 private:
  std::unique_ptr<QSvgRenderer> mRenderer;
  mutable std::deque<QImage> mRasters;
};

boost::intrusive_ptr<ImageInterface> LoadPNG(const QByteArray& inBytes, std::string_view inName,
                                             float inScale) {
  QBuffer buffer;
  buffer.setData(inBytes);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer, "png");
  // Asked for before the pixels: a header can claim any size.
  const QSize size = reader.size();
  if (size.isValid()) CheckSize(inName, size.width(), size.height());
  const QImage pixels = reader.read();
  if (pixels.isNull()) ThrowDamaged(inName, reader.errorString());
  return MakeRasterImage(pixels, inScale);
}

// The renderer takes what it understands of broken XML and says nothing, so the XML is read first
// for its own sake. External entities are never fetched by this reader.
void CheckSVG(const QByteArray& inBytes, std::string_view inName) {
  QXmlStreamReader reader(inBytes);
  bool isSVG = false;
  bool isRoot = true;
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement || !isRoot) continue;
    isRoot = false;
    isSVG = reader.name() == QLatin1String("svg");
  }
  if (reader.hasError()) {
    ThrowDamaged(inName, QString("line %1, column %2: %3")
                             .arg(reader.lineNumber())
                             .arg(reader.columnNumber())
                             .arg(reader.errorString()));
  }
  if (!isSVG) ThrowCannotRead(inName, "it is neither a PNG nor an SVG picture");
}

boost::intrusive_ptr<ImageInterface> LoadSVG(const QByteArray& inBytes, std::string_view inName) {
  CheckSVG(inBytes, inName);
  auto renderer = std::make_unique<QSvgRenderer>();
  if (!renderer->load(inBytes)) ThrowDamaged(inName, "its drawing cannot be understood");
  const QSize size = renderer->defaultSize();
  CheckSize(inName, size.width(), size.height());
  return boost::intrusive_ptr<ImageInterface>(new VectorImage(std::move(renderer)));
}

bool MayBeXML(std::string_view inBytes) {
  if (inBytes.substr(0, 3) == "\xEF\xBB\xBF") inBytes.remove_prefix(3);
  const auto first = inBytes.find_first_not_of(" \t\r\n");
  return first != inBytes.npos && inBytes[first] == '<';
}

}  // namespace

boost::intrusive_ptr<ImageInterface> MakeRasterImage(const QImage& inPixels, float inScale) {
  LUM_INPUT_CONTRACT(inScale > 0);
  QImage pixels = inPixels.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  const float width = static_cast<float>(pixels.width()) / inScale;
  const float height = static_cast<float>(pixels.height()) / inScale;
  return boost::intrusive_ptr<ImageInterface>(
      new RasterImage(width, height, {{inScale, std::move(pixels)}}));
}

boost::intrusive_ptr<ImageInterface> LoadImageFile(std::string_view inPath, float inScale) {
  QFile file(ToQt(inPath));
  if (!file.open(QIODevice::ReadOnly)) ThrowCannotRead(inPath, file.errorString());
  const QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) ThrowCannotRead(inPath, file.errorString());
  return LoadImageBytes(std::string_view(bytes.data(), static_cast<std::size_t>(bytes.size())),
                        inPath, inScale);
}

boost::intrusive_ptr<ImageInterface> LoadImageBytes(std::string_view inBytes,
                                                    std::string_view inName, float inScale) {
  LUM_INPUT_CONTRACT(inScale > 0);
  if (inBytes.empty()) ThrowCannotRead(inName, "it is empty");
  const QByteArray bytes(inBytes.data(), static_cast<qsizetype>(inBytes.size()));
  if (inBytes.substr(0, kPNGSignature.size()) == kPNGSignature) {
    return LoadPNG(bytes, inName, inScale);
  }
  if (MayBeXML(inBytes)) return LoadSVG(bytes, inName);
  ThrowCannotRead(inName, "it is neither a PNG nor an SVG picture");
}

boost::intrusive_ptr<ImageInterface> JoinImages(
    const std::vector<boost::intrusive_ptr<ImageInterface>>& inImages) {
  LUM_INPUT_CONTRACT(!inImages.empty());
  std::vector<RasterImage::Raster> rasters;
  for (const auto& image : inImages) {
    const auto* raster = dynamic_cast<const RasterImage*>(image.get());
    LUM_INPUT_CONTRACT(raster != nullptr);
    rasters.insert(rasters.end(), raster->GetRasters().begin(), raster->GetRasters().end());
  }
  const float width = inImages.front()->GetWidth();
  const float height = inImages.front()->GetHeight();
  return boost::intrusive_ptr<ImageInterface>(new RasterImage(width, height, std::move(rasters)));
}

const QtImage& AsQtImage(const ImageInterface& inImage) {
  const auto* image = dynamic_cast<const QtImage*>(&inImage);
  LUM_INPUT_CONTRACT(image != nullptr);
  return *image;
}

}  // namespace lumui::drawbot
