#pragma once

#include "editor/shapes.h"

namespace editor {

/// A serial port or a network device: the box offers just what is set, and what is typed takes its
/// place.
class PortSetting : public ComboBoxSetting {
 public:
  /// What an edit writes to the diagnostics in front of the value.
  enum class Echo { value, optionalAndValue };

  PortSetting(ControlGroup& group, Key key, Echo echo = Echo::value);

 protected:
  void show() override;
  void typed(const std::string& text) override;
  void chosen(std::size_t /*index*/) override {}
  void edited() override;

 private:
  Echo echo_;
};

/// What connects the emulated machine to this computer.
class NetworkGroup : public ControlGroup {
 public:
  using ControlGroup::ControlGroup;

  PortSetting modemPort{*this, Key::seriala};
  PortSetting printerPort{*this, Key::serialb, PortSetting::Echo::optionalAndValue};
  PortSetting etherPort{*this, Key::ether};
  CheckBoxSetting tunnelUDP{*this,
                            Key::udptunnel,
                            CheckBoxSetting::Echo::state,
                            {.heading = Announcement::Heading::keyText,
                             .form = Announcement::Form::optional,
                             .label = "udptunnel :"}};
  StepperSetting portUDP{*this,      Key::udpport, "portStep",
                         {1, 65535}, "UDP: ",      {.heading = Announcement::Heading::keyText}};
};

}  // namespace editor
