#pragma once

#include <QFormLayout>
#include <QString>
#include <QWidget>

namespace desktop {

/// A part of a page: a title and a form. Screen readers know it as a group with that name.
class Section : public QWidget {
  Q_OBJECT

 public:
  /// Without a title, only the form.
  explicit Section(const QString& title);

  [[nodiscard]] QFormLayout* form() const { return form_; }

 private:
  QFormLayout* form_;
};

}  // namespace desktop
