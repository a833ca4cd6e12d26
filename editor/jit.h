#pragma once

#include <string>

#include "editor/shapes.h"

namespace editor {

class JitCacheSetting : public ComboBoxSetting {
 public:
  explicit JitCacheSetting(ControlGroup& group);

  [[nodiscard]] bool knows(std::string_view value) const override;

 protected:
  void show() override { selectOrAdd(box, value()); }
  void typed(const std::string& text) override;
  void chosen(std::size_t index) override { setValue(box.items()[index]); }
  void edited() override { jitCachSize(); }

 private:
  void jitCachSize();
};

/// The just-in-time compiler, and how the processor is emulated.
class JitGroup : public ControlGroup {
 public:
  using ControlGroup::ControlGroup;
  using Echo = CheckBoxSetting::Echo;

  Setting noclipconversion{*this, Key::noclipconversion, {.found = "results1c-checkA: "}};
  Setting nogui{*this, Key::nogui};
  CheckBoxSetting enableJIT{*this, Key::jit, Echo::truth};
  CheckBoxSetting compileFPU{*this, Key::jitfpu, Echo::truth};
  Setting jitdebug{*this, Key::jitdebug};
  JitCacheSetting jitCache{*this};
  CheckBoxSetting lazyFlush{*this, Key::jitlazyflush, Echo::truth};
  CheckBoxSetting inlineBlocks{*this, Key::jitinline, Echo::truth};
  CheckBoxSetting ignoreSegV{*this,
                             Key::ignoresegv,
                             Echo::state,
                             {.form = Announcement::Form::value, .label = "ignoresegv :"}};
  CheckBoxSetting dontUseCPU{
      *this, Key::idlewait, Echo::state, {.form = Announcement::Form::value, .label = "idle :"}};
};

}  // namespace editor
