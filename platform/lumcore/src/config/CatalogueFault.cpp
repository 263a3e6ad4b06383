// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <cstdint>

#include "config/Catalogue.h"
#include "lumcore/config/Localizer.h"

namespace lumcore::config {

namespace {

constexpr std::uint32_t kMagic = 0x950412de;
constexpr std::size_t kHeaderSize = 28;
constexpr std::size_t kEntrySize = 8;  // length and offset of one text

// Where the header keeps its numbers.
constexpr std::size_t kVersionAt = 4;
constexpr std::size_t kCountAt = 8;
constexpr std::size_t kKeysAt = 12;
constexpr std::size_t kTextsAt = 16;
constexpr std::size_t kHashSizeAt = 20;
constexpr std::size_t kHashAt = 24;

class Bytes {
 public:
  explicit Bytes(std::string_view inBytes) : mBytes(inBytes) { mIsBigEndian = Number(0) != kMagic; }

  bool HasMagic() const { return Number(0) == kMagic; }
  bool Holds(std::uint64_t inAt, std::uint64_t inSize) const {
    return inAt <= mBytes.size() && inSize <= mBytes.size() - inAt;
  }
  std::uint32_t Number(std::size_t inAt) const {
    std::uint32_t number = 0;
    for (std::size_t byte = 0; byte < 4; ++byte) {
      const std::size_t shift = 8 * (mIsBigEndian ? 3 - byte : byte);
      number |= std::uint32_t{static_cast<unsigned char>(mBytes[inAt + byte])} << shift;
    }
    return number;
  }
  // Each text ends with a zero, which its length does not count.
  bool HoldsTexts(std::size_t inTable, std::uint32_t inCount) const {
    if (!Holds(inTable, std::uint64_t{inCount} * kEntrySize)) return false;
    for (std::size_t at = inTable; at < inTable + inCount * kEntrySize; at += kEntrySize) {
      const std::uint64_t length = Number(at);
      const std::uint64_t offset = Number(at + 4);
      if (!Holds(offset, length + 1) || mBytes[offset + length] != 0) return false;
    }
    return true;
  }
  // A slot is 0 when it is free, else the number of a text from 1. A search steps by a remainder of
  // the size less two, and ends at a free slot.
  bool HasSoundHash(std::size_t inTable, std::uint32_t inSize, std::uint32_t inCount) const {
    if (inSize == 0) return true;
    if (inSize <= 2 || !Holds(inTable, std::uint64_t{inSize} * 4)) return false;
    bool hasFree = false;
    for (std::uint32_t slot = 0; slot < inSize; ++slot) {
      const std::uint32_t number = Number(inTable + std::size_t{slot} * 4);
      if (number > inCount) return false;
      hasFree = hasFree || number == 0;
    }
    return hasFree;
  }

 private:
  std::string_view mBytes;
  bool mIsBigEndian = false;
};

}  // namespace

UTF16String FindCatalogueFault(std::string_view inBytes) {
  const auto text = [](const char* inKey) { return Localizer::Get()->GetLocalizedString(inKey); };
  constexpr const char* kNoCatalogue =
      "$$$/lumcore/config/Error/NoCatalogue=it is no compiled gettext catalogue";
  if (inBytes.size() < kHeaderSize) return text(kNoCatalogue);
  const Bytes bytes(inBytes);
  if (!bytes.HasMagic()) return text(kNoCatalogue);
  if (bytes.Number(kVersionAt) >> 16 > 1) {
    return text("$$$/lumcore/config/Error/CatalogueVersion=it has a newer format");
  }
  const std::uint32_t count = bytes.Number(kCountAt);
  if (count == 0 || !bytes.HoldsTexts(bytes.Number(kKeysAt), count) ||
      !bytes.HoldsTexts(bytes.Number(kTextsAt), count) ||
      !bytes.HasSoundHash(bytes.Number(kHashAt), bytes.Number(kHashSizeAt), count)) {
    return text("$$$/lumcore/config/Error/CatalogueCutOff=it is damaged, or ends too early");
  }
  return {};
}

}  // namespace lumcore::config
