// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "lumcore/Strings.h"
#include "lumui/Export.h"
#include "lumui/ui/ModifierKeys.h"

namespace lumui::datatransfer {

// What became of a read. The result is complete or empty, but for ill-formed text.
enum class ReadResult {
  kRead,
  kNotOffered,   // the source has no such data
  kNothingCame,  // it offered them, and has gone, does not answer, or sent nothing
  kTooLarge,     // more than the reader allows
  kIllFormed,    // text that is no UTF-8, with U+FFFD where it is not
};

// What is dragged over one of our windows. It knows at once what is offered; the data themselves
// are fetched from the source when they are read, from another program by way of the window system,
// which gives a silent source some seconds before it gives up.
class LUMUI_API OS_ReceiveData {
 public:
  static constexpr std::size_t kMaxBytes = 64 << 20;

  OS_ReceiveData();  // offers nothing
  virtual ~OS_ReceiveData();
  OS_ReceiveData(const OS_ReceiveData&) = delete;
  OS_ReceiveData& operator=(const OS_ReceiveData&) = delete;

  // By the names of media types, "image/png", as the source orders them.
  virtual std::vector<lumcore::UTF8String> GetFormats() const;
  virtual bool Offers(const char* inFormat) const;
  virtual bool OffersText() const;
  virtual bool OffersFiles() const;

  virtual int GetAllowedEffects() const;  // a sum of ui::DropEffect
  virtual int GetProposedEffect() const;  // one of them
  virtual ui::ModifierKeys GetModifiers() const;
  virtual bool IsFromThisProgram() const;

  virtual ReadResult ReadText(lumcore::UTF16String& outText,
                              std::size_t inMaxBytes = kMaxBytes) const;
  // Full paths, as they are told: nobody looks whether the files are there. What lies on another
  // machine is passed over.
  virtual ReadResult ReadFiles(std::vector<lumcore::UTF16String>& outPaths) const;
  virtual ReadResult ReadBytes(const char* inFormat, std::string& outBytes,
                               std::size_t inMaxBytes = kMaxBytes) const;
};

}  // namespace lumui::datatransfer
