// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMimeData>
#include <QPointer>

#include "lumui/datatransfer/OS_ReceiveData.h"

class QDropEvent;

namespace lumui::datatransfer {

// What an event of Qt's brings. The source may take its data away while a handler runs a loop of
// its own; nothing comes then.
class ReceivedMimeData : public OS_ReceiveData {
 public:
  explicit ReceivedMimeData(const QDropEvent& inEvent);
  ~ReceivedMimeData() override;

  std::vector<lumcore::UTF8String> GetFormats() const override;
  bool Offers(const char* inFormat) const override;
  bool OffersText() const override;
  bool OffersFiles() const override;
  int GetAllowedEffects() const override { return mAllowed; }
  int GetProposedEffect() const override { return mProposed; }
  ui::ModifierKeys GetModifiers() const override { return mModifiers; }
  bool IsFromThisProgram() const override { return mFromThisProgram; }
  ReadResult ReadText(lumcore::UTF16String& outText, std::size_t inMaxBytes) const override;
  ReadResult ReadFiles(std::vector<lumcore::UTF16String>& outPaths) const override;
  ReadResult ReadBytes(const char* inFormat, std::string& outBytes,
                       std::size_t inMaxBytes) const override;

 private:
  ReadResult Fetch(const QString& inFormat, std::size_t inMaxBytes, QByteArray& outBytes) const;

  const QPointer<const QMimeData> mData;
  const int mAllowed;
  const int mProposed;
  const ui::ModifierKeys mModifiers;
  const bool mFromThisProgram;
};

// Between ui::DropEffect and Qt's actions.
int EffectsOf(Qt::DropActions inActions);
Qt::DropActions ActionsOf(int inEffects);
// One of several effects: the preferred one, else the one that does least.
int PickEffect(int inEffects, int inPreferred);

}  // namespace lumui::datatransfer
