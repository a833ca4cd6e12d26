// System calls that fail, and the end at any moment. The calls of this program, the core's among
// them, go through the functions below instead of the C library's.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdarg>
#include <functional>
#include <random>
#include <thread>

#include "document/preferences.h"
#include "platform/descriptor.h"
#include "platform/files.h"
#include "tests/support/temporary_folder.h"
#include "volumes/blank_image.h"

namespace {

struct Fault {
  enum Extent { once, fromThen, untilThen };

  std::string_view call;
  int error = 0;
  int due = 1;  // counted from 1
  Extent extent = once;
  std::function<void()> change = {};  // happens before the call, which then succeeds
  bool halves = false;                // each write takes half of what it is given
  int seen = 0;
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
    const auto change = std::exchange(now, {}).change;
    change();
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
using tests::TemporaryFolder;

constexpr const char* prefs = ".quillon_prefs";

constexpr std::pair<int, Fault::Extent> kinds[] = {
    {ENOSPC, Fault::once},     {ENOSPC, Fault::fromThen}, {EACCES, Fault::once},
    {EROFS, Fault::fromThen},  {EIO, Fault::once},        {EIO, Fault::fromThen},
    {EMFILE, Fault::fromThen}, {EINTR, Fault::untilThen}};

std::string textWith(std::size_t disks) {
  std::string text;
  for (std::size_t disk = 0; disk < disks; ++disk) {
    text += "disk /a/disk image " + std::to_string(disk) + ".dsk\n";
  }
  return text + "ramsize 8388608\n";
}

/// What is done to a file, which then holds the text after it or, when it was told to have failed,
/// the one before.
struct Operation {
  std::string before;  // empty: there is no file
  std::string after;
  std::function<bool(const TemporaryFolder&)> succeeds;
};

// Whether the fault struck.
bool expectAllOrNothing(const Operation& operation, const Fault& planned) {
  const auto& [before, after, succeeds] = operation;
  const TemporaryFolder folder;
  folder.write("copied", textWith(2));
  fs::create_symlink(prefs, folder.path("link"));
  if (!before.empty()) {
    fs::permissions(folder.write(prefs, before), fs::perms(0604));
    fs::create_hard_link(folder.path(prefs), folder.path("hard"));
  }
  fault() = planned;
  const bool succeeded = succeeds(folder);
  const bool struck = std::exchange(fault(), {}).seen >= planned.due;
  const std::string file = folder.read(prefs);
  // A close that fails closes all the same, and nobody keeps what an image is written over.
  const bool isReplaced = planned.call == "close" && !before.empty() && file == after;
  const bool isZeroed = planned.call == "pwrite" && file == std::string(before.size(), '\0');
  EXPECT_TRUE(succeeded ? file == after : file == before || isReplaced || isZeroed) << file.size();
  EXPECT_EQ(platform::fileExists(folder.path(prefs)), !file.empty());
  EXPECT_EQ(folder.read("hard"), before.empty() ? "" : file);
  EXPECT_TRUE(before.empty() || fs::status(folder.path(prefs)).permissions() == fs::perms(0604));
  EXPECT_TRUE(succeeded || planned.error != EINTR);
  return struck;
}

// Has the first, the second, ... call fail, until none fails any more. Returns how many there are.
int failInTurn(const Operation& operation, Fault planned) {
  // Nobody can take back half a write on a disk that takes no more writes at all, and so many
  // interruptions in a row are enough.
  const int last = planned.halves && planned.extent == Fault::fromThen ? 1
                   : planned.extent == Fault::untilThen                ? 3
                                                                       : 1000;
  for (bool struck = true; struck && planned.due <= last; planned.due += struck ? 1 : 0) {
    SCOPED_TRACE(std::string(planned.call) + " " + std::to_string(planned.due) + ": " +
                 strerrorname_np(planned.error) + (planned.halves ? ", halves" : ""));
    struck = expectAllOrNothing(operation, planned);
  }
  return planned.due - 1;
}

TEST(Faults, AFileIsAsItWasOrAsItIsToBe) {
  const std::string text = textWith(2);
  const std::string longer = textWith(300);
  const std::string image((1U << 20U) + 5000, '\0');
  const auto saves = [](const std::string& content) {
    return [content](const auto& folder) {
      return !platform::writeFile(folder.path("link"), content);
    };
  };
  const auto opens = [](const auto& folder) {
    platform::BufferOutput output;
    document::Preferences(folder.path(), output).load();
    return output.text.find("/.quillon_prefs, Error: ") == std::string::npos;
  };
  const auto copies = [](const auto& folder) {
    return !platform::copyFile(folder.path("copied"), folder.path(prefs));
  };
  const auto makesImage = [&](const auto& folder) {
    return !volumes::writeImage(folder.path(prefs), image);
  };
  const Operation operations[] = {{.before = text, .after = longer, .succeeds = saves(longer)},
                                  {.before = longer, .after = text, .succeeds = saves(text)},
                                  {.before = "", .after = text, .succeeds = saves(text)},
                                  {.before = text, .after = text, .succeeds = opens},
                                  {.before = "", .after = text, .succeeds = copies},
                                  {.before = "", .after = image, .succeeds = makesImage},
                                  {.before = text, .after = image, .succeeds = makesImage}};
  for (const char* const call :
       {"stat", "open", "pread", "pwrite", "fallocate", "ftruncate", "fsync", "close"}) {
    int calls = 0;
    for (const Operation& operation : operations) {
      SCOPED_TRACE(&operation - operations);
      for (const auto& [error, extent] : kinds) {
        for (const bool halves : {false, true}) {
          calls += failInTurn(operation,
                              {.call = call, .error = error, .extent = extent, .halves = halves});
        }
      }
    }
    EXPECT_GT(calls, 0) << call << " is never called";
  }
}

TEST(Faults, ASaveOverAFileTooLargeToReadLosesNothing) {
  const TemporaryFolder folder;
  const std::string front(100'000, 'x');
  const std::string path = folder.write(prefs, front);
  fs::resize_file(path, std::uintmax_t{1} << 30U);
  fault() = {.call = "pwrite", .error = ENOSPC, .due = 3, .halves = true};
  EXPECT_EQ(platform::writeFile(path, textWith(300)), std::errc::no_space_on_device);
  fault() = {};
  EXPECT_EQ(fs::file_size(path), std::uintmax_t{1} << 30U);
  std::string found(front.size(), ' ');
  std::ifstream(path, std::ios::binary).read(found.data(), std::ssize(found));
  EXPECT_TRUE(found == front);
  EXPECT_FALSE(platform::writeFile(path, "cpu 4\n"));
  EXPECT_EQ(folder.read(prefs), "cpu 4\n");
}

TEST(Collision, AFileMayComeAndGoBetweenTwoCalls) {
  const TemporaryFolder folder;
  const std::string path = folder.write(prefs, "cpu 2\n");
  const auto comes = [&] { folder.write(prefs, "cpu 3\n"); };
  fault() = {.call = "open", .change = [&] { fs::remove(path); }};
  EXPECT_FALSE(platform::writeFile(path, "cpu 4\n"));
  EXPECT_EQ(folder.read(prefs), "cpu 4\n");
  fs::remove(path);
  fault() = {.call = "open", .due = 2, .change = comes};
  EXPECT_FALSE(platform::writeFile(path, "fpu true\n"));
  EXPECT_EQ(folder.read(prefs), "fpu true\n");
  fs::remove(path);
  platform::BufferOutput output;
  document::Preferences preferences(folder.path(), output);
  fault() = {.call = "open", .change = comes};
  preferences.load();
  EXPECT_EQ(preferences.readError(), "File exists");
  EXPECT_EQ(folder.read(prefs), "cpu 3\n") << "nobody has read it";
}

TEST(Collision, TheSecondOfTwoSavesWaitsForTheFirst) {
  const TemporaryFolder folder;
  const std::string second(150'000, '2');
  const std::string path = folder.write(prefs, std::string(120'000, '0'));
  std::thread other;
  fault() = {.call = "pwrite", .due = 2, .halves = true};
  fault().change = [&] {
    other = std::thread([&] { EXPECT_FALSE(platform::writeFile(path, second)); });
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
  };
  EXPECT_FALSE(platform::writeFile(path, std::string(100'000, '1')));
  other.join();
  EXPECT_TRUE(folder.read(prefs) == second);
}

TEST(Collision, ALockThatIsNeverGivenBackKeepsNobodyFromSaving) {
  const TemporaryFolder folder;
  const std::string path = folder.write(prefs, "old");
  const platform::Descriptor holder(::open(path.c_str(), O_RDONLY));
  ASSERT_EQ(::flock(holder.get(), LOCK_EX), 0);
  const auto start = std::chrono::steady_clock::now();
  EXPECT_FALSE(platform::writeFile(path, "new"));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
  EXPECT_EQ(folder.read(prefs), "new");
}

// Whether the file holds `fresh` up to the end of a page, and `old` on from there.
bool isSeamed(const std::string& file, std::string fresh, const std::string& old) {
  constexpr std::size_t pageSize = 4096;
  fresh.resize(file.size(), '\n');
  const auto [other, ignored] = std::mismatch(file.begin(), file.end(), fresh.begin());
  const auto same = static_cast<std::size_t>(other - file.begin());
  const std::size_t seam = same / pageSize * pageSize;
  return file.substr(seam) == old.substr(std::min(seam, old.size()));
}

TEST(Kill, InTheMiddleOfASaveLeavesOldAndNewLinesInWholePages) {
  std::mt19937 random(1);  // NOLINT: always the same moments
  const TemporaryFolder folder;
  for (const std::size_t disks : {5U, 2000U}) {
    const std::string texts[] = {textWith(disks), "disk /first.dsk\n" + textWith(disks * 3 / 2)};
    int torn = 0;
    for (std::size_t round = 0; round < 1000; ++round) {
      const std::string path = folder.write(prefs, texts[round % 2]);
      const pid_t child = ::fork();
      std::size_t turn = round;
      while (child == 0) {
        (void)platform::writeFile(path, texts[++turn % 2]);
      }
      ::usleep(std::uniform_int_distribution<useconds_t>(100, 4000)(random));
      ::kill(child, SIGKILL);
      ::waitpid(child, nullptr, 0);
      const std::string file = folder.read(prefs);
      const std::string lines = file.substr(0, file.find_last_not_of('\n') + 1) + "\n";
      const bool isWhole = lines == texts[0] || lines == texts[1];
      EXPECT_TRUE(isWhole || isSeamed(file, texts[0], texts[1]) ||
                  isSeamed(file, texts[1], texts[0]));
      torn += isWhole ? 0 : 1;
    }
    std::printf("%zu and %zu bytes: %d of 1000 torn\n", texts[0].size(), texts[1].size(), torn);
    // What the system writes in one piece is never torn; the rest rarely, since a save spends most
    // of its time elsewhere.
    EXPECT_LE(torn, disks > 5 ? 200 : 0);
  }
}

}  // namespace
