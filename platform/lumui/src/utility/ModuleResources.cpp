// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/utility/ModuleResources.h"

#include <QDirIterator>
#include <QResource>
#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include "drawbot/QtConvert.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/ModuleHandle.h"
#include "utility/ContainerChecksum.h"
#include "utility/ResourceError.h"
#include "utility/ResourceRegistry.h"

namespace lumui::utility {

using lumcore::UTF16String;
using lumcore::utility::FoldCase;

struct ModuleResources::Container {
  Container(const unsigned char* inBytes, std::size_t inSize, std::uint64_t inChecksum)
      : mBytes(inBytes),
        mSize(inSize),
        mChecksum(inChecksum),
        mModule(ui::ModuleOfAddress(inBytes)) {}
  ~Container() {
    if (!mRoot.isEmpty()) QResource::unregisterResource(mBytes, mRoot);
  }

  // Names and types in folded case.
  using Key = std::pair<UTF16String, UTF16String>;

  void Open();

  const unsigned char* mBytes;
  std::size_t mSize;
  std::uint64_t mChecksum;
  HINSTANCE mModule;
  QString mRoot;  // empty until the container is open
  std::map<Key, std::string_view> mEntries;
};

namespace {

// Statics of a library are destroyed before those of the libraries that it needs, so the list
// outlives what other modules have in it.
template <class Container>
std::vector<Container*>& Containers() {
  static std::vector<Container*> sContainers;
  return sContainers;
}

// The toolkit has one tree of names for the whole process. A root for each container keeps equal
// names of different modules apart.
QString NextRoot() {
  static int sCount = 0;
  return QStringLiteral("/lumui/modules/%1").arg(++sCount);
}

}  // namespace

void ModuleResources::Container::Open() {
  if (!mRoot.isEmpty()) return;
  // The toolkit trusts the offsets in the bytes, so they are checked before it sees them.
  if (ContainerChecksum(mBytes, mSize) != mChecksum) {
    ThrowDamagedContainer(mModule, "the checksum differs from that of the build");
  }
  QString root = NextRoot();
  if (!QResource::registerResource(mBytes, root)) {
    ThrowDamagedContainer(mModule, "it is of a form that is not known here");
  }
  mRoot = std::move(root);
  QDirIterator files(QLatin1Char(':') + mRoot, QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QResource resource(files.next());
    const QString type = files.fileInfo().dir().dirName();
    mEntries[{FoldCase(drawbot::FromQt(files.fileName())), FoldCase(drawbot::FromQt(type))}] =
        std::string_view(reinterpret_cast<const char*>(resource.data()),
                         static_cast<std::size_t>(resource.size()));
  }
}

ModuleResources::ModuleResources(const unsigned char* inBytes, std::size_t inSize,
                                 std::uint64_t inChecksum)
    : mContainer(std::make_unique<Container>(inBytes, inSize, inChecksum)) {
  Containers<Container>().push_back(mContainer.get());
}

ModuleResources::~ModuleResources() {
  auto& all = Containers<Container>();
  all.erase(std::remove(all.begin(), all.end(), mContainer.get()), all.end());
}

ResourceRegistry::Found ResourceRegistry::Find(HINSTANCE inModule, const UTF16String& inName,
                                               const UTF16String& inType) {
  using Container = ModuleResources::Container;
  const Container::Key key(FoldCase(inName), FoldCase(inType));
  for (Container* container : Containers<Container>()) {
    if (container->mModule != inModule) continue;
    container->Open();
    const auto found = container->mEntries.find(key);
    if (found != container->mEntries.end()) return {true, found->second};
  }
  return {false, {}};
}

}  // namespace lumui::utility
