#pragma once

#include <QProxyStyle>

namespace desktop {

/// The style of the application, which gives the menu bar a picture for its extension button that
/// is read when it is first painted. QMenuBar asks for it whether or not its entries have room, and
/// Qt's own styles read it with QImageReader, which loads all of Qt's plugins for pictures.
class LateStyle : public QProxyStyle {
  Q_OBJECT

 public:
  using QProxyStyle::QProxyStyle;

  [[nodiscard]] QIcon standardIcon(StandardPixmap picture, const QStyleOption* option,
                                   const QWidget* widget) const override;
};

}  // namespace desktop
