#include "editor/shared_folder.h"

#include "platform/translatable.h"

namespace editor {

SharedFolderGroup::SharedFolderGroup(document::Preferences& values, platform::Output& diagnostics,
                                     platform::Panels& choosers)
    : ControlGroup(values, diagnostics, choosers) {
  unixRoot.action = [this] { chooseFolder(); };
}

void SharedFolderGroup::chooseFolder() {
  platform::OpenPanel panel;
  panel.title = platform::translatable("Panels", "Choose Unix Root Folder");
  panel.canChooseFiles = false;
  panel.canChooseDirectories = true;
  panel.canCreateDirectories = true;
  panel.directory = folderOf(unixRootPath.field.stringValue());
  const auto chosen = platform::thatFitALine(panels.runModal(panel), output);
  if (!chosen.empty()) {
    const std::string path = chosen.front().path();
    unixRootPath.assign(path);
    output.print(document::Preferences::line(Key::extfs, path));
  }
}

}  // namespace editor
