#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/location.h"
#include "platform/output.h"

namespace platform {

/// How a panel for choosing existing files or folders is set up. None shows hidden files at first.
struct OpenPanel {
  std::string asker;  // the control that asks
  std::string title;
  bool canChooseFiles = true;
  bool canChooseDirectories = false;
  bool canCreateDirectories = false;
  bool allowsMultipleSelection = false;
  std::vector<std::string> allowedFileTypes;  // file name endings; empty: any
  std::string directory;                      // where it opens; empty: its own choice
  std::string chosenFile{};                   // is chosen when it opens
};

/// How a panel for naming a new file is set up.
struct SavePanel {
  std::string title;
  std::string message;
  std::string nameFieldStringValue;
  std::vector<std::string> allowedFileTypes;
  bool canSelectHiddenExtension = false;
  bool extensionHidden = false;
  bool showsTagField = true;
};

/// Shows panels. The completion gets what the user confirmed, and nothing after a cancel; it runs
/// once, when the panel has closed.
class Panels {
 public:
  using Chosen = std::function<void(const std::vector<Location>&)>;

  Panels() = default;
  Panels(const Panels&) = delete;
  Panels& operator=(const Panels&) = delete;
  virtual ~Panels() = default;

  /// Shows the panel and returns only when the user has answered it.
  virtual std::vector<Location> runModal(const OpenPanel& panel) = 0;

  /// Shows the panel beside the windows and returns at once. While the one of the same asker is
  /// open, that comes to the front, and this completion never runs.
  virtual void begin(const OpenPanel& panel, Chosen completion) = 0;

  /// Shows the panel as a sheet of the settings window and returns at once.
  virtual void beginSheet(const OpenPanel& panel, Chosen completion) = 0;
  virtual void beginSheet(const SavePanel& panel, Chosen completion) = 0;
};

/// Those of the chosen files whose paths the preferences file can hold, a line for each; the output
/// gets a line about every other one.
std::vector<Location> thatFitALine(const std::vector<Location>& chosen, Output& output);

}  // namespace platform
