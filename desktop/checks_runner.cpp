#include "desktop/checks_runner.h"

#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

#include "checks/findings.h"
#include "checks/window_state.h"

namespace desktop {
namespace {

// Gatherings at a time: each can hang in stat() on a dead network mount for good.
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

// Threads cannot be stopped in a system call: one that hangs is left behind. It shares the mailbox,
// and finds there that nobody receives its result any more.
ChecksRunner::~ChecksRunner() {
  const std::lock_guard lock(mailbox_->mutex);
  mailbox_->receiver = nullptr;
}

void ChecksRunner::lookAgain() {
  if (isWaiting_) {
    // The gathering under way may have looked at a file before it changed: another one follows it.
    // Begun at once, it would only hang beside it where a file system does not answer.
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
    const auto found = std::make_shared<Found>(look(state, source));
    const std::lock_guard lock(mailbox->mutex);
    if (ChecksRunner* const receiver = mailbox->receiver) {
      const auto deliver = [receiver, number, found] {
        receiver->receive(number, std::move(*found));
      };
      QMetaObject::invokeMethod(receiver, deliver, Qt::QueuedConnection);
    }
  };
  try {
    std::thread(std::move(work)).detach();
    ++running_;
  } catch (const std::system_error&) {
    // No thread is to be had (EAGAIN): patience_ runs out and shows what needs no facts.
  }
}

// Runs on a thread of its own.
ChecksRunner::Found ChecksRunner::look(const checks::State& state, const FactsSource& source) {
  checks::Facts facts = source(state);
  Found found{checks::findings(state, facts), {}};
  for (std::size_t index = 0; index < state.disks.size(); ++index) {
    found.imageFacts.emplace(state.disks[index], std::move(facts.disks.at(index)));
  }
  return found;
}

void ChecksRunner::receive(std::size_t number, Found found) {
  --running_;
  if (std::exchange(again_, false)) {
    gather();
  } else if (number == newest_) {
    patience_.stop();
    isWaiting_ = false;
    findings_ = std::move(found.findings);
    imageFacts_ = std::move(found.imageFacts);
    emit changed();
  }
}

void ChecksRunner::showWithoutFacts() {
  const checks::State state = checks::stateOf(controller_);
  findings_ = checks::findings(state, checks::assumedFine(state));
  emit changed();
}

}  // namespace desktop
