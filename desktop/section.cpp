#include "desktop/section.h"

#include <QAccessibleWidget>
#include <QLabel>
#include <QVBoxLayout>

#include "desktop/texts.h"

namespace desktop {
namespace {

// QAccessibleWidget gives a plain QWidget the role Client, which screen readers do not tell.
QAccessibleInterface* makeGroup(const QString& /*className*/, QObject* object) {
  auto* const section = qobject_cast<Section*>(object);
  return section == nullptr || section->accessibleName().isEmpty()
             ? nullptr
             : new QAccessibleWidget(section, QAccessible::Grouping);
}

}  // namespace

Section::Section(const QString& title) : form_(new QFormLayout) {
  form_->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  if (!title.isEmpty()) {
    QAccessible::installFactory(makeGroup);  // once, however often it is asked to
    setAccessibleName(title);
    auto* const heading = new QLabel(title);
    QFont font = heading->font();
    font.setWeight(QFont::DemiBold);
    heading->setFont(font);
    heading->setAlignment(leadingSide() | Qt::AlignVCenter);
    layout->addWidget(heading);
  }
  layout->addLayout(form_);
}

}  // namespace desktop
