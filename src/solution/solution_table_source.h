#pragma once

#include <QPointer>

#include "solution/solution_table_data.h"
#include "solution/table_capture.h"

namespace tavi {

/// The solution table as it was when its picture was asked for, whatever becomes of the page meanwhile.
class SolutionTableSource : public TableDataSource {
 public:
  /// The page, if there is one, holds the cells while they are drawn.
  SolutionTableSource(SolutionTableData data, double viewWidth, double tableWidth, QQuickItem* page)
      : data_(std::move(data)), viewWidth_(viewWidth), tableWidth_(tableWidth), page_(page) {}

  double width() const override { return tableWidth_; }
  QQuickItem* cellParent() const override { return page_; }
  int numberOfSections() const override { return data_.numberOfSections(); }
  int numberOfRows(int section) const override { return data_.numberOfRows(section); }
  double heightForRow(int section, int row) const override {
    return data_.heightForRow(section, row, viewWidth_);
  }
  std::unique_ptr<TableViewCell> cellForRow(int section, int row) const override;

 private:
  SolutionTableData data_;
  double viewWidth_;
  double tableWidth_;
  QPointer<QQuickItem> page_;
};

}  // namespace tavi
