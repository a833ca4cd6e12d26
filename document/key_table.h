#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "platform/translatable.h"

namespace document {

/// The settings in the order of their lines in the preferences file.
enum class Key : std::size_t {
  extfs,
  screen,
  seriala,
  serialb,
  ether,
  udptunnel,
  udpport,
  rom,
  bootdrive,
  bootdriver,
  ramsize,
  frameskip,
  modelid,
  cpu,
  fpu,
  nocdrom,
  nosound,
  noclipconversion,
  nogui,
  jit,
  jitfpu,
  jitdebug,
  jitcachesize,
  jitlazyflush,
  jitinline,
  keyboardtype,
  keycodes,
  keycodefile,
  mousewheelmode,
  mousewheellines,
  dsp,
  mixer,
  ignoresegv,
  idlewait,
  count,  // of the settings, and none itself
};

constexpr std::size_t indexOf(Key key) { return static_cast<std::size_t>(key); }

inline constexpr std::size_t keyCount = indexOf(Key::count);

/// All there is to know of a setting. The texts for a person are marked with `translatable`, the
/// label under "Settings" and the others under "Help".
struct KeyRow {
  Key key;
  const char* label;              // its name, with "&" before the letter that leads to the control
  std::string_view text;          // the key word and one blank, as a line begins
  std::string_view defaultValue;  // taken when the file has no value
  std::string_view control;       // what shows it; empty: carried through unseen
  std::string_view action;        // what an edit of the control runs, for tools
  const char* help;               // what it does, for a person; null without a control
  const char* written;            // how it stands in the file, for a person; null: as it is shown
  bool defaultAsks = false;       // the default asks for a value and is none to leave
};

using platform::translatable;

// clang-format off
inline constexpr std::array<KeyRow, keyCount> keyTable = {{
    {Key::extfs, translatable("Settings", "Shared fol&der"),
     "extfs ", "Put an OS X path here to share it with Quillon", "unixRootPath", "unixRoot",
     translatable("Help", "A folder of this computer that appears as a disk inside the emulated Macintosh."),
     translatable("Help", "as a path"), true},
    {Key::screen, translatable("Settings", "Screen"),
     "screen ", "win/1024/768", "screenType", "videoType",
     translatable("Help", "Whether the Macintosh screen is shown in a window or fills the screen, and "
          "how large it is. \"Maximum\" takes all the room there is."),
     translatable("Help", "as type/width/height, in pixels, 0 for the maximum")},
    {Key::seriala, translatable("Settings", "&Modem port"),
     "seriala ", "", "modemPort", "modemPort",
     translatable("Help", "The device or program that the modem port is connected to. Leave it empty for "
          "none."),
     nullptr},
    {Key::serialb, translatable("Settings", "P&rinter port"),
     "serialb ", "", "printerPort", "printerPort",
     translatable("Help", "The device or program that the printer port is connected to. Leave it empty "
          "for none."),
     nullptr},
    {Key::ether, translatable("Settings", "Network &device"),
     "ether ", "slirp", "etherPort", "etherNet",
     translatable("Help", "How the Macintosh reaches the network: \"slirp\" needs no set-up, or the name "
          "of a network device."),
     nullptr},
    {Key::udptunnel, translatable("Settings", "Tunnel the net&work over UDP"),
     "udptunnel ", "false", "tunnelUDP", "udpTunnel",
     translatable("Help", "Sends network packets to other emulators on the local network through UDP."),
     translatable("Help", "as true or false")},
    {Key::udpport, translatable("Settings", "&UDP port"),
     "udpport ", "6066", "portUDP", "portStepper",
     translatable("Help", "The UDP port of the tunnel. All emulators that are to meet need the same."),
     translatable("Help", "as a number from 1 to 65535")},
    {Key::rom, translatable("Settings", "&ROM file"),
     "rom ", "Put the path to your ROM file here", "romFile", "romFilePath",
     translatable("Help", "The file with the ROM of a Macintosh. The emulator cannot start without it."),
     translatable("Help", "as a path"), true},
    {Key::bootdrive, translatable("Settings", "&Boot drive"),
     "bootdrive ", "0", "stateStart", "startDevice",
     translatable("Help", "The drive that the Macintosh tries to start from."),
     translatable("Help", "as 0 for any drive, or 1")},
    {Key::bootdriver, translatable("Settings", "Boot driver"),
     "bootdriver ", "0", "", "", nullptr, nullptr},
    {Key::ramsize, translatable("Settings", "RA&M size (MB)"),
     "ramsize ", "67108864", "ramSizeMB", "ramSize",
     translatable("Help", "The memory of the Macintosh in megabytes. Old systems may not start with very "
          "much of it."),
     translatable("Help", "in bytes")},
    {Key::frameskip, translatable("Settings", "Refresh r&ate"),
     "frameskip ", "0", "refreshRate", "refreshRate",
     translatable("Help", "How often the Macintosh screen is drawn. Lower rates leave more time for the "
          "processor."),
     translatable("Help", "as frames per drawing, 0 for dynamic")},
    {Key::modelid, translatable("Settings", "M&odel"),
     "modelid ", "5", "modelID", "modelID",
     translatable("Help", "The model that the Macintosh says it is. Mac OS 8 needs the Quadra."),
     translatable("Help", "as a model number")},
    {Key::cpu, translatable("Settings", "Processor (CP&U)"),
     "cpu ", "3", "cpuType", "cpuType",
     translatable("Help", "The processor of the Macintosh, with or without floating-point unit."),
     translatable("Help", "as the x of 680x0, together with \"fpu\" as true or false")},
    {Key::fpu, translatable("Settings", "Floating-point unit (FPU)"),
     "fpu ", "false", "cpuType", "cpuType",
     translatable("Help", "Whether the processor has a floating-point unit."),
     translatable("Help", "as true or false")},
    {Key::nocdrom, translatable("Settings", "&Disable the CD-ROM drive"),
     "nocdrom ", "false", "stateCDROM", "disableCDROM",
     translatable("Help", "Takes the CD-ROM drive out of the Macintosh."),
     translatable("Help", "as true or false")},
    {Key::nosound, translatable("Settings", "&Disable sound"),
     "nosound ", "false", "disableSound", "disableSound",
     translatable("Help", "Keeps the Macintosh silent."),
     translatable("Help", "as true or false")},
    {Key::noclipconversion, translatable("Settings", "Leave the clipboard unconverted"),
     "noclipconversion ", "false", "", "", nullptr, nullptr},
    {Key::nogui, translatable("Settings", "No windows of its own"),
     "nogui ", "false", "", "", nullptr, nullptr},
    {Key::jit, translatable("Settings", "Enable the &JIT compiler"),
     "jit ", "false", "enableJIT", "jitSet",
     translatable("Help", "Translates the Macintosh's programs for this computer's processor as they "
          "run. Much faster; needs a 68020 or later."),
     translatable("Help", "as true or false")},
    {Key::jitfpu, translatable("Settings", "Compile floating-point instr&uctions"),
     "jitfpu ", "false", "compileFPU", "jitFPU",
     translatable("Help", "Translates floating-point instructions, too. Faster, a little less exact."),
     translatable("Help", "as true or false")},
    {Key::jitdebug, translatable("Settings", "Debug the JIT compiler"),
     "jitdebug ", "false", "", "", nullptr, nullptr},
    {Key::jitcachesize, translatable("Settings", "Cache si&ze (KB)"),
     "jitcachesize ", "8192", "jitCache", "jitCachSize",
     translatable("Help", "The memory for translated programs."),
     translatable("Help", "in KB")},
    {Key::jitlazyflush, translatable("Settings", "Flush the cache lazil&y"),
     "jitlazyflush ", "true", "lazyFlush", "jitLazy",
     translatable("Help", "Throws translated programs away only when they are really no longer valid. "
          "Faster."),
     translatable("Help", "as true or false")},
    {Key::jitinline, translatable("Settings", "Inline &blocks"),
     "jitinline ", "true", "inlineBlocks", "jitInline",
     translatable("Help", "Translates across jumps that always lead to the same place. Faster."),
     translatable("Help", "as true or false")},
    {Key::keyboardtype, translatable("Settings", "Keyboard type"),
     "keyboardtype ", "5", "", "", nullptr, nullptr},
    {Key::keycodes, translatable("Settings", "Use raw &key codes"),
     "keycodes ", "false", "rawKeys", "rawKeycodes",
     translatable("Help", "Tells keys apart by their place on the keyboard, through a table in a file, "
          "and not by their letter."),
     translatable("Help", "as true or false")},
    {Key::keycodefile, translatable("Settings", "Ke&y code file"),
     "keycodefile ", "", "rawKeyFile", "keycodeFilePath",
     translatable("Help", "The file with the table of key codes. Used only with raw key codes."),
     translatable("Help", "as a path")},
    {Key::mousewheelmode, translatable("Settings", "Mouse &wheel"),
     "mousewheelmode ", "1", "mouseWheel", "mouseWheel",
     translatable("Help", "Which keys a turn of the mouse wheel presses inside the Macintosh."),
     translatable("Help", "as 0 for pages, 1 for the cursor")},
    {Key::mousewheellines, translatable("Settings", "L&ines to scroll"),
     "mousewheellines ", "3", "mouseScroll", "scrollStep",
     translatable("Help", "How many lines one step of the mouse wheel scrolls."),
     translatable("Help", "as a number")},
    {Key::dsp, translatable("Settings", "&Output device"),
     "dsp ", "", "audioOut", "audioOut",
     translatable("Help", "The device that sound goes to. Leave it empty for the usual one."),
     nullptr},
    {Key::mixer, translatable("Settings", "&Mixer device"),
     "mixer ", "", "audioMix", "audioMix",
     translatable("Help", "The device that sets the loudness. Leave it empty for the usual one."),
     nullptr},
    {Key::ignoresegv, translatable("Settings", "Ignore &memory faults"),
     "ignoresegv ", "true", "ignoreSegV", "ignoreSegV",
     translatable("Help", "Lets the Macintosh go on when a program reaches for memory that is not there."),
     translatable("Help", "as true or false")},
    {Key::idlewait, translatable("Settings", "Rest while the Macintosh is &idle"),
     "idlewait ", "true", "dontUseCPU", "idleCPU",
     translatable("Help", "Rests while the Macintosh has nothing to do and saves this computer's energy."),
     translatable("Help", "as true or false")},
}};
// clang-format on

constexpr const KeyRow& rowOf(Key key) { return keyTable[indexOf(key)]; }

namespace detail {

constexpr bool isConsistent() {
  for (std::size_t i = 0; i < keyCount; ++i) {
    const KeyRow& row = keyTable[i];
    if (indexOf(row.key) != i || row.label == nullptr ||
        row.text.find(' ') != row.text.size() - 1 || row.control.empty() != (row.help == nullptr)) {
      return false;
    }
    for (std::size_t j = 0; j < i; ++j) {
      if (keyTable[j].text == row.text) {
        return false;
      }
    }
  }
  return true;
}

constexpr auto column(std::string_view KeyRow::*field) {
  std::array<std::string_view, keyCount> texts;
  std::transform(keyTable.begin(), keyTable.end(), texts.begin(),
                 [field](const KeyRow& row) { return row.*field; });
  return texts;
}

}  // namespace detail

static_assert(
    detail::isConsistent(),
    "a row for each key in their order, with a label and, for a control, a help; one blank "
    "at the end of a key text, and no key text twice");

/// The key texts and the default values by index.
inline constexpr auto prefs = detail::column(&KeyRow::text);
inline constexpr auto defaults = detail::column(&KeyRow::defaultValue);

}  // namespace document
