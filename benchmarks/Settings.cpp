// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <QSettings>

#include <filesystem>
#include <stdexcept>
#include <string>

#include "lumcore/proplist/Utils.h"
#include "lumcore/utility/StringUtils.h"
#include "support/Pair.h"

namespace {

using lumcore::filesupport::File;
using lumcore::proplist::PropList;
namespace utils = lumcore::proplist::utils;

constexpr int kGroups = 100;
constexpr int kKeysInGroup = 100;

// A folder of its own for the files, gone with the process.
class Workbench {
 public:
  Workbench() {
    std::string folder = (std::filesystem::temp_directory_path() / "settings-XXXXXX").string();
    if (!mkdtemp(folder.data())) throw std::runtime_error("cannot make a folder: " + folder);
    mFolder = folder;
  }
  ~Workbench() {
    std::error_code ignored;  // what cannot be removed stays in the folder of temporary files
    std::filesystem::remove_all(mFolder, ignored);
  }
  std::string GetPath(const std::string& inName) const { return (mFolder / inName).string(); }

 private:
  std::filesystem::path mFolder;
};

std::string Name(const char* inWhat, int inNumber) {
  return inWhat + std::to_string(inNumber);
}

std::string Text(int inNumber) {
  return "/home/somebody/Projekte/\xC3\x9C"
         "bersicht " +
         std::to_string(inNumber) + ".doc";
}

// Half of the keys are texts, the others numbers and flags.
PropList MakeList() {
  PropList list;
  for (int group = 0; group < kGroups; ++group) {
    PropList& sub = list.CreateSubList(Name("Group", group).c_str());
    for (int key = 0; key < kKeysInGroup; ++key) {
      const std::string name = Name("someSetting", key);
      if (key % 2 == 0) {
        sub.Set(name.c_str(), lumcore::utility::ToUTF16(Text(key)));
      } else if (key % 4 == 1) {
        sub.Set<std::int32_t>(name.c_str(), group * key);
      } else {
        sub.Set(name.c_str(), group % 2 == 0);
      }
    }
  }
  return list;
}

void Fill(QSettings& ioSettings) {
  for (int group = 0; group < kGroups; ++group) {
    ioSettings.beginGroup(QString::fromStdString(Name("Group", group)));
    for (int key = 0; key < kKeysInGroup; ++key) {
      const QString name = QString::fromStdString(Name("someSetting", key));
      if (key % 2 == 0) {
        ioSettings.setValue(name, QString::fromStdString(Text(key)));
      } else if (key % 4 == 1) {
        ioSettings.setValue(name, group * key);
      } else {
        ioSettings.setValue(name, group % 2 == 0);
      }
    }
    ioSettings.endGroup();
  }
}

void Load(benchmark::State& ioState, const Workbench& inBench) {
  const File file(inBench.GetPath("read.xml"));
  const PropList written = MakeList();
  utils::SavePropList(file, written);
  PropList list;
  for (auto _ : ioState)
    utils::LoadPropList(file, list, false);
  if (list != written) ioState.SkipWithError("the list is not the one that was saved");
}

void Save(benchmark::State& ioState, const Workbench& inBench) {
  const File file(inBench.GetPath("saved.xml"));
  const PropList list = MakeList();
  for (auto _ : ioState)
    utils::SavePropList(file, list);
  PropList back;
  utils::LoadPropList(file, back, false);
  if (back != list) ioState.SkipWithError("the saved list is not the one in memory");
}

// It keeps what it has read in mind, so each reading is of another file.
void LoadPeer(benchmark::State& ioState, const Workbench& inBench) {
  {
    QSettings settings(QString::fromStdString(inBench.GetPath("read.ini")), QSettings::IniFormat);
    Fill(settings);
  }
  int round = 0;
  for (auto _ : ioState) {
    ioState.PauseTiming();
    const std::string path = inBench.GetPath(Name("read.ini.", ++round));
    std::filesystem::copy_file(inBench.GetPath("read.ini"), path,
                               std::filesystem::copy_options::overwrite_existing);
    ioState.ResumeTiming();
    const QSettings settings(QString::fromStdString(path), QSettings::IniFormat);
    if (settings.allKeys().size() != kGroups * kKeysInGroup) {
      ioState.SkipWithError("keys are missing");
    }
  }
}

// It writes only what has changed since, so a key changes each time.
void SavePeer(benchmark::State& ioState, const Workbench& inBench) {
  QSettings settings(QString::fromStdString(inBench.GetPath("saved.ini")), QSettings::IniFormat);
  Fill(settings);
  int round = 0;
  for (auto _ : ioState) {
    settings.setValue("Group0/someSetting1", ++round);
    settings.sync();
  }
  if (settings.status() != QSettings::NoError) ioState.SkipWithError("not written");
}

}  // namespace

int main(int argc, char** argv) {
  const Workbench bench;
  const auto on = [&](void (*inBody)(benchmark::State&, const Workbench&)) {
    return [&bench, inBody](benchmark::State& ioState) { inBody(ioState, bench); };
  };
  const bool wallClock = true;
  return bench::Run("settings", argc, argv,
                    {
                        {"load 10000 keys, beside QSettings in INI", "ms", bench::OursAtMost(50),
                         on(Load), on(LoadPeer), wallClock},
                        {"save 10000 keys, beside QSettings in INI", "ms", bench::OursAtMost(50),
                         on(Save), on(SavePeer), wallClock},
                    });
}
