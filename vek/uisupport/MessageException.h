// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <exception>
#include <string>

#include "lumcore/Strings.h"
#include "vek/config/Export.h"

namespace vek::uisupport {

// A failure that has its own text for the user.
class VEK_API MessageException : public std::exception {
 public:
  ~MessageException() override;

  // An empty text stands for the general one. A text whose first unit is 0 says that the user knows
  // already, and nothing is shown.
  virtual void GetMsg(lumcore::UTF16String& outMessage) const = 0;
};

class VEK_API StringException : public MessageException {
 public:
  explicit StringException(const lumcore::UTF16String& inMessage);
  ~StringException() override;

  void GetMsg(lumcore::UTF16String& outMessage) const override;

 private:
  lumcore::UTF16String mMessage;
};

// The text is looked up when it is asked for. A key that gives no text is shown itself.
class VEK_API StringKeyException : public MessageException {
 public:
  explicit StringKeyException(const char* inKey);
  ~StringKeyException() override;

  void GetMsg(lumcore::UTF16String& outMessage) const override;
  virtual void GetKey(std::string& outKey) const;

 private:
  std::string mKey;
};

}  // namespace vek::uisupport
