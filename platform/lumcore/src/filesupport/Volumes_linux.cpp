// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/filesupport/Volumes.h"

#include <sys/stat.h>

#include <algorithm>
#include <map>

#include "filesupport/Paths.h"
#include "lumcore/filesupport/File.h"
#include "lumcore/filesupport/FileError.h"

namespace lumcore::filesupport {

namespace {

constexpr std::string_view kNoVolumes[] = {
    "autofs",     "binfmt_misc", "bpf",          "cgroup",     "cgroup2",   "configfs",
    "cpuset",     "debugfs",     "devpts",       "devtmpfs",   "efivarfs",  "fusectl",
    "hugetlbfs",  "mqueue",      "nsfs",         "pipefs",     "proc",      "pstore",
    "ramfs",      "rootfs",      "rpc_pipefs",   "securityfs", "selinuxfs", "smackfs",
    "sockfs",     "squashfs",    "sysfs",        "tmpfs",      "tracefs",   "fuse.gvfsd-fuse",
    "fuse.lxcfs", "fuse.portal", "fuse.snapfuse"};

bool IsFolder(const std::string& inPath) {
  struct stat status = {};
  return ::stat(inPath.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

std::string_view TakeUntil(std::string_view& ioText, char inEnd) {
  const std::size_t end = ioText.find(inEnd);
  const std::string_view taken = ioText.substr(0, end);
  ioText.remove_prefix(end == ioText.npos ? ioText.size() : end + 1);
  return taken;
}

// Numbers of a fixed count of digits behind a mark: "\040" in the mount table, "\x20" in the names
// of labels.
std::string Unescape(std::string_view inText, std::string_view inMark, std::size_t inDigits,
                     int inBase) {
  std::string text;
  for (std::size_t at = 0; at < inText.size();) {
    const std::string digits(inText.substr(std::min(inText.size(), at + inMark.size()), inDigits));
    const std::string_view allowed =
        std::string_view("0123456789abcdef").substr(0, static_cast<std::size_t>(inBase));
    if (inText.substr(at, inMark.size()) == inMark && digits.size() == inDigits &&
        digits.find_first_not_of(allowed) == digits.npos) {
      text += static_cast<char>(std::stoi(digits, nullptr, inBase));
      at += inMark.size() + inDigits;
    } else {
      text += inText[at++];
    }
  }
  return text;
}

}  // namespace

// ID PARENT MAJOR:MINOR ROOT PLACE OPTIONS [TAGS...] - TYPE SOURCE OPTIONS
std::vector<Volume> ReadMountTable(std::string_view inTable) {
  std::map<std::string, Volume> volumes;
  while (!inTable.empty()) {
    std::string_view line = TakeUntil(inTable, '\n');
    for (int skipped = 0; skipped < 4; ++skipped)
      TakeUntil(line, ' ');
    const std::string place = Unescape(TakeUntil(line, ' '), "\\", 3, 8);
    const std::size_t behindTags = line.find(" - ");
    if (place.empty() || behindTags == line.npos) continue;
    line.remove_prefix(behindTags + 3);
    const std::string_view type = TakeUntil(line, ' ');
    const std::string source = Unescape(TakeUntil(line, ' '), "\\", 3, 8);
    const bool isVolume = place == "/" || std::find(std::begin(kNoVolumes), std::end(kNoVolumes),
                                                    type) == std::end(kNoVolumes);
    volumes.erase(place);
    if (isVolume) volumes.emplace(place, Volume{Dir(place), source});
  }
  std::vector<Volume> result;
  for (auto& [place, volume] : volumes)
    result.push_back(std::move(volume));
  return result;
}

std::vector<Volume> GetVolumes() {
  std::vector<Volume> volumes;
  try {
    const UTF8String table = File("/proc/self/mountinfo").ReadAll();
    volumes =
        ReadMountTable(std::string_view(reinterpret_cast<const char*>(table.data()), table.size()));
  } catch (const FileError&) {
    // Without the table there is still the top of the tree.
  }
  // A single file can be mounted over another one.
  volumes.erase(
      std::remove_if(volumes.begin(), volumes.end(),
                     [](const Volume& inVolume) { return !IsFolder(inVolume.dir.GetPath()); }),
      volumes.end());
  if (volumes.empty()) volumes.push_back(Volume{Dir("/"), std::string()});
  return volumes;
}

std::optional<UTF16String> FindVolumeLabel(const Volume& inVolume) {
  if (!IsFolder(inVolume.dir.GetPath())) return std::nullopt;
  struct stat device = {};
  const bool isDevice = ::stat(inVolume.source.c_str(), &device) == 0 && S_ISBLK(device.st_mode);
  const Dir labels("/dev/disk/by-label");
  if (!isDevice || !labels.Exists()) return UTF16String();
  for (const File& label : labels.GetFiles()) {
    struct stat labelled = {};
    if (::stat(label.GetPath().c_str(), &labelled) != 0 || labelled.st_rdev != device.st_rdev)
      continue;
    const std::string name = label.GetPath().substr(labels.GetPath().size() + 1);
    return paths::ToText(Unescape(name, "\\x", 2, 16));
  }
  return UTF16String();
}

}  // namespace lumcore::filesupport
