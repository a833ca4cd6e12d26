#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

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
  std::string_view action;        // what an edit of the control runs
  std::string_view help;          // what it does, for a person
  std::string_view written;       // what stands in the file, for a person; empty: the text itself
};

// clang-format off
inline constexpr std::array<KeyRow, keyCount> keyTable = {{
    {Key::extfs, "extfs ", "Put an OS X path here to share it with Quillon", "unixRootPath", "unixRoot",
     "A folder of this computer that appears as a disk inside the emulated Macintosh.", "as a path"},
    {Key::screen, "screen ", "win/1024/768", "screenType", "videoType",
     "Whether the Macintosh screen is shown in a window or fills the screen, and how large it is. "
     "\"Maximum\" takes all the room there is.", "as type/width/height, in pixels, 0 for the maximum"},
    {Key::seriala, "seriala ", "", "modemPort", "modemPort",
     "The device or program that the modem port is connected to. Leave it empty for none.", ""},
    {Key::serialb, "serialb ", "", "printerPort", "printerPort",
     "The device or program that the printer port is connected to. Leave it empty for none.", ""},
    {Key::ether, "ether ", "slirp", "etherPort", "etherNet",
     "How the Macintosh reaches the network: \"slirp\" needs no set-up, or the name of a network device.", ""},
    {Key::udptunnel, "udptunnel ", "false", "tunnelUDP", "udpTunnel",
     "Sends network packets to other emulators on the local network through UDP.", "as true or false"},
    {Key::udpport, "udpport ", "6066", "portUDP", "portStepper",
     "The UDP port of the tunnel. All emulators that are to meet need the same.", "as a number from 1 to 65535"},
    {Key::rom, "rom ", "Put the path to your ROM file here", "romFile", "romFilePath",
     "The file with the ROM of a Macintosh. The emulator cannot start without it.", "as a path"},
    {Key::bootdrive, "bootdrive ", "0", "stateStart", "startDevice",
     "The drive that the Macintosh tries to start from.", "as 0 for any drive, or 1"},
    {Key::bootdriver, "bootdriver ", "0", "", "", "", ""},
    {Key::ramsize, "ramsize ", "67108864", "ramSizeMB", "ramSize",
     "The memory of the Macintosh in megabytes. Old systems may not start with very much of it.", "in bytes"},
    {Key::frameskip, "frameskip ", "0", "refreshRate", "refreshRate",
     "How often the Macintosh screen is drawn. Lower rates leave more time for the processor.",
     "as frames per drawing, 0 for dynamic"},
    {Key::modelid, "modelid ", "5", "modelID", "modelID",
     "The model that the Macintosh says it is. Mac OS 8 needs the Quadra.", "as a model number"},
    {Key::cpu, "cpu ", "3", "cpuType", "cpuType",
     "The processor of the Macintosh, with or without floating-point unit.", "with fpu, as the last digits of 680x0"},
    {Key::fpu, "fpu ", "false", "cpuType", "cpuType",
     "Whether the processor has a floating-point unit.", "as true or false"},
    {Key::nocdrom, "nocdrom ", "false", "stateCDROM", "disableCDROM",
     "Takes the CD-ROM drive out of the Macintosh.", "as true or false"},
    {Key::nosound, "nosound ", "false", "disableSound", "disableSound",
     "Keeps the Macintosh silent.", "as true or false"},
    {Key::noclipconversion, "noclipconversion ", "false", "", "", "", ""},
    {Key::nogui, "nogui ", "false", "", "", "", ""},
    {Key::jit, "jit ", "false", "enableJIT", "jitSet",
     "Translates the Macintosh's programs for this computer's processor as they run. Much faster; needs a "
     "68020 or later.", "as true or false"},
    {Key::jitfpu, "jitfpu ", "false", "compileFPU", "jitFPU",
     "Translates floating-point instructions, too. Faster, a little less exact.", "as true or false"},
    {Key::jitdebug, "jitdebug ", "false", "", "", "", ""},
    {Key::jitcachesize, "jitcachesize ", "8192", "jitCache", "jitCachSize",
     "The memory for translated programs.", "in KB"},
    {Key::jitlazyflush, "jitlazyflush ", "true", "lazyFlush", "jitLazy",
     "Throws translated programs away only when they are really no longer valid. Faster.", "as true or false"},
    {Key::jitinline, "jitinline ", "true", "inlineBlocks", "jitInline",
     "Translates across jumps that always lead to the same place. Faster.", "as true or false"},
    {Key::keyboardtype, "keyboardtype ", "5", "", "", "", ""},
    {Key::keycodes, "keycodes ", "false", "rawKeys", "rawKeycodes",
     "Tells keys apart by their place on the keyboard, through a table in a file, and not by their letter.",
     "as true or false"},
    {Key::keycodefile, "keycodefile ", "", "rawKeyFile", "keycodeFilePath",
     "The file with the table of key codes. Used only with raw key codes.", "as a path"},
    {Key::mousewheelmode, "mousewheelmode ", "1", "mouseWheel", "mouseWheel",
     "Which keys a turn of the mouse wheel presses inside the Macintosh.", "as 0 for pages, 1 for the cursor"},
    {Key::mousewheellines, "mousewheellines ", "3", "mouseScroll", "scrollStep",
     "How many lines one step of the mouse wheel scrolls.", "as a number"},
    {Key::dsp, "dsp ", "", "audioOut", "audioOut",
     "The device that sound goes to. Leave it empty for the usual one.", ""},
    {Key::mixer, "mixer ", "", "audioMix", "audioMix",
     "The device that sets the loudness. Leave it empty for the usual one.", ""},
    {Key::ignoresegv, "ignoresegv ", "true", "ignoreSegV", "ignoreSegV",
     "Lets the Macintosh go on when a program reaches for memory that is not there.", "as true or false"},
    {Key::idlewait, "idlewait ", "true", "dontUseCPU", "idleCPU",
     "Rests while the Macintosh has nothing to do and saves this computer's energy.", "as true or false"},
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
