// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <stdlib.h>

#include <stdexcept>
#include <string>

#include "lumcore/filesupport/Dir.h"
#include "lumcore/filesupport/File.h"

// A folder of a test's own, deleted with all that is in it.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string path = lumcore::filesupport::Dir::TempDir().GetPath() + "/vek-test-XXXXXX";
    if (!::mkdtemp(path.data())) throw std::runtime_error("no folder for the test");
    mDir = lumcore::filesupport::Dir(path);
  }
  ~TemporaryFolder() { mDir.RemoveAll(); }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const lumcore::filesupport::Dir& GetDir() const { return mDir; }
  std::string GetPath(const std::string& inName) const { return mDir.GetPath() + "/" + inName; }
  lumcore::filesupport::File GetFile(const std::string& inName) const {
    return lumcore::filesupport::File(GetPath(inName));
  }

  // All files with their contents and all folders: "a=old b/".
  std::string Describe() const {
    std::string text;
    const auto add = [&](const std::string& inPart) { text += (text.empty() ? "" : " ") + inPart; };
    const std::size_t skip = mDir.GetPath().size() + 1;
    for (const auto& file : mDir.GetFiles()) {
      const auto content = file.ReadAll();
      add(file.GetPath().substr(skip) + "=" + std::string(content.begin(), content.end()));
    }
    for (const auto& dir : mDir.GetDirs())
      add(dir.GetPath().substr(skip) + "/");
    return text;
  }

 private:
  lumcore::filesupport::Dir mDir;
};
