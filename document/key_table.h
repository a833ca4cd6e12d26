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
};

inline constexpr std::size_t keyCount = 34;

constexpr std::size_t indexOf(Key key) { return static_cast<std::size_t>(key); }

/// All there is to know of a setting.
struct KeyRow {
  Key key;
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
    {Key::extfs, "extfs ", "Put an OS X path here to share it with Quillon", "unixRootPath", "unixRoot",
     translatable("Help", "A folder of this computer that appears as a disk inside the emulated Macintosh."),
     translatable("Help", "as a path"), true},
    {Key::screen, "screen ", "win/1024/768", "screenType", "videoType",
     translatable("Help", "Whether the Macintosh screen is shown in a window or fills the screen, and "
          "how large it is. \"Maximum\" takes all the room there is."),
     translatable("Help", "as type/width/height, in pixels, 0 for the maximum")},
    {Key::seriala, "seriala ", "", "modemPort", "modemPort",
     translatable("Help", "The device or program that the modem port is connected to. Leave it empty for "
          "none."),
     nullptr},
    {Key::serialb, "serialb ", "", "printerPort", "printerPort",
     translatable("Help", "The device or program that the printer port is connected to. Leave it empty "
          "for none."),
     nullptr},
    {Key::ether, "ether ", "slirp", "etherPort", "etherNet",
     translatable("Help", "How the Macintosh reaches the network: \"slirp\" needs no set-up, or the name "
          "of a network device."),
     nullptr},
    {Key::udptunnel, "udptunnel ", "false", "tunnelUDP", "udpTunnel",
     translatable("Help", "Sends network packets to other emulators on the local network through UDP."),
     translatable("Help", "as true or false")},
    {Key::udpport, "udpport ", "6066", "portUDP", "portStepper",
     translatable("Help", "The UDP port of the tunnel. All emulators that are to meet need the same."),
     translatable("Help", "as a number from 1 to 65535")},
    {Key::rom, "rom ", "Put the path to your ROM file here", "romFile", "romFilePath",
     translatable("Help", "The file with the ROM of a Macintosh. The emulator cannot start without it."),
     translatable("Help", "as a path"), true},
    {Key::bootdrive, "bootdrive ", "0", "stateStart", "startDevice",
     translatable("Help", "The drive that the Macintosh tries to start from."),
     translatable("Help", "as 0 for any drive, or 1")},
    {Key::bootdriver, "bootdriver ", "0", "", "", nullptr, nullptr},
    {Key::ramsize, "ramsize ", "67108864", "ramSizeMB", "ramSize",
     translatable("Help", "The memory of the Macintosh in megabytes. Old systems may not start with very "
          "much of it."),
     translatable("Help", "in bytes")},
    {Key::frameskip, "frameskip ", "0", "refreshRate", "refreshRate",
     translatable("Help", "How often the Macintosh screen is drawn. Lower rates leave more time for the "
          "processor."),
     translatable("Help", "as frames per drawing, 0 for dynamic")},
    {Key::modelid, "modelid ", "5", "modelID", "modelID",
     translatable("Help", "The model that the Macintosh says it is. Mac OS 8 needs the Quadra."),
     translatable("Help", "as a model number")},
    {Key::cpu, "cpu ", "3", "cpuType", "cpuType",
     translatable("Help", "The processor of the Macintosh, with or without floating-point unit."),
     translatable("Help", "as the x of 680x0, together with \"fpu\" as true or false")},
    {Key::fpu, "fpu ", "false", "cpuType", "cpuType",
     translatable("Help", "Whether the processor has a floating-point unit."),
     translatable("Help", "as true or false")},
    {Key::nocdrom, "nocdrom ", "false", "stateCDROM", "disableCDROM",
     translatable("Help", "Takes the CD-ROM drive out of the Macintosh."),
     translatable("Help", "as true or false")},
    {Key::nosound, "nosound ", "false", "disableSound", "disableSound",
     translatable("Help", "Keeps the Macintosh silent."),
     translatable("Help", "as true or false")},
    {Key::noclipconversion, "noclipconversion ", "false", "", "", nullptr, nullptr},
    {Key::nogui, "nogui ", "false", "", "", nullptr, nullptr},
    {Key::jit, "jit ", "false", "enableJIT", "jitSet",
     translatable("Help", "Translates the Macintosh's programs for this computer's processor as they "
          "run. Much faster; needs a 68020 or later."),
     translatable("Help", "as true or false")},
    {Key::jitfpu, "jitfpu ", "false", "compileFPU", "jitFPU",
     translatable("Help", "Translates floating-point instructions, too. Faster, a little less exact."),
     translatable("Help", "as true or false")},
    {Key::jitdebug, "jitdebug ", "false", "", "", nullptr, nullptr},
    {Key::jitcachesize, "jitcachesize ", "8192", "jitCache", "jitCachSize",
     translatable("Help", "The memory for translated programs."),
     translatable("Help", "in KB")},
    {Key::jitlazyflush, "jitlazyflush ", "true", "lazyFlush", "jitLazy",
     translatable("Help", "Throws translated programs away only when they are really no longer valid. "
          "Faster."),
     translatable("Help", "as true or false")},
    {Key::jitinline, "jitinline ", "true", "inlineBlocks", "jitInline",
     translatable("Help", "Translates across jumps that always lead to the same place. Faster."),
     translatable("Help", "as true or false")},
    {Key::keyboardtype, "keyboardtype ", "5", "", "", nullptr, nullptr},
    {Key::keycodes, "keycodes ", "false", "rawKeys", "rawKeycodes",
     translatable("Help", "Tells keys apart by their place on the keyboard, through a table in a file, "
          "and not by their letter."),
     translatable("Help", "as true or false")},
    {Key::keycodefile, "keycodefile ", "", "rawKeyFile", "keycodeFilePath",
     translatable("Help", "The file with the table of key codes. Used only with raw key codes."),
     translatable("Help", "as a path")},
    {Key::mousewheelmode, "mousewheelmode ", "1", "mouseWheel", "mouseWheel",
     translatable("Help", "Which keys a turn of the mouse wheel presses inside the Macintosh."),
     translatable("Help", "as 0 for pages, 1 for the cursor")},
    {Key::mousewheellines, "mousewheellines ", "3", "mouseScroll", "scrollStep",
     translatable("Help", "How many lines one step of the mouse wheel scrolls."),
     translatable("Help", "as a number")},
    {Key::dsp, "dsp ", "", "audioOut", "audioOut",
     translatable("Help", "The device that sound goes to. Leave it empty for the usual one."),
     nullptr},
    {Key::mixer, "mixer ", "", "audioMix", "audioMix",
     translatable("Help", "The device that sets the loudness. Leave it empty for the usual one."),
     nullptr},
    {Key::ignoresegv, "ignoresegv ", "true", "ignoreSegV", "ignoreSegV",
     translatable("Help", "Lets the Macintosh go on when a program reaches for memory that is not there."),
     translatable("Help", "as true or false")},
    {Key::idlewait, "idlewait ", "true", "dontUseCPU", "idleCPU",
     translatable("Help", "Rests while the Macintosh has nothing to do and saves this computer's energy."),
     translatable("Help", "as true or false")},
}};
// clang-format on

constexpr const KeyRow& rowOf(Key key) { return keyTable[indexOf(key)]; }

namespace detail {

constexpr bool isConsistent() {
  for (std::size_t i = 0; i < keyCount; ++i) {
    const KeyRow& row = keyTable[i];
    if (indexOf(row.key) != i || row.text.find(' ') != row.text.size() - 1) {
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

static_assert(detail::isConsistent(), "rows in key order, one blank at the end, no key twice");

/// The key texts and the default values by index.
inline constexpr auto prefs = detail::column(&KeyRow::text);
inline constexpr auto defaults = detail::column(&KeyRow::defaultValue);

}  // namespace document
