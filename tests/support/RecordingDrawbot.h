// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <sstream>
#include <string>

#include "lumui/drawbot/Drawbot.h"

namespace test_support {

// Writes down what is drawn, an operation a line: "fill 0,0,200,60 #1,0.5,0,1". Numbers are as
// they came; a path is told by its points.
class RecordingDrawbot : public lumui::drawbot::Drawbot {
 public:
  std::string Take() { return std::exchange(mText, std::string()); }

  void PushState() override { Add("push"); }
  void PopState() override { Add("pop"); }
  void Translate(float, float) override {}
  void Scale(float, float) override {}
  float GetScale() const override { return 1; }
  void ClipRect(const Rect& inRect) override { Add("clip", inRect); }
  void ClipPath(const lumui::drawbot::Path& inPath) override { Add("clip", inPath.GetBounds()); }
  Rect GetClipBounds() const override { return Rect(); }
  void FillRect(const Rect& inRect, const lumui::drawbot::Brush& inBrush) override {
    Add("fill", inRect, inBrush.GetStartColor());
  }
  void StrokeRect(const Rect& inRect, const lumui::drawbot::Pen& inPen) override {
    Add("stroke", inRect, inPen);
  }
  void StrokeLine(const Point& inStart, const Point& inEnd,
                  const lumui::drawbot::Pen& inPen) override {
    Add("line", inStart, inEnd, inPen);
  }
  void FillPath(const lumui::drawbot::Path& inPath, const lumui::drawbot::Brush& inBrush) override {
    Add("fill", inPath, inBrush.GetStartColor());
  }
  void StrokePath(const lumui::drawbot::Path& inPath, const lumui::drawbot::Pen& inPen) override {
    Add("stroke", inPath, inPen);
  }
  void DrawString(const lumcore::UTF16String& inText, const lumui::drawbot::FontP&,
                  const lumui::drawbot::ColorRGBA&, const Point& inOrigin,
                  lumui::drawbot::TextTruncation, float) override {
    Add("text " + std::string(inText.begin(), inText.end()), inOrigin);
  }
  lumcore::UTF16String TruncateString(const lumcore::UTF16String& inText,
                                      const lumui::drawbot::FontP&, lumui::drawbot::TextTruncation,
                                      float) const override {
    return inText;
  }
  using Drawbot::DrawImage;
  void DrawImage(const lumui::drawbot::ImageInterface&, const Rect& inRect, float) override {
    Add("image", inRect);
  }
  void DrawImageTinted(const lumui::drawbot::ImageInterface&, const Rect& inRect,
                       const lumui::drawbot::ColorRGBA&, float) override {
    Add("image", inRect);
  }
  lumui::drawbot::SupplierInterface* GetSupplier() const override { return nullptr; }

 private:
  template <class... Parts>
  void Add(const std::string& inWhat, const Parts&... inParts) {
    std::ostringstream text;
    text << inWhat;
    ((text << ' ', Write(text, inParts)), ...);
    mText += text.str() + '\n';
  }
  static void Write(std::ostream& ioText, const Rect& inRect) {
    ioText << inRect.x << ',' << inRect.y << ',' << inRect.width << ',' << inRect.height;
  }
  static void Write(std::ostream& ioText, const Point& inPoint) {
    ioText << inPoint.x << ',' << inPoint.y;
  }
  static void Write(std::ostream& ioText, const lumui::drawbot::ColorRGBA& inColor) {
    ioText << '#' << inColor.red << ',' << inColor.green << ',' << inColor.blue << ','
           << inColor.alpha;
  }
  static void Write(std::ostream& ioText, const lumui::drawbot::Pen& inPen) {
    Write(ioText, inPen.color);
    ioText << " by " << inPen.width;
  }
  static void Write(std::ostream& ioText, const lumui::drawbot::Path& inPath) {
    const char* separator = "";
    for (const auto& element : inPath.GetElements()) {
      using Verb = lumui::drawbot::Path::Verb;
      if (element.verb == Verb::kClose) continue;
      ioText << std::exchange(separator, "-");
      Write(ioText, element.points[element.verb == Verb::kBezier ? 2 : 0]);
    }
  }

  std::string mText;
};

}  // namespace test_support
