#include "desktop/appearance.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>
#include <algorithm>
#include <cmath>

#include "desktop/quick_style.h"

namespace desktop {
namespace {

bool isDark(const QColor& color) { return color.lightness() < 128; }

int distance(const QColor& one, const QColor& other) {
  return std::abs(one.lightness() - other.lightness());
}

QColor middle(const QColor& one, const QColor& other) { return mixed(one, other, 0.5); }

// As the Web Content Accessibility Guidelines (2.1) define it.
double luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other) {
  const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

// Qt's own style draws borders a little darker than the window. Where that is black already,
// fields and boxes can be told from their surroundings by nothing.
bool hidesBorders(const QPalette& palette) {
  const QColor window = palette.color(QPalette::Window);
  return isDark(window) && distance(window, palette.color(QPalette::Base)) < 12;
}

// Qt's own style with borders in a colour between those of the text and of the window.
class BorderedStyle : public QuickStyle {
 public:
  BorderedStyle() : QuickStyle(QLatin1String("Fusion")) {}

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    QuickStyle::drawPrimitive(element, option, painter, widget);
    switch (element) {
      case PE_IndicatorRadioButton:
        drawBorder(option, painter, option->rect.height());
        break;
      case PE_FrameTabWidget:  // does not show the focus, the tabs do
        drawBorder(option, painter, 2, false);
        break;
      case PE_Frame:
      case PE_FrameLineEdit:
      case PE_IndicatorCheckBox:
      case PE_PanelButtonCommand:
        drawBorder(option, painter, 2);
        break;
      default:
        break;
    }
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override {
    QuickStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox || control == CC_SpinBox) {
      drawBorder(option, painter, 2);
    }
  }

  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    QuickStyle::drawControl(element, option, painter, widget);
    const bool selected = (option->state & State_Selected) != 0;
    if ((element == CE_TabBarTabShape && selected) || element == CE_ProgressBarGroove) {
      drawBorder(option, painter, 2);
    }
  }

 private:
  static void drawBorder(const QStyleOption* option, QPainter* painter, int roundness,
                         bool showsFocus = true) {
    const QPalette& palette = option->palette;
    const bool focused = showsFocus && (option->state & State_HasFocus) != 0;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(
        focused ? palette.color(QPalette::Highlight)
                : middle(palette.color(QPalette::WindowText), palette.color(QPalette::Window)));
    painter->setBrush(Qt::NoBrush);
    const double radius = roundness / 2.0;
    painter->drawRoundedRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter->restore();
  }
};

}  // namespace

QPalette readable(QPalette palette) {
  const QColor window = palette.color(QPalette::Window);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    if (distance(palette.color(QPalette::Disabled, role), window) < 64) {
      palette.setColor(QPalette::Disabled, role,
                       middle(palette.color(QPalette::Active, role), window));
    }
  }
  // Adwaita has hints look like what is typed.
  const QColor hint = palette.color(QPalette::PlaceholderText);
  if (isDark(palette.color(QPalette::Base)) == isDark(hint) ||
      hint == palette.color(QPalette::Text)) {
    QColor color = palette.color(QPalette::Text);
    color.setAlpha(170);
    palette.setColor(QPalette::PlaceholderText, color);
  }
  return palette;
}

QColor readableOn(const QColor& background, const QColor& color) {
  constexpr double enough = 4.5;
  if (contrast(background, color) >= enough) {
    return color;
  }
  return contrast(background, Qt::white) > contrast(background, Qt::black) ? Qt::white : Qt::black;
}

QColor mixed(const QColor& one, const QColor& other, double share) {
  const auto part = [share](double from, double to) {
    return static_cast<float>(from + (to - from) * share);
  };
  return QColor::fromRgbF(part(one.redF(), other.redF()), part(one.greenF(), other.greenF()),
                          part(one.blueF(), other.blueF()));
}

void makeReadable() {
  const QPalette palette = QApplication::palette();
  const QPalette better = readable(palette);
  if (better != palette) {
    QApplication::setPalette(better);
  }
  if (QApplication::style()->name() == QLatin1String("fusion")) {
    QApplication::setStyle(hidesBorders(palette) ? new BorderedStyle
                                                 : new QuickStyle(QApplication::style()));
  }
}

}  // namespace desktop
