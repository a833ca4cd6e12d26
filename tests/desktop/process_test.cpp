#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QThread>
#include <csignal>
#include <map>

#include "document/key_table.h"
#include "tests/support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;

struct Ended {
  int status = -1;  // -1: did not end by itself
  std::string out;
  std::string error;
};

/// The built program in a home of its own, its bundle moved there.
class Process : public testing::Test {
 protected:
  static constexpr const char* prefs = ".quillon_prefs";

  /// Puts the bundle, with its settings as shipped, and the stand-in into a folder of the home.
  void install(const std::string& folder) {
    const fs::path place = fs::path(home.path()) / folder;
    fs::create_directories(place);
    bundle = place / "QuillonSettings.app";
    fs::copy(QUILLON_BUNDLE, bundle, fs::copy_options::recursive);
    fs::copy(QUILLON_SOURCE "/demo/Quillon.app", place / "Quillon.app",
             fs::copy_options::recursive);
    setting("", "");
  }

  /// Replaces a part of the shipped settings.
  void setting(const std::string& part, const std::string& by) const {
    std::ifstream file(QUILLON_SOURCE "/resources/Prefs.plist");
    std::string text{std::istreambuf_iterator<char>(file), {}};
    text.replace(text.find(part), part.size(), by);
    std::ofstream(bundle / "Contents/Resources/Prefs.plist") << text;
  }

  std::string program() const { return bundle / "Contents/MacOS/quillon-settings"; }

  Ended run(const std::vector<std::string>& command) const {
    QProcess process;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (const char* const gone : {"XDG_CONFIG_HOME", "DISPLAY", "WAYLAND_DISPLAY"}) {
      variables.remove(QLatin1String(gone));
    }
    variables.insert(QLatin1String("HOME"), QString::fromStdString(home.path()));
    variables.insert(QLatin1String("QUILLON_STAND_IN_REPORT"),
                     QString::fromStdString(home.path("report")));
    process.setProcessEnvironment(variables);
    QStringList arguments;
    for (const std::string& argument : command) {
      arguments.append(QString::fromStdString(argument));
    }
    process.start(arguments.takeFirst(), arguments);
    if (!process.waitForFinished(20000) || process.exitStatus() != QProcess::NormalExit) {
      return {-1, "did not end by itself", {}};
    }
    return {process.exitCode(), process.readAllStandardOutput().toStdString(),
            process.readAllStandardError().toStdString()};
  }
  Ended runSteps(std::vector<std::string> steps) const {
    steps.insert(steps.begin(), {QCoreApplication::applicationFilePath().toStdString(), "--run",
                                 home.path(), bundle.string()});
    return run(steps);
  }

  /// All files of the home and what they hold.
  std::map<std::string, std::string> files() const {
    std::map<std::string, std::string> all;
    for (const auto& entry : fs::recursive_directory_iterator(home.path())) {
      const std::string name = entry.path().string();
      all[name] =
          entry.is_regular_file() ? home.read(name.substr(home.path().size() + 1)) : "no file";
    }
    return all;
  }

  std::string report() const {
    QElapsedTimer waited;
    waited.start();
    while (!fs::exists(home.path("report")) && !waited.hasExpired(5000)) {
      QThread::msleep(20);
    }
    return home.read("report");
  }

  tests::TemporaryFolder home;
  fs::path bundle;
};

std::string defaultFile() {
  std::string text;
  for (const document::KeyRow& row : document::keyTable) {
    text.append(row.text).append(row.defaultValue).append("\n");
  }
  return text;
}

TEST_F(Process, StartSavesAndLaunchesFromFoldersOfAnyName) {
  for (const char* const folder : {"plain", "with blanks", "\xc3\x89mulation"}) {
    SCOPED_TRACE(folder);
    install(folder);
    fs::remove(home.path("report"));
    home.write(prefs, "# comment\nramsize 134217728\ndisk /a b.dsk\nnocdrom 1\nother x");
    const Ended ended = run({program(), "--start"});
    EXPECT_EQ(ended.status, 0) << ended.error;
    std::string expected = defaultFile();
    expected.replace(expected.find("67108864"), 8, "134217728");
    expected.replace(expected.find("nocdrom false"), 13, "nocdrom 1");
    expected = "disk /a b.dsk\n" + expected;
    EXPECT_EQ(home.read(prefs), expected);
    std::size_t at = 0;
    for (const std::string& line : std::vector<std::string>{
             "local path is: " + home.path(folder), "local path is enabled: ", "Prefs: /",
             "QuilLocal?: /", home.path(), prefs, "file:///", "extfs: extfs ",
             "No match for: extfs ", "results: ramsize 134217728", "No match for: idlewait ",
             "resultsDisk: [\"disk /a b.dsk\"]", "pre write prefs test",
             "newFileOutput test: ", "post write prefs\n", "[\"disk /a b.dsk\", \"extfs "}) {
      const auto found = ("\n" + ended.out).find("\n" + line, at);
      ASSERT_NE(found, std::string::npos) << line;
      at = found + 1;
    }
    EXPECT_NE(report().find("disk 1: /a b.dsk\n"), std::string::npos) << report();
    EXPECT_NE(report().find("ramsize = 134217728\n"), std::string::npos);
  }
}

