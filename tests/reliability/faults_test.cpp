// System calls that fail, and the end at any moment. The calls of this program, the core's among
// them, go through the functions below instead of the C library's.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdarg>
#include <random>
#include <thread>

#include "editor/view_controller.h"
#include "platform/descriptor.h"
#include "platform/files.h"
#include "tests/support/fake_host.h"
#include "tests/support/model.h"
#include "volumes/blank_image.h"

namespace {

struct Fault {
  enum Extent { once, fromThen, untilThen };

  std::string_view call;
  int error = 0;
  int due = 0;  // counted from 1
  Extent extent = once;
  std::function<void()> change = {};  // happens instead of the error
  int seen = 0;
  bool halves = false;  // each write takes half of what it is given
};

Fault& fault() {
  static Fault current;
  return current;
}

bool strikes(std::string_view call) {
  Fault& now = fault();
  if (now.call != call) {
    return false;
  }
  const int left = now.due - ++now.seen;
  if (now.extent == Fault::once ? left != 0 : now.extent == Fault::fromThen ? left > 0 : left < 0) {
    return false;
  }
  if (now.change) {
    now.change();
    return false;
  }
  errno = now.error;
  return true;
}

template <typename... Arguments>
auto call(std::string_view name, long number, Arguments... arguments) {
  return strikes(name) ? -1 : ::syscall(number, arguments...);
}

}  // namespace

extern "C" {
int open(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const int mode = va_arg(rest, int);
  va_end(rest);
  return static_cast<int>(call("open", SYS_openat, AT_FDCWD, path, flags, mode));
}
int stat(const char* path, struct stat* status) noexcept {
  return strikes("stat") ? -1 : ::fstatat(AT_FDCWD, path, status, 0);
}
ssize_t pread(int file, void* bytes, size_t size, off_t at) {
  return call("pread", SYS_pread64, file, bytes, size, at);
}
ssize_t pwrite(int file, const void* bytes, size_t size, off_t at) {
  return call("pwrite", SYS_pwrite64, file, bytes, fault().halves ? (size + 1) / 2 : size, at);
}
int fallocate(int file, int mode, off_t at, off_t size) {
  return static_cast<int>(call("fallocate", SYS_fallocate, file, mode, at, size));
}
int ftruncate(int file, off_t size) noexcept {
  return static_cast<int>(call("ftruncate", SYS_ftruncate, file, size));
}
int fsync(int /*file*/) { return strikes("fsync") ? -1 : 0; }  // the disk itself is not tested
int close(int file) {                                          // which closes, whatever it says
  const bool fails = strikes("close");
  const long result = ::syscall(SYS_close, file);
  return fails ? -1 : static_cast<int>(result);
}
}

namespace {

namespace fs = std::filesystem;
using tests::FakeHost;
using Calls = std::initializer_list<const char*>;

constexpr std::pair<int, Fault::Extent> kinds[] = {
    {ENOSPC, Fault::once},     {ENOSPC, Fault::fromThen}, {EACCES, Fault::once},
    {EROFS, Fault::fromThen},  {EIO, Fault::once},        {EIO, Fault::fromThen},
    {EMFILE, Fault::fromThen}, {EINTR, Fault::untilThen}};

// Does `body` with the first, the second, ... call failing, until none fails any more.
void eachFault(Calls calls, const std::function<void(const Fault&)>& body) {
  for (const char* const name : calls) {
    for (const auto& [error, extent] : kinds) {
      for (const bool halves : {false, true}) {
        // Nobody can take back half a write on a disk that takes no more writes at all, and so many
        // interruptions in a row are enough.
        const int last = halves && extent == Fault::fromThen ? 1
                         : extent == Fault::untilThen        ? 3
                                                             : 1000;
        int due = 1;
        for (bool struck = true; struck && due <= last; ++due) {
          SCOPED_TRACE(std::string(name) + " " + std::to_string(due) + ": " +
                       strerrorname_np(error) + (halves ? ", halves" : ""));
          body({.call = name, .error = error, .due = due, .extent = extent, .halves = halves});
          struck = std::exchange(fault(), Fault()).seen >= due;
        }
        EXPECT_GT(due, last == 1 ? 1 : 2) << name << " is never called";
      }
    }
  }
}

std::string fileWith(std::size_t disks) {
  std::string text;
  for (std::size_t disk = 0; disk < disks; ++disk) {
    text += "disk /a/disk image " + std::to_string(disk) + ".dsk\n";
  }
  return text + "ramsize 8388608\n";
}

// A window over a file, its memory size changed, that is then saved with a fault.
struct Save {
  FakeHost host;
  editor::ViewController window{host.host()};
  std::string wanted;

  explicit Save(const std::string& old) {
    host.home.write(FakeHost::prefs, old);
    window.viewDidLoad();
    auto& box = window.machine.ramSizeMB.box;
    box.edit([&] { box.enterText("9"); });
    tests::Model model(old);
    model[document::Key::ramsize] = "9437184";
    wanted = model.text();
  }

