#pragma once

#include <QObject>

namespace desktop {

/// Has a key that is held down act once. Qt repeats shortcuts, and the buttons that Return presses;
/// a held Ctrl+Return would start an emulator thirty times a second.
class KeyRepeat : public QObject {
  Q_OBJECT

 public:
  /// Watches over the whole application as long as it lives.
  KeyRepeat();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool repeating_ = false;  // the last key came from being held
};

}  // namespace desktop
