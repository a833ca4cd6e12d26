#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <string>
#include <thread>

// Starts a program on an X display without a window manager and prints, of the moment when its
// window has been painted: the milliseconds since the start, the CPU milliseconds that it took and
// the peak of its resident memory in KiB; and of the moment from which on it has nothing more to
// do: the milliseconds and the CPU milliseconds. Ends the program then.
namespace {

using Clock = std::chrono::steady_clock;

constexpr unsigned long marker = 0xff00ff;  // what no window shows of itself
constexpr auto patience = std::chrono::seconds(20);
constexpr auto lookAgain = std::chrono::microseconds(500);
constexpr auto idle = std::chrono::milliseconds(150);  // so long without any CPU time

// A window's pixels are the marker of the root until it is painted.
bool isPainted(Display* display, Window window, const XWindowAttributes& size) {
  XImage* const image = XGetImage(display, window, size.width / 2, 0, 1,
                                  static_cast<unsigned>(size.height), AllPlanes, ZPixmap);
  if (image == nullptr) {
    return false;
  }
  bool painted = true;
  for (int y = 0; y < size.height && painted; ++y) {
    painted = (XGetPixel(image, 0, y) & 0xffffff) != marker;
  }
  XDestroyImage(image);
  return painted;
}

bool showsPaintedWindow(Display* display) {
  Window root = 0;
  Window parent = 0;
  Window* children = nullptr;
  unsigned count = 0;
  XQueryTree(display, DefaultRootWindow(display), &root, &parent, &children, &count);
  bool painted = false;
  for (unsigned i = 0; i < count && !painted; ++i) {
    XWindowAttributes found{};
    painted = XGetWindowAttributes(display, children[i], &found) != 0 &&
              found.map_state == IsViewable && found.width > 100 && found.height > 100 &&
              isPainted(display, children[i], found);
  }
  XFree(children);
  return painted;
}

// Of all threads, also of those that have ended.
double cpuMilliseconds(pid_t process) {
  clockid_t clock{};
  timespec used{};
  if (::clock_getcpuclockid(process, &clock) != 0 || ::clock_gettime(clock, &used) != 0) {
    return 0;
  }
  return static_cast<double>(used.tv_sec) * 1e3 + static_cast<double>(used.tv_nsec) / 1e6;
}

long peakKib(pid_t process) {
  std::ifstream status("/proc/" + std::to_string(process) + "/status");
  for (std::string word; status >> word;) {
    if (word == "VmHWM:") {
      status >> word;
      return std::strtol(word.c_str(), nullptr, 10);
    }
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  Display* const display = argc > 1 ? XOpenDisplay(nullptr) : nullptr;
  if (display == nullptr) {
    std::fputs("Usage: first_paint PROGRAM [ARGUMENT...], on an X display\n", stderr);
    return 2;
  }
  XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });  // windows may go at any time
  XSetWindowBackground(display, DefaultRootWindow(display), marker);
  XClearWindow(display, DefaultRootWindow(display));
  XSync(display, False);

  const auto start = Clock::now();
  const auto sinceStart = [start] {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
  };
  const pid_t child = ::fork();
  if (child == 0) {
    (void)!std::freopen("/dev/null", "w", stdout);
    ::execvp(argv[1], argv + 1);
    ::_exit(127);
  }
  bool painted = false;
  while (!painted && Clock::now() - start < patience) {
    std::this_thread::sleep_for(lookAgain);
    painted = showsPaintedWindow(display);
  }
  if (painted) {
    const double taken = sinceStart();
    double cpu = cpuMilliseconds(child);
    std::printf("%.2f %.2f %ld ", taken, cpu, peakKib(child));
    double done = taken;
    auto last = Clock::now();
    while (Clock::now() - last < idle && Clock::now() - start < patience) {
      std::this_thread::sleep_for(lookAgain);
      if (const double now = cpuMilliseconds(child); now != cpu) {
        cpu = now;
        done = sinceStart();
        last = Clock::now();
      }
    }
    std::printf("%.2f %.2f\n", done, cpu);
  }
  ::kill(child, SIGKILL);
  ::waitpid(child, nullptr, 0);
  XCloseDisplay(display);
  return painted ? 0 : 1;
}
