#include "desktop/checks_list.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "desktop/checks_texts.h"
#include "desktop/icons.h"

namespace desktop {

ChecksList::ChecksList(std::function<void(const checks::Finding&)> go, QWidget* parent)
    : QDialog(parent), list_(new QListWidget) {
  setObjectName(QLatin1String("checksWindow"));
  setWindowTitle(tr("What to Look At Before Starting"));
  setAttribute(Qt::WA_DeleteOnClose);
  list_->setObjectName(QLatin1String("checksList"));
  list_->setAccessibleName(windowTitle());
  list_->setWordWrap(true);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  connect(list_, &QListWidget::itemClicked, list_, &QListWidget::itemActivated);
  connect(list_, &QListWidget::itemActivated, this, [this, go = std::move(go)] {
    const auto row = static_cast<std::size_t>(list_->currentRow());
    // Styles with SH_ItemView_ActivateItemOnSingleClick emit itemActivated for a click themselves:
    // it then comes a second time, from itemClicked, when the list is closed already.
    if (isVisible() && row < findings_.size()) {
      const checks::Finding finding = findings_[row];
      close();
      go(finding);
    }
  });
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  giveIcon(buttons->button(QDialogButtonBox::Close), "window-close");
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(list_);
  layout->addWidget(buttons);
  const int line = fontMetrics().lineSpacing();
  resize(34 * line, 16 * line);
  list_->setFocus();
}

void ChecksList::show(const std::vector<checks::Finding>& findings) {
  const int row = std::max(list_->currentRow(), 0);
  findings_ = findings;
  list_->clear();
  for (const checks::Finding& finding : findings_) {
    auto* const item = new QListWidgetItem(iconOf(finding.level), textOf(finding), list_);
    item->setData(Qt::AccessibleTextRole, spokenTextOf(finding));
  }
  list_->setCurrentRow(std::min(row, list_->count() - 1));
}

}  // namespace desktop
