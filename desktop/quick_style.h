#pragma once

#include <QProxyStyle>
#include <QStyleOption>

namespace desktop {

/// Qt's own style as it is, for less: the base style must be Fusion. What it paints with
/// translucent lines and gradients is painted in pieces so small that Qt does not hand them to
/// threads, and the menu bar's extension button gets a picture that is read when it is painted.
class QuickStyle : public QProxyStyle {
  Q_OBJECT

 public:
  using QProxyStyle::QProxyStyle;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
  [[nodiscard]] QIcon standardIcon(StandardPixmap picture, const QStyleOption* option,
                                   const QWidget* widget) const override;

 private:
  void drawHeaderSection(const QStyleOptionHeader& header, QPainter& painter,
                         const QWidget* widget) const;
  void drawScrollBar(const QStyleOptionComplex& bar, QPainter& painter,
                     const QWidget* widget) const;
};

}  // namespace desktop
