#pragma once

#include <QByteArray>
#include <QString>

namespace desktop {

/// What the window remembers from one run to the next. None of it is a setting; what cannot be read
/// or written is as if nothing had been remembered.
class WindowMemory {
 public:
  /// `configHome` is where programs keep settings; the file is below it.
  explicit WindowMemory(const QString& configHome);

  QByteArray geometry;  // as QWidget::saveGeometry gives it
  QString tab;          // the identifier of the tab that was shown last
  QString folder;       // in which a file was chosen last

  void store() const;

  friend bool operator==(const WindowMemory&, const WindowMemory&) = default;

 private:
  QString file_;
};

}  // namespace desktop
