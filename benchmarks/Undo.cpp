// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <QUndoCommand>
#include <QUndoStack>

#include "lumcore/utility/StringUtils.h"
#include "support/Pair.h"
#include "vek/undo/Deed.h"
#include "vek/undo/MultiUndoer.h"

namespace {

using vek::undo::Deed;
using vek::undo::MultiUndoer;

class CountDeed : public Deed {
 public:
  CountDeed(long& ioCount, const lumcore::UTF16String& inName)
      : Deed(true, false, inName), mCount(ioCount) {}

 private:
  void RedoSelf() override { ++mCount; }
  void UndoSelf() override { --mCount; }

  long& mCount;
};

class CountCommand : public QUndoCommand {
 public:
  CountCommand(long& ioCount, const QString& inName) : QUndoCommand(inName), mCount(ioCount) {}
  void redo() override { ++mCount; }
  void undo() override { --mCount; }

 private:
  long& mCount;
};

// Posts, undoes and redoes one edit on top of a full stack: three operations.
template <class Post, class Undo, class Redo>
void Time(benchmark::State& ioState, int inLimit, Post inPost, Undo inUndo, Redo inRedo) {
  for (int i = 0; i < inLimit; ++i)
    inPost();
  for (auto _ : ioState) {
    inPost();
    inUndo();
    inRedo();
  }
  ioState.SetItemsProcessed(ioState.iterations() * 3);
}

bench::Body Ours(int inLimit) {
  return [=](benchmark::State& ioState) {
    const boost::intrusive_ptr<MultiUndoer> undoer(new MultiUndoer(inLimit));
    const auto name = lumcore::utility::ToUTF16("Edit");
    long count = 0;
    Time(
        ioState, inLimit,
        [&] { undoer->PostDeed(std::auto_ptr<Deed>(new CountDeed(count, name))); },
        [&] { undoer->Undo(); }, [&] { undoer->Redo(); });
    benchmark::DoNotOptimize(count);
  };
}

bench::Body QtStack(int inLimit) {
  return [=](benchmark::State& ioState) {
    QUndoStack stack;
    stack.setUndoLimit(inLimit);
    const QString name = QStringLiteral("Edit");
    long count = 0;
    Time(
        ioState, inLimit, [&] { stack.push(new CountCommand(count, name)); }, [&] { stack.undo(); },
        [&] { stack.redo(); });
    benchmark::DoNotOptimize(count);
  };
}

}  // namespace

int main(int argc, char** argv) {
  return bench::Run("undo", argc, argv,
                    {
                        {"post, undo, redo at limit 100, beside QUndoStack", "ns",
                         bench::OursAtMost(1000), Ours(100), QtStack(100)},
                        {"post, undo, redo at limit 1000, beside QUndoStack", "ns", std::nullopt,
                         Ours(1000), QtStack(1000)},
                    });
}
