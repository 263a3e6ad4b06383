// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "datatransfer/ReceivedMimeData.h"

#include <QDir>
#include <QDropEvent>
#include <QSysInfo>
#include <QUrl>

#include "drawbot/QtConvert.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/UI_DragDropHandler.h"
#include "ui/EventGate.h"
#include "ui/QtEvents.h"

namespace lumui::datatransfer {

namespace {

const QString kPlainText = QStringLiteral("text/plain");
// As it came; under the plain name the window system may have converted it.
const QString kExactText = QStringLiteral("text/plain;charset=utf-8");
const QString kFileList = QStringLiteral("text/uri-list");

constexpr struct {
  Qt::DropAction action;
  int effect;
} kEffects[] = {
    {Qt::CopyAction, ui::kDropCopy},
    {Qt::MoveAction, ui::kDropMove},
    {Qt::LinkAction, ui::kDropLink},
};

// Some programs name the machine in front of the path.
QString LocalPathOf(QUrl inURL) {
  if (inURL.host().compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0)
    inURL.setHost(QString());
  const bool here = inURL.isLocalFile() && inURL.host().isEmpty();
  return here ? QDir::toNativeSeparators(inURL.toLocalFile()) : QString();
}

}  // namespace

OS_ReceiveData::OS_ReceiveData() = default;
OS_ReceiveData::~OS_ReceiveData() = default;

std::vector<lumcore::UTF8String> OS_ReceiveData::GetFormats() const {
  return {};
}
bool OS_ReceiveData::Offers(const char*) const {
  return false;
}
bool OS_ReceiveData::OffersText() const {
  return false;
}
bool OS_ReceiveData::OffersFiles() const {
  return false;
}
int OS_ReceiveData::GetAllowedEffects() const {
  return ui::kDropNone;
}
int OS_ReceiveData::GetProposedEffect() const {
  return ui::kDropNone;
}
ui::ModifierKeys OS_ReceiveData::GetModifiers() const {
  return {};
}
bool OS_ReceiveData::IsFromThisProgram() const {
  return false;
}
ReadResult OS_ReceiveData::ReadText(lumcore::UTF16String& outText, std::size_t) const {
  outText.clear();
  return ReadResult::kNotOffered;
}
ReadResult OS_ReceiveData::ReadFiles(std::vector<lumcore::UTF16String>& outPaths) const {
  outPaths.clear();
  return ReadResult::kNotOffered;
}
ReadResult OS_ReceiveData::ReadBytes(const char*, std::string& outBytes, std::size_t) const {
  outBytes.clear();
  return ReadResult::kNotOffered;
}

int EffectsOf(Qt::DropActions inActions) {
  int effects = ui::kDropNone;
  for (const auto& entry : kEffects)
    if (inActions.testFlag(entry.action)) effects |= entry.effect;
  return effects;
}

Qt::DropActions ActionsOf(int inEffects) {
  Qt::DropActions actions;
  for (const auto& entry : kEffects)
    if ((inEffects & entry.effect) != 0) actions |= entry.action;
  return actions;
}

int PickEffect(int inEffects, int inPreferred) {
  if ((inEffects & inPreferred) != 0) return inPreferred;
  for (const auto& entry : kEffects)
    if ((inEffects & entry.effect) != 0) return entry.effect;
  return ui::kDropNone;
}

ReceivedMimeData::ReceivedMimeData(const QDropEvent& inEvent)
    : mData(inEvent.mimeData()),
      mAllowed(EffectsOf(inEvent.possibleActions())),
      mProposed(EffectsOf(inEvent.proposedAction())),
      mModifiers(ui::ModifiersFromQt(inEvent.modifiers())),
      mFromThisProgram(ui::EventGate::Get()->IsDragging()) {}

ReceivedMimeData::~ReceivedMimeData() = default;

std::vector<lumcore::UTF8String> ReceivedMimeData::GetFormats() const {
  std::vector<lumcore::UTF8String> formats;
  if (!mData) return formats;
  for (const QString& format : mData->formats())
    formats.push_back(lumcore::utility::ToUTF8(drawbot::FromQt(format)));
  return formats;
}

bool ReceivedMimeData::Offers(const char* inFormat) const {
  return mData && mData->hasFormat(QString::fromUtf8(inFormat));
}

bool ReceivedMimeData::OffersText() const {
  return mData && (mData->hasFormat(kExactText) || mData->hasFormat(kPlainText));
}

bool ReceivedMimeData::OffersFiles() const {
  return mData && mData->hasFormat(kFileList);
}

ReadResult ReceivedMimeData::Fetch(const QString& inFormat, std::size_t inMaxBytes,
                                   QByteArray& outBytes) const {
  if (!mData || !mData->hasFormat(inFormat)) return ReadResult::kNotOffered;
  outBytes = mData->data(inFormat);
  if (outBytes.isEmpty()) return ReadResult::kNothingCame;
  return static_cast<std::size_t>(outBytes.size()) > inMaxBytes ? ReadResult::kTooLarge
                                                                : ReadResult::kRead;
}

ReadResult ReceivedMimeData::ReadText(lumcore::UTF16String& outText, std::size_t inMaxBytes) const {
  outText.clear();
  QByteArray bytes;
  ReadResult result = Fetch(kExactText, inMaxBytes, bytes);
  if (result == ReadResult::kNotOffered || result == ReadResult::kNothingCame) {
    const ReadResult plain = Fetch(kPlainText, inMaxBytes, bytes);
    if (plain != ReadResult::kNotOffered) result = plain;
  }
  if (result != ReadResult::kRead) return result;
  // Some programs count the end of their text in.
  while (bytes.endsWith('\0'))
    bytes.chop(1);
  outText = drawbot::FromQt(QString::fromUtf8(bytes));
  return bytes.isValidUtf8() ? ReadResult::kRead : ReadResult::kIllFormed;
}

ReadResult ReceivedMimeData::ReadFiles(std::vector<lumcore::UTF16String>& outPaths) const {
  outPaths.clear();
  QByteArray bytes;
  const ReadResult result = Fetch(kFileList, kMaxBytes, bytes);
  if (result != ReadResult::kRead) return result;
  for (const QUrl& url : mData->urls()) {
    const QString path = LocalPathOf(url);
    if (!path.isEmpty()) outPaths.push_back(drawbot::FromQt(path));
  }
  return outPaths.empty() ? ReadResult::kNotOffered : ReadResult::kRead;
}

ReadResult ReceivedMimeData::ReadBytes(const char* inFormat, std::string& outBytes,
                                       std::size_t inMaxBytes) const {
  outBytes.clear();
  QByteArray bytes;
  const ReadResult result = Fetch(QString::fromUtf8(inFormat), inMaxBytes, bytes);
  if (result == ReadResult::kRead) outBytes = bytes.toStdString();
  return result;
}

}  // namespace lumui::datatransfer