  bool with(const Fault& planned) {
    fault() = planned;
    const bool saved = window.savePrefsAny();
    fault().call = {};
    const bool told = host.output.text.find("couldn't save prefs file") != std::string::npos;
    EXPECT_NE(saved, told);
    EXPECT_EQ(window.saved.changedKeys().empty(), saved);
    return saved;
  }
};

TEST(Faults, ASaveLeavesTheOldOrTheNewText) {
  const std::string shrinks = fileWith(200) + std::string(9000, '#') + "\n";
  for (const std::string& old : {fileWith(0), shrinks, std::string()}) {
    const auto sweep = [&](const Fault& planned) {
      Save save(old);
      const std::string path = save.host.home.path(FakeHost::prefs);
      if (old.empty()) {
        fs::remove(path);
        fs::create_symlink("target", path);
      }
      const bool saved = save.with(planned);
      const std::string file = save.host.home.read(FakeHost::prefs);
      const bool closed = planned.call == "close" && file == save.wanted;
      EXPECT_TRUE(file == (saved ? save.wanted : old) || closed) << file.size();
      EXPECT_TRUE(saved || planned.error != EINTR);
      EXPECT_EQ(platform::fileExists(path), saved || !old.empty() || closed);
      EXPECT_EQ(fs::is_symlink(path), old.empty());
    };
    eachFault({"open", "pwrite", "fallocate", "fsync", "close"}, sweep);
    eachFault(old.empty() ? Calls{} : Calls{"pread"}, sweep);
    eachFault(old == shrinks ? Calls{"ftruncate"} : Calls{}, sweep);
  }
}

TEST(Faults, ASaveOverAFileTooLargeToReadLosesNothing) {
  const tests::TemporaryFolder folder;
  const std::string front(100'000, 'x');
  const std::string text = fileWith(300);
  const std::uintmax_t gigabyte = std::uintmax_t{1} << 30U;
  const std::string path = folder.write("prefs", front);
  fs::resize_file(path, gigabyte);
  fault() = {.call = "pwrite", .error = ENOSPC, .due = 3, .halves = true};
  EXPECT_EQ(platform::writeFile(path, text), std::errc::no_space_on_device);
  fault() = {};
  EXPECT_EQ(fs::file_size(path), gigabyte);
  std::string found(front.size(), ' ');
  std::ifstream(path, std::ios::binary).read(found.data(), std::ssize(found));
  EXPECT_TRUE(found == front);
  EXPECT_FALSE(platform::writeFile(path, text));
  EXPECT_EQ(folder.read("prefs"), text);
}

TEST(Faults, OpeningTouchesNoFileThatIsThere) {
  const std::string old = fileWith(3);
  eachFault({"stat", "open", "pread", "close"}, [&](const Fault& planned) {
    FakeHost host;
    host.home.write(FakeHost::prefs, old);
    editor::ViewController window(host.host());
    fault() = planned;
    window.viewDidLoad();
    fault().call = {};
    const bool read = window.volumes.numberOfRows() == 3;
    EXPECT_NE(read, host.said().find("/.quillon_prefs, Error: ") != std::string::npos);
    EXPECT_TRUE(read || planned.error != EINTR);
    EXPECT_EQ(host.home.read(FakeHost::prefs), old);
  });
}

TEST(Faults, AFirstFileReplacesNoneThatAppearedMeanwhile) {
  const tests::TemporaryFolder home;
  const std::string path = home.path(FakeHost::prefs);
  platform::BufferOutput output;
  document::Preferences preferences(home.path(), output);
  fault() = {.call = "open", .due = 1, .change = [&] {
               fault().call = {};
               home.write(FakeHost::prefs, "ramsize 1\n");
             }};
  preferences.load();
  EXPECT_EQ(home.read(FakeHost::prefs), "ramsize 1\n");
  EXPECT_EQ(preferences.readError(), "File exists");
}

TEST(Faults, AnImageOrACopyIsCompleteOrNotThere) {
  const std::string content(3U << 19U, '\0');
  const std::string old(5000, 'x');
  enum class Target { image, imageThatIsThere, copy };
  for (const Target target : {Target::image, Target::imageThatIsThere, Target::copy}) {
    const auto sweep = [&](const Fault& planned) {
      const tests::TemporaryFolder folder;
      const std::string source = folder.write("source", content);
      const std::string made = folder.path("made");
      if (target == Target::imageThatIsThere) {
        folder.write("made", old);
      }
      fault() = planned;
      const bool failed =
          static_cast<bool>(target == Target::copy ? platform::copyFile(source, made)
                                                   : volumes::writeImage(made, content));
      fault().call = {};
      EXPECT_TRUE(!failed || planned.error != EINTR);
      const std::string file = folder.read("made");
      if (target != Target::imageThatIsThere) {
        EXPECT_EQ(platform::fileExists(made), !failed);
        EXPECT_TRUE(failed || file == content);
      } else if (failed && planned.call != "close") {
        EXPECT_EQ(file.size(), old.size());
        EXPECT_TRUE(file == old || planned.call == "pwrite") << "what was written stays zero";
      } else {
        EXPECT_EQ(file.size(), content.size());
      }
    };
    eachFault({"open", "pwrite", "fallocate", "close"}, sweep);
    eachFault(target == Target::copy ? Calls{"pread"} : Calls{}, sweep);
  }
}

TEST(Faults, WhatChangesBetweenCheckAndUseIsNoticed) {
  struct Row {
    const char* name;
    std::function<void(const std::string& path)> make;
    bool isSaved = false;
  };
  const Row rows[] = {
      {.name = "vanished", .make = [](auto&) {}, .isSaved = true},
      {.name = "a folder", .make = [](auto& path) { fs::create_directory(path); }},
      {.name = "a pipe", .make = [](auto& path) { ::mkfifo(path.c_str(), 0600); }},
      {.name = "a dead link", .make = [](auto& path) { fs::create_symlink("/no/where", path); }},
      {.name = "another file",
       .make = [](auto& path) { std::ofstream(path) << "ramsize 1\n"; },
       .isSaved = true},
      {.name = "no home",
       .make = [](auto& path) { fs::remove_all(fs::path(path).parent_path()); }}};
  for (const auto& [name, make, isSaved] : rows) {
    SCOPED_TRACE(name);
    Save save(fileWith(2));
    const std::string path = save.host.home.path(FakeHost::prefs);
    const auto change = [&path, &make = make] {
      fault().call = {};
      fs::remove(path);
      make(path);
    };
    EXPECT_EQ(save.with({.call = "open", .due = 1, .change = change}), isSaved);
    EXPECT_TRUE(!isSaved || save.host.home.read(FakeHost::prefs) == save.wanted);
  }
}

TEST(Collision, TheSecondOfTwoSavesWaitsForTheFirst) {
  const tests::TemporaryFolder folder;
  const std::string first(100'000, '1');
  const std::string second(150'000, '2');
  const std::string path = folder.write("prefs", std::string(120'000, '0'));
  std::thread other;
  const auto saveBeside = [&] {
    fault().call = {};
    other = std::thread([&] { EXPECT_FALSE(platform::writeFile(path, second)); });
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
  };
  fault() = {.call = "pwrite", .due = 2, .change = saveBeside, .halves = true};
  EXPECT_FALSE(platform::writeFile(path, first));
  other.join();
  fault() = {};
  EXPECT_TRUE(folder.read("prefs") == second);
}

TEST(Collision, ALockThatIsNeverGivenBackKeepsNobodyFromSaving) {
  const tests::TemporaryFolder folder;
  const std::string path = folder.write("prefs", "old");
  const platform::Descriptor holder(::open(path.c_str(), O_RDONLY));
  ASSERT_EQ(::flock(holder.get(), LOCK_EX), 0);
  const auto start = std::chrono::steady_clock::now();
  EXPECT_FALSE(platform::writeFile(path, "new"));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
  EXPECT_EQ(folder.read("prefs"), "new");
}

// Whether the lines of `fresh` go up to the end of a page, and those of `old` on from there.
bool holdsBoth(const std::string& file, std::string fresh, const std::string& old) {
  constexpr std::size_t pageSize = 4096;
  fresh.resize(std::max(fresh.size(), old.size()), '\n');
  for (std::size_t seam = 0; seam <= file.size(); seam += pageSize) {
    if (file == fresh.substr(0, seam) + old.substr(std::min(seam, old.size()))) {
      return true;
    }
  }
  return false;
}

// Saves two texts in turn, and has each of 1,000 processes killed at some moment.
int tornBySuddenEnds(const std::array<std::string, 2>& texts) {
  std::mt19937 random(1);  // NOLINT: always the same moments
  const tests::TemporaryFolder folder;
  int torn = 0;
  for (std::size_t round = 0; round < 1000; ++round) {
    const std::string path = folder.write("prefs", texts[round % 2]);
    const pid_t child = ::fork();
    if (child == 0) {
      for (std::size_t turn = round + 1;; ++turn) {
        (void)platform::writeFile(path, texts[turn % 2]);
      }
    }
    ::usleep(std::uniform_int_distribution<useconds_t>(100, 4000)(random));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    const std::string file = folder.read("prefs");
    const std::string lines = file.substr(0, file.find_last_not_of('\n') + 1) + "\n";
    if (lines != texts[0] && lines != texts[1]) {
      ++torn;
      EXPECT_TRUE(holdsBoth(file, texts[0], texts[1]) || holdsBoth(file, texts[1], texts[0]));
    }
  }
  return torn;
}

TEST(Kill, InTheMiddleOfASaveLeavesOldAndNewLinesInWholePages) {
  for (const std::size_t disks : {5U, 2000U}) {
    const std::string other = "disk /the first of them.dsk\n";
    const std::array<std::string, 2> texts{tests::Model(fileWith(disks)).text(),
                                           tests::Model(other + fileWith(disks * 3 / 2)).text()};
    const int torn = tornBySuddenEnds(texts);
    std::printf("%zu and %zu bytes: %d of 1000 torn\n", texts[0].size(), texts[1].size(), torn);
    // What the system writes in one piece is never torn; the rest rarely, since a save spends most
    // of its time elsewhere.
    EXPECT_LE(torn, disks > 5 ? 200 : 0);
  }
}

}  // namespace
