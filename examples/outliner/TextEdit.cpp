// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "TextEdit.h"

#include <algorithm>

namespace outliner {

namespace {

bool IsLead(unsigned short inUnit) {
  return (inUnit & 0xFC00) == 0xD800;
}

bool IsTrail(unsigned short inUnit) {
  return (inUnit & 0xFC00) == 0xDC00;
}

}  // namespace

std::size_t TextEdit::Before(std::size_t inCaret) const {
  if (inCaret == 0) return 0;
  const bool isPair = inCaret > 1 && IsTrail(mText[inCaret - 1]) && IsLead(mText[inCaret - 2]);
  return inCaret - (isPair ? 2 : 1);
}

std::size_t TextEdit::Behind(std::size_t inCaret) const {
  if (inCaret == mText.size()) return inCaret;
  const bool isPair =
      inCaret + 1 < mText.size() && IsLead(mText[inCaret]) && IsTrail(mText[inCaret + 1]);
  return inCaret + (isPair ? 2 : 1);
}

void TextEdit::SetCaret(std::size_t inCaret) {
  mCaret = std::min(inCaret, mText.size());
  const bool isInside =
      mCaret > 0 && mCaret < mText.size() && IsTrail(mText[mCaret]) && IsLead(mText[mCaret - 1]);
  if (isInside) --mCaret;
}

void TextEdit::Insert(unsigned short inUnit) {
  mText.insert(mCaret, 1, inUnit);
  ++mCaret;
}

void TextEdit::DeleteBefore() {
  const std::size_t from = Before(mCaret);
  mText.erase(from, mCaret - from);
  mCaret = from;
}

void TextEdit::DeleteBehind() {
  mText.erase(mCaret, Behind(mCaret) - mCaret);
}

void TextEdit::MoveLeft() {
  mCaret = Before(mCaret);
}

void TextEdit::MoveRight() {
  mCaret = Behind(mCaret);
}

void TextEdit::MoveLeftByWord() {
  while (mCaret > 0 && mText[mCaret - 1] == ' ')
    --mCaret;
  while (mCaret > 0 && mText[mCaret - 1] != ' ')
    --mCaret;
}

void TextEdit::MoveRightByWord() {
  while (mCaret < mText.size() && mText[mCaret] == ' ')
    ++mCaret;
  while (mCaret < mText.size() && mText[mCaret] != ' ')
    ++mCaret;
}

}  // namespace outliner
