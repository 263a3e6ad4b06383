// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "QtRowsDialogPeer.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <vector>

namespace {

class Dialog : public QDialog {
 public:
  Dialog(const QStringList& inCategories, const std::vector<QStringList>& inRows) {
    auto* const layout = new QVBoxLayout(this);
    mEdit = new QLineEdit(this);
    mTree = new QTreeWidget(this);
    auto* const buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    layout->addWidget(mEdit);
    layout->addWidget(mTree);
    layout->addWidget(buttons);
    mTree->setHeaderLabels({"Command", "Shortcut", "Description"});
    QList<QTreeWidgetItem*> categories;
    for (const QString& name : inCategories)
      categories << new QTreeWidgetItem(QStringList{name});
    for (std::size_t i = 0; i < inRows.size(); ++i)
      categories[static_cast<int>(i) % categories.size()]->addChild(new QTreeWidgetItem(inRows[i]));
    mTree->addTopLevelItems(categories);
    connect(mEdit, &QLineEdit::textChanged, this,
            [this](const QString& inText) { Filter(inText); });
    resize(640, 460);
  }

  void Filter(const QString& inText) {
    mLeft = 0;
    for (int i = 0; i < mTree->topLevelItemCount(); ++i) {
      QTreeWidgetItem* const category = mTree->topLevelItem(i);
      const bool all = category->text(0).contains(inText, Qt::CaseInsensitive);
      int shown = 0;
      for (int j = 0; j < category->childCount(); ++j) {
        QTreeWidgetItem* const row = category->child(j);
        bool found = all;
        for (int column = 0; column < 3 && !found; ++column)
          found = row->text(column).contains(inText, Qt::CaseInsensitive);
        row->setHidden(!found);
        shown += found;
      }
      category->setHidden(shown == 0);
      category->setExpanded(!inText.isEmpty());
      mLeft += shown;
    }
  }

  QLineEdit* mEdit;
  QTreeWidget* mTree;
  int mLeft = 0;
};

}  // namespace

class QtRowsDialogPeer::Impl {
 public:
  QStringList mCategories;
  std::vector<QStringList> mRows;
  std::unique_ptr<Dialog> mDialog;
};

QtRowsDialogPeer::QtRowsDialogPeer(int inCategories, int inRows) : mImpl(std::make_unique<Impl>()) {
  for (int i = 0; i < inCategories; ++i)
    mImpl->mCategories << QStringLiteral("Category %1").arg(i);
  for (int i = 0; i < inRows; ++i) {
    mImpl->mRows.push_back({QStringLiteral("Command %1").arg(i),
                            i % 10 == 0 ? QStringLiteral("Ctrl+Shift+F1") : QString(),
                            QStringLiteral("Does what number %1 is for").arg(i)});
  }
}

QtRowsDialogPeer::~QtRowsDialogPeer() = default;

void QtRowsDialogPeer::Open() {
  mImpl->mDialog = std::make_unique<Dialog>(mImpl->mCategories, mImpl->mRows);
  mImpl->mDialog->show();
  QApplication::processEvents();
}

void QtRowsDialogPeer::Close() {
  mImpl->mDialog.reset();
}

int QtRowsDialogPeer::Search(const std::string& inText) {
  mImpl->mDialog->mEdit->setText(QString::fromStdString(inText));
  QApplication::processEvents();
  return mImpl->mDialog->mLeft;
}
