#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <system_error>

namespace platform {

/// A property list whose top level is a dictionary. Values that nobody asks for are carried along
/// whatever their type.
class PropertyList {
 public:
  PropertyList();

  /// Reads the XML and the binary format. None, with the reason in `error`, when the file cannot be
  /// read, holds more than 64 KiB or 64 levels, or is no dictionary that can be written again.
  static std::optional<PropertyList> read(const std::string& path, std::error_code& error);

  /// The value of a key; none when the key is missing or its value has another type.
  [[nodiscard]] std::optional<std::string> text(const std::string& key) const;
  [[nodiscard]] std::optional<bool> boolean(const std::string& key) const;
  [[nodiscard]] std::optional<std::int64_t> integer(const std::string& key) const;

  void set(const std::string& key, const std::string& text);
  void set(const std::string& key, bool value);
  void set(const std::string& key, std::int64_t value);

  /// The whole list in the XML format; none when it cannot be expressed or `read` would refuse it.
  [[nodiscard]] std::optional<std::string> xml() const;

 private:
  using Node = void*;  // the library's handle, kept out of this header
  struct Free {
    void operator()(Node node) const;
  };

  explicit PropertyList(Node root) : root_(root) {}
  [[nodiscard]] Node item(const std::string& key) const;

  std::unique_ptr<void, Free> root_;
};

}  // namespace platform
