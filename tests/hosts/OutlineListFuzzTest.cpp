// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "hosts/OutlineListHost.h"
#include "lumcore/utility/StringUtils.h"
#include "outliner/OutlineDocument.h"
#include "outliner/OutlineEdits.h"
#include "outliner/OutlineEntries.h"
#include "outliner/TextSearch.h"
#include "support/Seeds.h"

namespace {

using Host = tests::OutlineListHost;
using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;
using outliner::OutlineEntry;
using outliner::OutlineRow;
using vek::hierarchyview::kNodeCollapsed;

// After each of some hundred random steps the list shows what the outline, the rows that are open,
// the order and the filter make of it, whatever it has reused.
class Model {
 public:
  explicit Model(Host& inHost) : mHost(inHost) {}

  std::string Expected() const { return Branch(mHost.GetDocument().GetTree().GetRoot()); }
  void SetFilter(const std::string& inText) { mFilter = inText; }
  void SetSorted(bool inSorted) { mSorted = inSorted; }

 private:
  bool IsIn(const OutlineRow& inRow) const {
    if (ToStdString(inRow.GetText()).find(mFilter) != std::string::npos) return true;
    if (mHost.GetDocument().IsSelected(inRow)) return true;
    for (std::size_t child = 0; child < inRow.GetChildCount(); ++child) {
      if (IsIn(*inRow.GetChild(child))) return true;
    }
    return false;
  }
  std::string Branch(const OutlineRow& inParent) const {
    std::vector<const OutlineRow*> rows;
    for (std::size_t child = 0; child < inParent.GetChildCount(); ++child) {
      if (IsIn(*inParent.GetChild(child))) rows.push_back(inParent.GetChild(child));
    }
    if (mSorted) {
      std::stable_sort(rows.begin(), rows.end(), [](const auto* inA, const auto* inB) {
        if (inA->GetText().empty() || inB->GetText().empty()) {
          return !inA->GetText().empty() && inB->GetText().empty();
        }
        return inA->GetText() < inB->GetText();
      });
    }
    std::string text;
    for (const OutlineRow* row : rows) {
      text += (text.empty() ? "" : " ");
      text += row->GetText().empty() ? "-" : ToStdString(row->GetText());
      const std::string below = Branch(*row);
      if (below.empty()) continue;
      const OutlineEntry* const entry = mHost.Rows().GetEntries()->Find(row->GetId());
      const bool isClosed =
          entry && const_cast<OutlineEntry*>(entry)->GetNodeState() == kNodeCollapsed;
      text += isClosed ? "+" : " [" + below + "]";
    }
    return text;
  }

  Host& mHost;
  std::string mFilter;
  bool mSorted = false;
};

TEST(OutlineListFuzz, FollowsAnyEdits) {
  namespace edits = outliner::edits;
  for (const unsigned seed : test_support::Seeds(4)) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const auto upTo = [&](std::size_t inCount) {
      return static_cast<std::size_t>(random() % inCount);
    };
    Host host("a [b c [d e]] f [g] h");
    Model model(host);
    auto& document = host.GetDocument();
    const auto any = [&] {
      const auto& lines = document.GetTree().GetLines();
      return lines[upTo(lines.size())];
    };
    const std::function<void()> steps[] = {
        [&] {
          edits::SetText(document, edits::NewSibling(document),
                         ToUTF16(std::string(1, static_cast<char>('a' + upTo(8)))));
        },
        [&] { edits::NewChild(document); },
        [&] {
          edits::SetText(document, *any(),
                         ToUTF16(std::string(1, static_cast<char>('a' + upTo(8)))));
        },
        [&] {
          document.GetTree().GetLines().size() > 6 ? edits::Delete(document)
                                                   : edits::Undo(document);
        },
        [&] { edits::Indent(document); },
        [&] { edits::Outdent(document); },
        [&] { edits::MoveUp(document); },
        [&] { edits::MoveBelow(document, *any()); },
        [&] {
          edits::MoveTo(document, {upTo(2) == 0 ? outliner::MoveTarget::kBefore
                                                : outliner::MoveTarget::kAfter,
                                   any()->GetId()});
        },
        [&] { edits::Undo(document); },
        [&] { edits::Undo(document); },
        [&] { edits::Redo(document); },
        [&] { document.SelectRows({any()}); },
        [&] { host.Rows().SelectedHasChildrenCollapse(); },
        [&] { host.Rows().SelectedHasChildrenExpand(); },
        [&] { upTo(2) == 0 ? host.Rows().CollapseAll() : host.Rows().ExpandAll(); },
        [&] {
          const char* const kKeys[] = {"Shift+Down", "Shift+Up", "Shift+End", "Home",
                                       "PageDown",   "Left",     "Right",     "Up"};
          host.Keys(kKeys[upTo(std::size(kKeys))]);
        },
        [&] {
          const bool sorts = upTo(2) == 0;
          sorts ? host.Rows().SetSortColumn(0) : host.Rows().UnsortRows();
          model.SetSorted(sorts);
        },
        [&] {
          const std::string text =
              upTo(2) == 0 ? std::string(1, static_cast<char>('a' + upTo(8))) : "";
          model.SetFilter(text);
          host.Rows().SetFilter(outliner::TextSearch({ToUTF16(text)}));
        },
    };
    std::string last;
    for (int step = 0; step < 300; ++step) {
      const std::size_t what = upTo(std::size(steps));
      steps[what]();
      // Rows that were let in stay for as long as the filter, so that begins anew each time.
      const auto filter = host.Rows().GetEntries()->GetFilter();
      if (!filter.IsEmpty()) host.Rows().SetFilter(filter);
      ASSERT_EQ(host.Shown(), model.Expected())
          << "step " << step << " was " << what << " after " << last;
      last = host.Shown();
    }
  }
}

}  // namespace
