// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "lumcore/config/ThrowError.h"
#include "support/DrawbotPictures.h"

using namespace lumui::drawbot;
using namespace test_support;

namespace {

using ImageP = boost::intrusive_ptr<ImageInterface>;

constexpr const char* kDisc =
    "<?xml version='1.0'?><svg xmlns='http://www.w3.org/2000/svg' width='8' height='4'>"
    "<rect x='0' y='0' width='4' height='4' fill='#ff0000'/></svg>";

class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "drawbotXXXXXX").string();
    mPath = mkdtemp(name.data());
  }
  ~TemporaryFolder() { std::filesystem::remove_all(mPath); }
  std::string operator/(const char* inName) const { return (mPath / inName).string(); }

 private:
  std::filesystem::path mPath;
};

std::string ReadBytes(const std::string& inPath) {
  std::ifstream file(inPath, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

void WriteBytes(const std::string& inPath, const std::string& inBytes) {
  std::ofstream(inPath, std::ios::binary) << inBytes;
}

// What the call threw, or "nothing".
template <class Call>
std::string ErrorOf(Call inCall) {
  try {
    inCall();
  } catch (const lumcore::config::Error& error) {
    return error.what();
  }
  return "nothing";
}

}  // namespace

class Images : public DrawbotTest {
 protected:
  ImageP Filled(float inWidth, float inHeight, float inScale, const ColorRGBA& inColor) const {
    auto surface = NewSurface(inWidth, inHeight, inScale);
    surface->GetDrawbot().FillRect(Rect(0, 0, inWidth + 1, inHeight + 1), inColor);
    return surface->MakeImage();
  }
  std::string Load(const std::string& inBytes) const {
    return ErrorOf([&] { mSupplier.NewImageFromBytes(inBytes, "icons/a.bin"); });
  }

  TemporaryFolder mFolder;
};

TEST_F(Images, RasterOfTheSurfacesScaleIsDrawn) {
  // Out of order, and of an odd size whose half is not a whole pixel.
  const ImageP image = mSupplier.NewMultiScaleImage(
      {Filled(5, 3, 2, kBlue), Filled(5, 3, 1, kRed), Filled(5, 3, 1.5f, kGreen)});
  EXPECT_EQ(image->GetWidth(), 5);
  EXPECT_EQ(image->GetHeight(), 3);
  struct Row {
    float surfaceScale;
    ColorRGBA expected;
  };
  for (const Row& row : {Row{0.5f, kRed}, Row{1, kRed}, Row{1.25f, kGreen}, Row{1.5f, kGreen},
                         Row{2, kBlue}, Row{3, kBlue}}) {
    auto surface = NewSurface(9, 9, row.surfaceScale);
    surface->GetDrawbot().DrawImage(*image, Point(2, 2));
    const int inside = static_cast<int>(3.5f * row.surfaceScale);
    EXPECT_EQ(surface->GetPixel(inside, inside), row.expected) << row.surfaceScale;
    EXPECT_EQ(surface->GetPixel(static_cast<int>(8 * row.surfaceScale), inside).alpha, 0);
  }
  // Drawn at twice its size the image shows the raster for that.
  auto surface = NewSurface(10, 6);
  surface->GetDrawbot().DrawImage(*image, Rect(0, 0, 10, 6));
  EXPECT_EQ(surface->GetPixel(9, 5), kBlue);
}

TEST_F(Images, UnscaledRasterStaysSharpBetweenPixels) {
  auto surface = NewSurface(5, 4);
  surface->GetDrawbot().DrawImage(*Filled(3, 2, 1, kGreen), Point(1.3f, 0.6f));
  EXPECT_EQ(ToText(*surface), ".....\n.GGG.\n.GGG.\n.....\n");
}

TEST_F(Images, VectorPictureIsSharpAtEveryScale) {
  const ImageP image = mSupplier.NewImageFromBytes(kDisc, "disc.svg");
  EXPECT_EQ(image->GetWidth(), 8);
  EXPECT_EQ(image->GetHeight(), 4);
  for (const int scale : {1, 2, 3, 5, 7, 1}) {
    auto surface = NewSurface(8, 4, static_cast<float>(scale));
    surface->GetDrawbot().DrawImage(*image, Point(0, 0));
    for (int x = 0; x < 8 * scale; ++x) {
      const ColorRGBA pixel = surface->GetPixel(x, 2 * scale);
      EXPECT_EQ(pixel, x < 4 * scale ? kRed : ColorRGBA(0, 0, 0, 0)) << scale << ' ' << x;
    }
  }
}

TEST_F(Images, OpacityAndTintKeepTheShape) {
  const ImageP image = mSupplier.NewImageFromBytes(kDisc, "disc.svg");
  auto surface = NewSurface(8, 13);
  Drawbot& drawbot = surface->GetDrawbot();
  drawbot.DrawImageTinted(*image, Rect(0, 0, 8, 4), kBlue);
  drawbot.DrawImage(*image, Point(0, 4), ImageInterface::kDisabledOpacity);
  drawbot.DrawImage(*image, Point(0, 8), 0);
  drawbot.FillRect(Rect(0, 12, 1, 1), kGreen);
  EXPECT_EQ(surface->GetPixel(3, 3), kBlue);
  EXPECT_EQ(surface->GetPixel(4, 3).alpha, 0);
  EXPECT_NEAR(surface->GetPixel(3, 6).alpha, ImageInterface::kDisabledOpacity, 0.01);
  EXPECT_EQ(surface->GetPixel(3, 10).alpha, 0);
  EXPECT_EQ(surface->GetPixel(0, 12), kGreen);
}

TEST_F(Images, SavedPictureComesBackAndLaterDrawingLeavesAnImageAlone) {
  auto surface = NewSurface(3, 2, 2);
  Drawbot& drawbot = surface->GetDrawbot();
  drawbot.FillRect(Rect(0, 0, 1, 1), kRed);
  drawbot.FillRect(Rect(1, 1, 2, 1), kBlue.WithAlpha(0.2f));
  const ImageP before = surface->MakeImage();
  const std::string path = mFolder / "größe.png";
  surface->SavePNG(path);
  drawbot.FillRect(Rect(0, 0, 3, 2), kGreen);
  for (const ImageP& image : {before, mSupplier.NewImageFromFile(path, 2)}) {
    EXPECT_EQ(image->GetWidth(), 3);
    auto copy = NewSurface(3, 2, 2);
    copy->GetDrawbot().DrawImage(*image, Point(0, 0));
    EXPECT_EQ(ToText(*copy), "RR....\nRR....\n..++++\n..++++\n");
    EXPECT_NEAR(copy->GetPixel(5, 3).alpha, 0.2f, 0.01);
  }
}

TEST_F(Images, FailedSaveNamesThePathAndTheCause) {
  auto surface = NewSurface(3, 2);
  const std::string missing = mFolder / "no/such/folder.png";
  const std::string error = ErrorOf([&] { surface->SavePNG(missing); });
  EXPECT_NE(error.find(missing), error.npos) << error;
  EXPECT_NE(error.find("No such file"), error.npos) << error;
  EXPECT_FALSE(std::filesystem::exists(mFolder / "no"));
}

TEST_F(Images, UnreadablePictureIsRefusedWithItsNameAndTheCause) {
  struct Row {
    std::string bytes;
    const char* cause;
  };
  const Row rows[] = {
      {"", "it is empty"},
      {std::string("GIF89a\x01\x00", 8), "neither a PNG nor an SVG"},
      {"<html><svg width='9' height='9'/></html>", "neither a PNG nor an SVG"},
      {"<svg xmlns='http://www.w3.org/2000/svg'\n width='9' height='9'><g>\n</svg>", "line 3"},
      {"<svg xmlns='http://www.w3.org/2000/svg' width='9", "line 1"},
      {"<svg xmlns='http://www.w3.org/2000/svg' width='0' height='0'/>", "0 by 0"},
      {"<svg xmlns='http://www.w3.org/2000/svg' width='99999' height='1'/>", "99999 by 1"},
  };
  for (const Row& row : rows) {
    const std::string error = Load(row.bytes);
    EXPECT_NE(error.find("icons/a.bin"), error.npos) << error;
    EXPECT_NE(error.find(row.cause), error.npos) << error << " for " << row.bytes;
  }
  const std::string missing = mFolder / "gone.png";
  const std::string error = ErrorOf([&] { mSupplier.NewImageFromFile(missing); });
  EXPECT_NE(error.find(missing), error.npos) << error;
  EXPECT_NE(error.find("No such file"), error.npos) << error;
  const std::string folder = ErrorOf([&] { mSupplier.NewImageFromFile(mFolder / ""); });
  EXPECT_NE(folder.find(mFolder / ""), folder.npos) << folder;
}

TEST_F(Images, DamagedPNGIsRefusedWhereverItIsCutOrBroken) {
  auto surface = NewSurface(20, 20);
  for (int i = 0; i < 20; ++i) {
    const float shade = static_cast<float>(i) / 20;
    surface->GetDrawbot().FillRect(Rect(0, shade * 20, 20 - shade * 20, 1),
                                   ColorRGBA(shade, 1 - shade, shade * shade));
  }
  const std::string path = mFolder / "whole.png";
  surface->SavePNG(path);
  const std::string whole = ReadBytes(path);
  EXPECT_EQ(Load(whole), "nothing");
  // The last chunk, of 12 bytes, only says that the picture ends.
  for (std::size_t size = 0; size < whole.size() - 12; ++size) {
    const std::string error = Load(whole.substr(0, size));
    ASSERT_NE(error.find("icons/a.bin"), error.npos) << size << " of " << whole.size();
  }
  // The width says a million: the header's checksum no longer fits it.
  std::string huge = whole;
  huge.replace(16, 4, std::string("\x00\x0F\x42\x40", 4));
  const std::string damaged = mFolder / "huge.png";
  WriteBytes(damaged, huge);
  const std::string error = ErrorOf([&] { mSupplier.NewImageFromFile(damaged); });
  EXPECT_NE(error.find(damaged), error.npos) << error;
}

TEST_F(Images, SurfacesOfNoSizeOrBeyondTheLimitAreRefused) {
  for (const Rect& size : {Rect(0, 0, 0, 5), Rect(0, 0, 5, -1), Rect(0, 0, 20000, 1)}) {
    EXPECT_THROW(NewSurface(size.width, size.height), lumcore::config::Error);
  }
  EXPECT_THROW(NewSurface(9000, 1, 2), lumcore::config::Error);
  EXPECT_THROW(NewSurface(5, 5, 0), lumcore::config::Error);
  EXPECT_EQ(NewSurface(3, 5, 1.5f)->GetPixelWidth(), 5);
}
