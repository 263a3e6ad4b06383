// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <expat.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

#include "lumcore/filesupport/File.h"
#include "outliner/OpmlReader.h"
#include "outliner/OutlineDocument.h"
#include "support/Pair.h"

namespace {

using lumcore::filesupport::File;
using outliner::OutlineDocument;

constexpr int kElements = 100000;

// Ten words in a row on average, up to six levels, every tenth row with an attribute of its own.
std::string MakeOutline() {
  std::mt19937 random(1);
  std::string text =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<opml version=\"2.0\">\n"
      "  <head>\n    <title>Benchmark</title>\n  </head>\n  <body>\n";
  int open = 0;
  for (int element = 0; element < kElements; ++element) {
    text.append(4 + 2 * open, ' ').append("<outline text=\"");
    for (auto words = 1 + random() % 20; words > 0; --words)
      text.append(1 + random() % 9, static_cast<char>('a' + random() % 26)).append(" ");
    text.append(element % 10 == 0 ? "&amp; \xC3\xA4\" created=\"2026\"" : "\"");
    const bool opens = open < 5 && random() % 3 == 0;
    text.append(opens ? ">\n" : "/>\n");
    open += opens;
    while (!opens && open > 0 && random() % 4 == 0)
      text.append(4 + 2 * --open, ' ').append("</outline>\n");
  }
  while (open > 0)
    text.append(4 + 2 * --open, ' ').append("</outline>\n");
  return text + "  </body>\n</opml>\n";
}

// A folder of its own for the files, gone with the process.
class Workbench {
 public:
  Workbench() {
    std::string folder = (std::filesystem::temp_directory_path() / "outline-XXXXXX").string();
    if (!mkdtemp(folder.data())) throw std::runtime_error("cannot make a folder: " + folder);
    mFolder = folder;
    std::ofstream(GetPath("read.opml"), std::ios::binary) << MakeOutline();
  }
  ~Workbench() {
    std::error_code ignored;  // what cannot be removed stays in the folder of temporary files
    std::filesystem::remove_all(mFolder, ignored);
  }
  std::string GetPath(const std::string& inName) const { return (mFolder / inName).string(); }

 private:
  std::filesystem::path mFolder;
};

std::string ReadBytes(const std::string& inPath) {
  std::ifstream in(inPath, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

void Load(benchmark::State& ioState, const Workbench& inBench) {
  for (auto _ : ioState) {
    const auto document = OutlineDocument::Open(File(inBench.GetPath("read.opml")));
    if (document->GetTree().GetLines().size() != kElements) {
      ioState.SkipWithError("rows are missing");
    }
  }
}

// The least that reading can be: the file's bytes through the parser, and the elements counted.
void ParseOnly(benchmark::State& ioState, const Workbench& inBench) {
  for (auto _ : ioState) {
    const std::string bytes = ReadBytes(inBench.GetPath("read.opml"));
    int elements = 0;
    XML_Parser parser = XML_ParserCreate(nullptr);
    XML_SetUserData(parser, &elements);
    XML_SetStartElementHandler(parser, [](void* ioCount, const XML_Char*, const XML_Char**) {
      ++*static_cast<int*>(ioCount);
    });
    if (!XML_Parse(parser, bytes.data(), static_cast<int>(bytes.size()), 1) ||
        elements <= kElements) {
      ioState.SkipWithError("not parsed");
    }
    XML_ParserFree(parser);
  }
}

void Save(benchmark::State& ioState, const Workbench& inBench) {
  const auto document = OutlineDocument::Open(File(inBench.GetPath("read.opml")));
  for (auto _ : ioState)
    document->SaveAsFile(File(inBench.GetPath("saved.opml")));
  if (ReadBytes(inBench.GetPath("saved.opml")) != ReadBytes(inBench.GetPath("read.opml"))) {
    ioState.SkipWithError("the saved file is not the one that was read");
  }
}

// Neither flushes to the disk nor replaces the file in one step, as saving does.
void WriteOnly(benchmark::State& ioState, const Workbench& inBench) {
  const std::string bytes = ReadBytes(inBench.GetPath("read.opml"));
  for (auto _ : ioState) {
    std::ofstream out(inBench.GetPath("written.opml"), std::ios::binary | std::ios::trunc);
    out << bytes << std::flush;
    if (!out) ioState.SkipWithError("not written");
  }
}

}  // namespace

int main(int argc, char** argv) {
  const Workbench bench;
  const auto on = [&](void (*inBody)(benchmark::State&, const Workbench&)) {
    return [&bench, inBody](benchmark::State& ioState) { inBody(ioState, bench); };
  };
  const bool wallClock = true;
  return bench::Run("outline", argc, argv,
                    {
                        {"load 100000 elements, beside a bare parse", "ms", bench::OursAtMost(1000),
                         on(Load), on(ParseOnly), wallClock},
                        {"save 100000 elements, beside a plain write", "ms",
                         bench::OursAtMost(1000), on(Save), on(WriteOnly), wallClock},
                    });
}
