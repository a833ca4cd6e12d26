#pragma once

#include <QObject>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "checks/facts.h"
#include "checks/finding.h"
#include "editor/view_controller.h"

namespace desktop {

/// Where the facts about files come from. It is called outside the window's thread, may take as
/// long as it wants, and may return after the program has forgotten about it.
using FactsSource = std::function<checks::Facts(const checks::State&)>;

/// The facts about disk images by their paths.
using ImageFacts = std::unordered_map<std::string, checks::FileFact>;

/// Keeps the findings up to date. The window's thread never waits for a file: facts are gathered on
/// threads of their own, and those that are outdated when they arrive are dropped.
class ChecksRunner : public QObject {
  Q_OBJECT

 public:
  ChecksRunner(const editor::ViewController& controller, FactsSource source);
  ~ChecksRunner() override;

  /// Gathers facts for the first time, or about a state that has changed.
  void gather();
  [[nodiscard]] bool isStarted() const { return newest_ > 0; }

  /// Gathers the facts anew, since files may have changed.
  void lookAgain();

  /// Those that were found last. Before the facts are there, and when they are long in coming,
  /// those that need no facts.
  [[nodiscard]] const std::vector<checks::Finding>& findings() const { return findings_; }

  /// The facts that came last. Images that have been added since are not among them.
  [[nodiscard]] const ImageFacts& imageFacts() const { return imageFacts_; }

  /// Whether the facts are still to come.
  [[nodiscard]] bool isWaiting() const { return isWaiting_; }

 signals:
  void changed();

 private:
  struct Found {
    std::vector<checks::Finding> findings;
    ImageFacts imageFacts;
  };
  struct Mailbox;

  [[nodiscard]] static Found look(const checks::State& state, const FactsSource& source);
  void receive(std::size_t number, Found found);
  void showWithoutFacts();

  const editor::ViewController& controller_;
  FactsSource source_;
  std::shared_ptr<Mailbox> mailbox_;  // also held by the threads, which may outlive this object
  QTimer patience_;
  std::vector<checks::Finding> findings_;
  ImageFacts imageFacts_;
  std::size_t newest_ = 0;   // number of the gathering begun last
  std::size_t running_ = 0;  // gatherings that have not come back
  bool isWaiting_ = true;
  bool again_ = false;  // once one of them comes back
};

}  // namespace desktop
