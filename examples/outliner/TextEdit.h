// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>

#include "lumcore/Strings.h"

namespace outliner {

// One line of text while it is typed: the text and a caret in it. The caret stands in front of a
// UTF-16 unit, never between the two of one character.
class TextEdit {
 public:
  TextEdit() = default;
  explicit TextEdit(const lumcore::UTF16String& inText) : mText(inText), mCaret(inText.size()) {}

  const lumcore::UTF16String& GetText() const { return mText; }
  std::size_t GetCaret() const { return mCaret; }
  // Beyond the end is the end; inside a character is in front of it.
  void SetCaret(std::size_t inCaret);

  // A character beyond the basic plane comes as two units, one after the other.
  void Insert(unsigned short inUnit);
  void DeleteBefore();
  void DeleteBehind();
  void MoveLeft();
  void MoveRight();
  // To the start of the word before, or behind the end of the word after.
  void MoveLeftByWord();
  void MoveRightByWord();

 private:
  std::size_t Before(std::size_t inCaret) const;
  std::size_t Behind(std::size_t inCaret) const;

  lumcore::UTF16String mText;
  std::size_t mCaret = 0;
};

}  // namespace outliner
