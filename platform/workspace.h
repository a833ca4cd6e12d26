#pragma once

#include <string>

namespace platform {

/// Starts other applications.
class Workspace {
 public:
  Workspace() = default;
  Workspace(const Workspace&) = delete;
  Workspace& operator=(const Workspace&) = delete;
  virtual ~Workspace() = default;

  /// Starts the application at `path`; returns whether it was started.
  virtual bool launchApplication(const std::string& path) = 0;
};

/// Starts applications as processes that outlive this one.
class ProcessWorkspace : public Workspace {
 public:
  /// `homeDirectory` becomes the working directory of what is started.
  explicit ProcessWorkspace(std::string homeDirectory) : homeDirectory_(std::move(homeDirectory)) {}

  /// `path` names an application bundle or an executable file. No shell and no search path is
  /// involved. The application gets a session of its own, the null device as standard input, our
  /// standard output and error, and no other open file.
  bool launchApplication(const std::string& path) override;

 private:
  std::string homeDirectory_;
};

/// The executable of an application: for a bundle the one that its Info.plist names, else the one
/// that bears the bundle's name; any other path is its own executable.
std::string executableOf(const std::string& application);

}  // namespace platform
