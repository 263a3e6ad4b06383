// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ui/DialogArchives.h"

#include <algorithm>
#include <boost/make_shared.hpp>

#include "lumcore/proplist/Utils.h"

namespace lumui::ui {

namespace {

constexpr std::size_t kMostKept = 8;

}  // namespace

DialogArchives& DialogArchives::Get() {
  static DialogArchives* const sArchives = new DialogArchives;
  return *sArchives;
}

boost::shared_ptr<const lumcore::proplist::PropList> DialogArchives::Read(
    const std::vector<unsigned char>& inBytes, const lumcore::UTF16String& inName) {
  const auto known =
      std::find_if(mArchives.begin(), mArchives.end(), [&](const Archive& inArchive) {
        return std::equal(inArchive.bytes.begin(), inArchive.bytes.end(), inBytes.begin(),
                          inBytes.end());
      });
  if (known != mArchives.end()) return known->list;
  const lumcore::UTF8String bytes(inBytes.begin(), inBytes.end());
  const auto list = boost::make_shared<lumcore::proplist::PropList>();
  lumcore::proplist::utils::LoadPropListFromBuffer(bytes, inName, *list, false);
  if (mArchives.size() == kMostKept) mArchives.pop_front();
  mArchives.push_back({bytes, list});
  return list;
}

}  // namespace lumui::ui
