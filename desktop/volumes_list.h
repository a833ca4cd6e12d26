#pragma once

#include <QVBoxLayout>

#include "desktop/pages.h"
#include "desktop/volume_view.h"
#include "platform/subscription.h"

namespace desktop {

/// The list of disk images with its title, its buttons and a line that sums it up.
class VolumesList : public QVBoxLayout {
  Q_OBJECT

 public:
  explicit VolumesList(const PageContext& context);

 private:
  [[nodiscard]] QLabel* title(VolumeView* table) const;
  [[nodiscard]] QLayout* tableWithHint(VolumeView* table, const PageContext& context) const;
  [[nodiscard]] QLabel* summary(VolumeView* table) const;
  [[nodiscard]] QLayout* buttons(VolumeView* table, const PageContext& context);
  [[nodiscard]] QPushButton* moveButton(VolumeView* table, Controls& controls,
                                        platform::Button& control, const QString& text,
                                        const QString& help, const char* icon);

  std::vector<platform::Subscription> shown_;
};

}  // namespace desktop
