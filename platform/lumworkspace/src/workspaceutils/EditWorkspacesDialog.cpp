// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <algorithm>
#include <set>
#include <utility>

#include "dialogs/AnsweredDialog.h"
#include "drawbot/QtConvert.h"
#include "lumcore/config/Localizer.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/StringUtils.h"
#include "lumworkspace/workspace/ManagerBase.h"
#include "lumworkspace/workspace/TopLevelWindow.h"
#include "lumworkspace/workspaceutils/WorkspaceUtils.h"
#include "ui/EventGate.h"

namespace lumworkspace::workspaceutils {

namespace {

using lumcore::UTF16String;
using lumui::drawbot::FromQt;
using lumui::drawbot::ToQt;

constexpr int kOldNameRole = Qt::UserRole;

EditWorkspacesAnswerer& CurrentAnswerer() {
  static EditWorkspacesAnswerer sAnswerer;
  return sAnswerer;
}

UTF16String Localized(const char* inKey) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
}

// The first cause why the rows cannot be what they are; empty where they can. They may change names
// among each other, so that what a name was before does not count.
UTF16String CheckRows(const EditedWorkspaces& inRows) {
  if (inRows.empty()) {
    return Localized("$$$/lumworkspace/Error/LastWorkspace=One workspace has to stay.");
  }
  std::set<UTF16String> names;
  for (const EditedWorkspace& row : inRows) {
    const UTF16String cause = Manager::CheckNameAlone(row.newName);
    if (!cause.empty()) return cause;
    if (!names.insert(lumcore::utility::FoldCase(row.newName)).second) {
      return lumcore::utility::ReplaceInString(
          Localized("$$$/lumworkspace/Error/NameTaken=There is a workspace \"@0\" already."),
          {row.newName});
    }
  }
  return UTF16String();
}

EditedWorkspaces RowsOf(const QListWidget& inList) {
  EditedWorkspaces rows;
  for (int i = 0; i < inList.count(); ++i) {
    const QListWidgetItem& item = *inList.item(i);
    rows.push_back(
        EditedWorkspace{FromQt(item.data(kOldNameRole).toString()), FromQt(item.text())});
  }
  return rows;
}

void Fill(QListWidget& ioList, const EditedWorkspaces& inRows) {
  ioList.clear();
  for (const EditedWorkspace& row : inRows) {
    auto* const item = new QListWidgetItem(ToQt(row.newName), &ioList);
    item->setData(kOldNameRole, ToQt(row.oldName));
    item->setFlags(item->flags() | Qt::ItemIsEditable);
  }
  ioList.setCurrentRow(0);
}

void MoveRow(QListWidget& ioList, int inBy) {
  const int row = ioList.currentRow();
  const int target = row + inBy;
  if (row < 0 || target < 0 || target >= ioList.count()) return;
  ioList.insertItem(target, ioList.takeItem(row));
  ioList.setCurrentRow(target);
}

QWidget* MakeButtons(QListWidget& ioList, QWidget* inParent) {
  auto* const bar = new QWidget(inParent);
  auto* const row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  const auto add = [&](const char* inKey, auto inAction) {
    auto* const button = new QPushButton(ToQt(Localized(inKey)), bar);
    button->setAutoDefault(false);
    row->addWidget(button);
    QObject::connect(button, &QPushButton::clicked, &ioList, inAction);
  };
  QListWidget* const list = &ioList;
  add("$$$/lumworkspace/Dialog/RenameButton=Rename",
      [list] { list->editItem(list->currentItem()); });
  add("$$$/lumworkspace/Dialog/UpButton=Up", [list] { MoveRow(*list, -1); });
  add("$$$/lumworkspace/Dialog/DownButton=Down", [list] { MoveRow(*list, 1); });
  add("$$$/lumworkspace/Dialog/DeleteButton=Delete",
      [list] { delete list->takeItem(list->currentRow()); });
  return bar;
}

// A name that no row has yet, for one that waits for another to give its name away.
UTF16String PassingName(const Manager& inManager, const EditedWorkspaces& inRows) {
  for (int number = 1;; ++number) {
    const UTF16String name = lumcore::utility::ToUTF16("~" + std::to_string(number));
    const bool wanted =
        std::any_of(inRows.begin(), inRows.end(),
                    [&](const EditedWorkspace& inRow) { return inRow.newName == name; });
    if (!wanted && inManager.CheckName(name, UTF16String()).empty()) return name;
  }
}

void Carry(const EditedWorkspaces& inRows, Manager& ioManager) {
  EditedWorkspaces rows = inRows;
  for (const UTF16String& name : ioManager.GetWorkspaceNames()) {
    const bool stays = std::any_of(rows.begin(), rows.end(), [&](const EditedWorkspace& inRow) {
      return inRow.oldName == name;
    });
    if (!stays) ioManager.DeleteWorkspace(name);
  }
  // What can have its name at once gets it; where all wait for each other, one steps aside.
  for (std::size_t waiting = rows.size(); waiting > 0;) {
    waiting = 0;
    bool any = false;
    EditedWorkspace* held = nullptr;
    for (EditedWorkspace& row : rows) {
      if (row.oldName == row.newName) continue;
      if (ioManager.RenameWorkspace(row.oldName, row.newName)) {
        row.oldName = row.newName;
        any = true;
      } else {
        held = &row;
        ++waiting;
      }
    }
    if (waiting == 0 || any) continue;
    const UTF16String passing = PassingName(ioManager, rows);
    if (!ioManager.RenameWorkspace(held->oldName, passing)) return;
    held->oldName = passing;
  }
  std::vector<UTF16String> order;
  for (const EditedWorkspace& row : rows)
    order.push_back(row.newName);
  ioManager.SetWorkspaceOrder(order);
}

}  // namespace