TEST_F(Process, EachWayToEndLeavesTheFilesAlone) {
  struct Row {
    std::vector<std::string> steps;
    const char* said;
  };
  const std::vector<Row> rows = {{{"close"}, "\nwindowWillClose\n"},
                                 {{"isQuit"}, ""},
                                 {{"&Quit"}, ""},
                                 {{std::to_string(SIGINT)}, ""},
                                 {{std::to_string(SIGTERM)}, ""},
                                 {{"bitCreate", std::to_string(SIGHUP)}, ""},
                                 {{"openPreferences", "quilOff", "close"}, "\nis empty\n"},
                                 {{"bitCreate", "isQuit"}, "\ncreate loaded\n"},
                                 {{"&Beta Agreement\u2026", "Agree", "close"}, "\nAgree\n"},
                                 {{"&Beta Agreement\u2026", "disAgree"}, "\nDisagree\n"}};
  install("app");
  home.write(prefs, "rom /a\ncomment");
  const auto before = files();
  for (const Row& row : rows) {
    SCOPED_TRACE(row.steps.back());
    const Ended ended = runSteps(row.steps);
    EXPECT_EQ(ended.status, 0);
    EXPECT_NE(ended.out.find(row.said), std::string::npos);
    EXPECT_EQ(files(), before);
  }
}

TEST_F(Process, StartQuitsWhenAskedToWhateverHappens) {
  install("app");
  const std::string quit = "<key>Quit on Start</key>\n\t<";
  setting(quit + "false", quit + "true");
  home.write(prefs, "rom /a\n");
  EXPECT_EQ(runSteps({"startQuil"}).status, 0);
  EXPECT_NE(report().find("rom = /never/saved/unless/asked\n"), std::string::npos);
  fs::remove_all(bundle.parent_path() / "Quillon.app");
  EXPECT_EQ(runSteps({"startQuil"}).status, 0);

  const Ended without = run({program(), "--start"});
  EXPECT_EQ(without.status, 1);
  EXPECT_EQ(std::count(without.error.begin(), without.error.end(), '\n'), 1) << without.error;
  fs::remove(home.path(prefs));
  fs::create_directory(home.path(prefs));
  EXPECT_EQ(run({program(), "--start"}).status, 1);
}

TEST_F(Process, CommandLinesAndStandardStreams) {
  install("app");
  const std::string closed = "exec \"$0\" --start ";
  const std::vector<std::pair<std::vector<std::string>, int>> rows = {
      {{program(), "--nonsense"}, 2},
      {{program(), "file"}, 2},
      {{"/usr/bin/env", "QT_QPA_PLATFORM=xcb", program(), "--help"}, 0},
      {{"/usr/bin/env", "QT_QPA_PLATFORM=xcb", program(), "--version"}, 0},
      {{"/bin/sh", "-c", closed + "<&-", program()}, 0},
      {{"/bin/sh", "-c", closed + ">&-", program()}, 0},
      {{"/bin/sh", "-c", closed + "<&- >&- 2>&-", program()}, 0},
      {{"/bin/bash", "-c", "\"$0\" --start | true; exit ${PIPESTATUS[0]}", program()}, 0},
      {{"/bin/sh", "-c", closed + ">/dev/full", program()}, 0}};
  for (const auto& [command, status] : rows) {
    SCOPED_TRACE(command.back() + " " + command[command.size() - 2]);
    home.write(prefs, "rom /a\n");
    const Ended ended = run(command);
    EXPECT_EQ(ended.status, status) << ended.error;
    EXPECT_TRUE(status == 0 || !ended.error.empty());  // the stand-in may complain as well
    const bool starts = command.size() > 3 && command.front() != "/usr/bin/env";
    EXPECT_EQ(home.read(prefs).size() > 7, starts);
    EXPECT_EQ(starts && report().empty(), false);
    fs::remove(home.path("report"));
  }
}

TEST_F(Process, AnyPreferencesFileIsComeUpWithAndLeftAlone) {
  install("app");
  const std::string file = home.path(prefs);
  const std::vector<std::pair<const char*, std::function<void()>>> rows = {
      {"empty", [&] { home.write(prefs, ""); }},
      {"folder", [&] { fs::create_directory(file); }},
      {"fifo", [&] { ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0); }},
      {"device", [&] { fs::create_symlink("/dev/zero", file); }},
      {"invalid", [&] { home.write(prefs, "rom \xff\xfe\nramsize 1048576\n"); }},
      {"NUL", [&] { home.write(prefs, std::string("rom a\0b\ndisk \0\n", 15)); }},
      {"long line", [&] { home.write(prefs, "rom " + std::string(1 << 20, 'x') + "\n"); }},
      {"many lines", [&] {
         std::string text;
         for (int line = 0; line < 200000; ++line) {
           text += "key" + std::to_string(line) + " value\n";
         }
         home.write(prefs, text);
       }}};
  for (const auto& [name, make] : rows) {
    SCOPED_TRACE(name);
    make();
    const auto before = files();
    EXPECT_EQ(runSteps({"close"}).status, 0);
    EXPECT_EQ(files(), before);
    fs::remove_all(file);
  }
  fs::create_symlink("no/such/file", file);
  const auto before = files();
  EXPECT_EQ(runSteps({"close"}).status, 0);
  EXPECT_EQ(files(), before);
}

}  // namespace
