#include "desktop/search_words.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

#include "platform/translatable.h"

namespace desktop {
namespace {

using document::Key;
using platform::translatable;

// Translators put what people of their language may type, as many words as they like.
struct Row {
  Key key;
  const char* words;  // with commas between them
};

constexpr auto table = std::to_array<Row>({
    {Key::extfs, translatable("Search", "exchange files, host folder, share")},
    {Key::screen, translatable("Search", "resolution, fullscreen, window size, monitor, pixels")},
    {Key::seriala, translatable("Search", "serial port, terminal")},
    {Key::serialb, translatable("Search", "serial port, printing")},
    {Key::ether, translatable("Search", "internet, Ethernet, web, TCP/IP")},
    {Key::udptunnel, translatable("Search", "internet, AppleTalk, local network")},
    {Key::rom, translatable("Search", "firmware, BIOS")},
    {Key::bootdrive, translatable("Search", "startup disk, boot order, boot disk")},
    {Key::ramsize, translatable("Search", "memory, megabytes")},
    {Key::frameskip, translatable("Search", "frames per second, FPS, speed, frame skip")},
    {Key::modelid, translatable("Search", "computer, machine type, Gestalt")},
    {Key::cpu, translatable("Search", "CPU, FPU, coprocessor, Motorola")},
    {Key::nocdrom, translatable("Search", "optical drive, CD, disc")},
    {Key::nosound, translatable("Search", "audio, mute, volume, speaker")},
    {Key::jit, translatable("Search", "speed, fast, dynamic translation, recompiler")},
    {Key::jitfpu, translatable("Search", "floating point, speed")},
    {Key::jitcachesize, translatable("Search", "memory, speed")},
    {Key::keycodes, translatable("Search", "keyboard layout, keymap")},
    {Key::keycodefile, translatable("Search", "keyboard layout, keymap")},
    {Key::mousewheelmode, translatable("Search", "scroll wheel, scrolling")},
    {Key::mousewheellines, translatable("Search", "scroll wheel, scrolling speed")},
    {Key::dsp, translatable("Search", "audio device, sound card")},
    {Key::mixer, translatable("Search", "audio device, sound card, loudness")},
    {Key::ignoresegv, translatable("Search", "crash, memory errors")},
    {Key::idlewait, translatable("Search", "battery, power, fan, processor load")},
});

constexpr const char* imageWords =
    translatable("Search", "hard disk, hard drive, floppy, diskette, volume");

QStringList listOf(const char* words) {
  const auto split = [](const QString& text) {
    QStringList list = text.split(QLatin1Char(','), Qt::SkipEmptyParts);
    std::transform(list.begin(), list.end(), list.begin(),
                   [](const QString& word) { return word.trimmed(); });
    return list;
  };
  QStringList list = split(QCoreApplication::translate("Search", words));
  list += split(QLatin1String(words));
  list.removeDuplicates();
  return list;
}

}  // namespace

QStringList searchWordsOf(document::Key key) {
  const auto row =
      std::find_if(table.begin(), table.end(), [key](const Row& each) { return each.key == key; });
  return row != table.end() ? listOf(row->words) : QStringList();
}

QStringList searchWordsOfImages() { return listOf(imageWords); }

}  // namespace desktop
