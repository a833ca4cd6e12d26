#pragma once

#include <QObject>
#include <array>
#include <optional>
#include <string>

#include "editor/view_controller.h"
#include "platform/file_stamp.h"
#include "platform/location.h"

namespace desktop {

/// Tells when the state behind the window has changed, by whatever way. That is found by comparing,
/// each time that Qt's event loop wakes up or is about to wait, so that no edit can forget to tell.
class StateWatch : public QObject {
  Q_OBJECT

 public:
  explicit StateWatch(const editor::ViewController& controller);

 signals:
  void changed();

 private:
  /// All that the marks, the count of changes and the findings depend on and that is quickly
  /// compared.
  struct State {
    std::array<std::string, document::keyCount> values;
    std::size_t volumes = 0;  // the revision of the table
    std::size_t outcome = 0;  // the number of the last save or start
    bool isStartEnabled = false;
    std::string pathToQuil;
    std::optional<platform::Location> prefsURL;
    std::string saveError;
    std::optional<platform::FileStamp> stamp;

    friend bool operator==(const State&, const State&) = default;
  };

  [[nodiscard]] State state() const;
  void look();

  const editor::ViewController& controller_;
  State seen_;
};

}  // namespace desktop
