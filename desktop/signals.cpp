#include "desktop/signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>

namespace desktop {
namespace {

// A pipe. A signal handler may call little more than write(): it writes a byte here, which the
// event loop reads. Global, since a handler gets no argument of ours.
std::array<int, 2> wakeUp = {-1, -1};

void wake(int /*number*/) {
  const int kept = errno;
  const char byte = 0;
  (void)!::write(wakeUp[1], &byte, 1);
  errno = kept;
}

void handle(void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = SA_RESTART;
  for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
    struct sigaction former {};
    // Whoever starts a program with a signal ignored, as nohup does, wants it to stay so.
    if (::sigaction(number, nullptr, &former) == 0 && former.sa_handler != SIG_IGN) {
      ::sigaction(number, &action, nullptr);
    }
  }
}

}  // namespace

SignalGuard::SignalGuard(platform::Application& application) {
  if (::pipe(wakeUp.data()) != 0) {
    return;  // the signals then end the process by themselves
  }
  for (const int end : wakeUp) {
    ::fcntl(end, F_SETFD, FD_CLOEXEC);
    ::fcntl(end, F_SETFL, O_NONBLOCK);
  }
  auto* const notifier = new QSocketNotifier(wakeUp[0], QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, [notifier, &application] {
    notifier->setEnabled(false);
    application.terminate();
  });
  handle(wake);
}

SignalGuard::~SignalGuard() {
  handle(SIG_DFL);
  for (int& end : wakeUp) {
    if (end >= 0) {
      ::close(end);
      end = -1;
    }
  }
}

}  // namespace desktop
