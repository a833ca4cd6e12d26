#pragma once

#include <QObject>

#include "platform/application.h"

namespace desktop {

/// Has the application end in the ordinary way on SIGINT, SIGTERM and SIGHUP.
class SignalGuard : public QObject {
  Q_OBJECT

 public:
  explicit SignalGuard(platform::Application& application);
  ~SignalGuard() override;
  SignalGuard(const SignalGuard&) = delete;
  SignalGuard& operator=(const SignalGuard&) = delete;
};

}  // namespace desktop