EditWorkspacesAnswerer SetEditWorkspacesAnswerer(EditWorkspacesAnswerer inAnswerer) {
  return std::exchange(CurrentAnswerer(), std::move(inAnswerer));
}

bool ShowEditWorkspacesDialog(Supplier*, Window* inWindow, Manager& ioManager) {
  const UTF16String title = Localized("$$$/lumworkspace/Dialog/Edit=Edit Workspaces");
  EditedWorkspaces rows;
  for (const UTF16String& name : ioManager.GetWorkspaceNames())
    rows.push_back(EditedWorkspace{name, name});
  // A copy: an answerer may put another in its place.
  const EditWorkspacesAnswerer answerer = CurrentAnswerer();
  const auto answer = answerer ? answerer(rows) : std::nullopt;
  lumui::dialogs::RequireAnswer(answer.has_value(), title);
  if (answer && *answer) {
    const UTF16String cause = CheckRows(**answer);
    if (!cause.empty()) throw lumcore::config::Error(cause);
  }
  lumui::dialogs::AnsweredDialog dialog(title, UTF16String(), inWindow);
  auto* const list = new QListWidget(dialog.Get());
  list->setAccessibleName(ToQt(title));
  list->setDragDropMode(QAbstractItemView::InternalMove);
  Fill(*list, rows);
  auto* const cause = new QLabel(dialog.Get());
  cause->setTextFormat(Qt::PlainText);
  cause->setWordWrap(true);
  dialog.Add(list);
  dialog.Add(MakeButtons(*list, dialog.Get()));
  dialog.Add(cause);
  const auto check = [&] {
    lumui::ui::EventGate::Get()->RunGuarded([&] {
      const UTF16String text = CheckRows(RowsOf(*list));
      cause->setText(ToQt(text));
      dialog.EnableOK(text.empty());
    });
  };
  for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved}) {
    QObject::connect(list->model(), signal, dialog.Get(), check);
  }
  QObject::connect(list->model(), &QAbstractItemModel::dataChanged, dialog.Get(), check);
  std::function<bool()> act;
  if (answer) {
    act = [&] {
      if (*answer) Fill(*list, **answer);
      return answer->has_value();
    };
  }
  if (!dialog.Run(act)) return false;
  Carry(RowsOf(*list), ioManager);
  return true;
}

}  // namespace lumworkspace::workspaceutils
