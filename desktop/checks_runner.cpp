#include "desktop/checks_runner.h"

#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

#include "checks/findings.h"
#include "checks/window_state.h"

namespace desktop {
namespace {

// Each may hang on a dead network mount for good.
constexpr std::size_t mostRunning = 4;
// How long the old findings stay before those that need no facts take their place.
constexpr int patience = 700;  // milliseconds

}  // namespace

struct ChecksRunner::Mailbox {
  std::mutex mutex;
  ChecksRunner* receiver;  // null when it is gone
};

ChecksRunner::ChecksRunner(const editor::ViewController& controller, FactsSource source)
    : controller_(controller), source_(std::move(source)), mailbox_(std::make_shared<Mailbox>()) {
  mailbox_->receiver = this;
  patience_.setSingleShot(true);
  patience_.setInterval(patience);
  connect(&patience_, &QTimer::timeout, this, &ChecksRunner::showWithoutFacts);
}

// A thread that still waits for a file is left behind. It holds all that it works with.
ChecksRunner::~ChecksRunner() {
  const std::lock_guard lock(mailbox_->mutex);
  mailbox_->receiver = nullptr;
}

void ChecksRunner::lookAgain() {
  if (isWaiting_) {
    // What is under way may have passed a file before it changed. Another thread beside one that
    // hangs would hang as well.
    again_ = isStarted();
  } else {
    gather();
  }
}

void ChecksRunner::gather() {
  isWaiting_ = true;
  patience_.start();
  again_ = running_ >= mostRunning;
  ++newest_;
  if (again_) {
    return;
  }
  auto work = [mailbox = mailbox_, source = source_, state = checks::stateOf(controller_),
               number = newest_] {
    auto found = checks::findings(state, source(state));
    const std::lock_guard lock(mailbox->mutex);
    if (ChecksRunner* const receiver = mailbox->receiver) {
      const auto deliver = [receiver, number, found = std::move(found)] {
        receiver->receive(number, found);
      };
      QMetaObject::invokeMethod(receiver, deliver, Qt::QueuedConnection);
    }
  };
  try {
    std::thread(std::move(work)).detach();
    ++running_;
  } catch (const std::system_error&) {
    // Where the system grants no thread the findings that need no facts are all there are.
  }
}

void ChecksRunner::receive(std::size_t number, std::vector<checks::Finding> found) {
  --running_;
  if (std::exchange(again_, false)) {
    gather();
  } else if (number == newest_) {
    patience_.stop();
    isWaiting_ = false;
    findings_ = std::move(found);
    emit changed();
  }
}

void ChecksRunner::showWithoutFacts() {
  const checks::State state = checks::stateOf(controller_);
  findings_ = checks::findings(state, checks::assumedFine(state));
  emit changed();
}

}  // namespace desktop
